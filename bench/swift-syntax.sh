#!/usr/bin/env bash
# bench/swift-syntax.sh [CORPUS_DIR]
#
# Converts every *.svg under CORPUS_DIR (default: ../shared/corpus beside the repository) with
# `svgfigurer convert --fresh -o`, once with --no-compilable-swift and once with
# --compilable-swift, and prints for each how many of the written files parse clean with the
# tree-sitter Swift grammar and call only known API names (tests/swift-syntax/check.js). It
# builds nothing; SVGFIGURER_CLI points at another binary. A missing corpus is skipped with a
# message, not an error. Run scripts/swift-syntax-check once first to install the npm packages.
#
# Exit status: 0 when every compilable file passed, 1 when not, 2 for no binary or packages.
set -euo pipefail

root="$(cd "$(dirname "$0")/.." && pwd)"
corpus="${1:-${root}/../shared/corpus}"
cli="${SVGFIGURER_CLI:-${root}/build/release/src/cli/svgfigurer}"
checker="${root}/tests/swift-syntax"

if [[ ! -d "${corpus}" ]]; then
  echo "swift-syntax.sh: no corpus at ${corpus}: skipped"
  exit 0
fi
if [[ ! -x "${cli}" ]]; then
  echo "swift-syntax.sh: no svgfigurer at ${cli}; build it with: make build" >&2
  exit 2
fi
if [[ ! -d "${checker}/node_modules/tree-sitter-swift" ]]; then
  echo "swift-syntax.sh: no npm packages in ${checker}; run scripts/swift-syntax-check" >&2
  exit 2
fi

work="$(mktemp -d)"
trap 'rm -rf "${work}"' EXIT
find "${corpus}" -type f -name '*.svg' | LC_ALL=C sort >"${work}/list"

status=0
for setting in no-compilable-swift compilable-swift; do
  # Status 1 only says that some inputs did not parse as SVG; those write no file.
  "${cli}" convert --fresh "--${setting}" -o "${work}/${setting}" --files-from - --timeout 0 \
    <"${work}/list" 2>"${work}/${setting}.err" || [[ $? -eq 1 ]]
  summary="$(node "${checker}/check.js" --quiet "${work}/${setting}" || true)"
  notes="$(grep -c '^NOTE: ' "${work}/${setting}.err" || true)"
  echo "--${setting}: ${summary#swift check: }; ${notes} notes on standard error"
  if [[ "${setting}" == compilable-swift && "${summary}" != *" 0 failed" ]]; then status=1; fi
done
exit "${status}"
