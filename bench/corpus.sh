#!/usr/bin/env bash
# bench/corpus.sh [CORPUS_DIR]
#
# Converts every *.svg under CORPUS_DIR (default: ../shared/corpus beside the repository) with
# the release `svgfigurer convert -o`, once on one thread and once on every core, and prints
# the figures: files, MB, failures by reason, wall time, files/s, MB/s, median and p99 per-file
# latency (from the one-thread run), the slowest files and peak RSS. It builds nothing: run
# `make build` (or `cmake --build --preset release --target svgfigurer`) first, or point
# SVGFIGURER_CLI at another binary. A missing corpus is skipped with a message, not an error.
#
# Exit status: 0 when both runs finished (failed conversions are figures, not errors), 1 when a
# run crashed, hit the per-file time limit or the two runs wrote different files, 2 for no binary.
set -euo pipefail

root="$(cd "$(dirname "$0")/.." && pwd)"
corpus="${1:-${root}/../shared/corpus}"
cli="${SVGFIGURER_CLI:-${root}/build/release/src/cli/svgfigurer}"
timeout="${SVGFIGURER_TIMEOUT:-10}"
cores="$(nproc)"

if [[ ! -d "${corpus}" ]]; then
  echo "corpus.sh: no corpus at ${corpus}: skipped"
  exit 0
fi
if [[ ! -x "${cli}" ]]; then
  echo "corpus.sh: no svgfigurer at ${cli}; build it with: make build" >&2
  exit 2
fi

work="$(mktemp -d)"
trap 'rm -rf "${work}"' EXIT
find "${corpus}" -type f -name '*.svg' | LC_ALL=C sort >"${work}/list"

now() { date +%s.%N; }

# run NAME JOBS: one conversion of the whole list; leaves NAME.tsv, NAME.err, NAME.wall.
run() {
  local name="$1" jobs="$2" start status=0
  start="$(now)"
  "${cli}" convert --fresh -o "${work}/${name}" --files-from - -j "${jobs}" \
    --timeout "${timeout}" --timings "${work}/${name}.tsv" \
    <"${work}/list" 2>"${work}/${name}.err" || status=$?
  awk -v a="${start}" -v b="$(now)" 'BEGIN { printf "%.3f\n", b - a }' >"${work}/${name}.wall"
  case "${status}" in
    0 | 1) ;;
    124)
      echo "corpus.sh: -j ${jobs}: a file took longer than ${timeout} s:" >&2
      grep 'took longer' "${work}/${name}.err" >&2 || true
      return 1
      ;;
    *)
      echo "corpus.sh: -j ${jobs}: svgfigurer ended with status ${status}; last lines:" >&2
      tail -n 5 "${work}/${name}.err" >&2
      return 1
      ;;
  esac
}

failed=0
run one 1 || failed=1
run all "${cores}" || failed=1
if [[ ${failed} -ne 0 ]]; then exit 1; fi

if diff -r -q "${work}/one" "${work}/all" >/dev/null; then
  same="yes"
else
  same="NO"
  failed=1
fi

rows() { grep -v '^#' "$1"; }
meta() { awk -F '\t' -v key="#$2" '$1 == key { print $2 }' "$1"; }

files="$(rows "${work}/one.tsv" | wc -l)"
bytes="$(rows "${work}/one.tsv" | awk -F '\t' '{ s += $2 } END { print s + 0 }')"
failures="$(rows "${work}/one.tsv" | awk -F '\t' '$4 != "ok"' | wc -l)"
rows "${work}/one.tsv" | cut -f 3 | LC_ALL=C sort -g >"${work}/latencies"

rate() { awk -v n="$1" -v t="$2" -v scale="$3" 'BEGIN { printf "%.1f", (t > 0 ? n / scale / t : 0) }'; }
percentile() {
  awk -v p="$1" '{ v[NR] = $1 } END { i = int(NR * p + 0.999999); if (i < 1) i = 1;
                   printf "%.3f", v[i] * 1000 }' "${work}/latencies"
}
megabytes() { awk -v b="$1" 'BEGIN { printf "%.1f", b / 1048576 }'; }

echo "corpus:            ${corpus}"
echo "outputs in:        ${work} (TMPDIR; a tmpfs there leaves the disk out of the figures)"
echo "files:             ${files}"
echo "total MB:          $(megabytes "${bytes}")"
echo "failures:          ${failures}"
rows "${work}/one.tsv" | awk -F '\t' '$4 != "ok" { print $4 }' | LC_ALL=C sort | uniq -c |
  sort -rn | sed 's/^/  /'
printf '%-18s %10s %10s %10s %10s %14s\n' "" "wall s" "CPU s" "files/s" "MB/s" "peak RSS MB"
for name in one all; do
  wall="$(cat "${work}/${name}.wall")"
  jobs="$(meta "${work}/${name}.tsv" jobs)"
  rss="$(awk -v k="$(meta "${work}/${name}.tsv" peak-rss-kb)" 'BEGIN { printf "%.1f", k / 1024 }')"
  printf '%-18s %10s %10s %10s %10s %14s\n' "-j ${jobs}" "${wall}" \
    "$(meta "${work}/${name}.tsv" cpu-seconds)" "$(rate "${files}" "${wall}" 1)" \
    "$(rate "${bytes}" "${wall}" 1048576)" "${rss}"
done
echo "per file (-j 1):   median $(percentile 0.5) ms, p99 $(percentile 0.99) ms"
echo "outputs equal for -j 1 and -j ${cores}: ${same}"
echo "report lines on stderr (-j 1): $(wc -l <"${work}/one.err")"
echo "slowest files (-j 1):"
rows "${work}/one.tsv" | LC_ALL=C sort -t "$(printf '\t')" -k 3,3 -gr |
  awk -F '\t' 'NR <= 10 { printf "  %8.3f ms %9d B  %s\n", $3 * 1000, $2, $1 }'
exit "${failed}"
