#!/usr/bin/env bash
# Wall time and peak memory of `svgfigurer convert` on one large document, the way a user runs
# it: `bench/memory.sh [MEGABYTES]` (default 50) for the path-heavy one, `bench/memory.sh --rects
# [COUNT]` (default 200000) for the shape-heavy one. They are the benchmarks' synthetic
# documents, so the figures compare with BM_EndToEnd_50MB_Streamed and BM_EndToEnd_Rects200k.
# Builds nothing: run `make bench` first (or set SVGFIGURER_BUILD to another build folder).
set -euo pipefail
cd "$(dirname "$0")/.."

kind=()
if [[ "${1:-}" == "--rects" ]]; then
  kind=(--rects)
  shift
  size="${1:-200000}"
else
  size="${1:-50}"
fi
build="${SVGFIGURER_BUILD:-build/release}"
cli="${build}/src/cli/svgfigurer"
synthetic="${build}/bench/svgfigurer_synthetic"
for program in "${cli}" "${synthetic}"; do
  if [[ ! -x "${program}" ]]; then
    echo "memory.sh: ${program} is missing; run 'make bench' first" >&2
    exit 2
  fi
done
if [[ ! -x /usr/bin/time ]]; then
  echo "memory.sh: /usr/bin/time is missing; run 'make deps' first" >&2
  exit 2
fi

work="$(mktemp -d)"
trap 'rm -rf "${work}"' EXIT
"${synthetic}" "${kind[@]}" "${size}" > "${work}/input.svg"
input_bytes="$(stat -c %s "${work}/input.svg")"

/usr/bin/time -f '%e %M' -o "${work}/time" "${cli}" convert --fresh --no-color \
  "${work}/input.svg" > "${work}/output.swift"
read -r seconds peak_kb < "${work}/time"
output_bytes="$(stat -c %s "${work}/output.swift")"

awk -v inb="${input_bytes}" -v outb="${output_bytes}" -v s="${seconds}" -v kb="${peak_kb}" 'BEGIN {
  printf "input:         %.1f MB\n", inb / 1e6
  printf "output:        %.1f MB\n", outb / 1e6
  printf "wall time:     %.2f s (%.1f MB/s of input)\n", s, (s > 0 ? inb / 1e6 / s : 0)
  printf "peak RSS:      %.0f MB (%.1f x the input)\n", kb / 1024, kb * 1024 / inb
}'
