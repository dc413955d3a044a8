#!/usr/bin/env bash
# Starts the desktop program under Xvfb on each sample, takes a picture of its window once the
# preview has rendered, and checks that the preview area is not blank.
#   screenshots.sh APP CLI CHECKER OUTDIR
set -euo pipefail
app="$1" cli="$2" checker="$3" out="$4"
mkdir -p "${out}"
export QTWEBENGINE_CHROMIUM_FLAGS="${QTWEBENGINE_CHROMIUM_FLAGS:---no-sandbox --disable-gpu}"
export XDG_CONFIG_HOME="$(mktemp -d)"
unset QT_QPA_PLATFORM
failed=0
while IFS= read -r name; do
  png="${out}/$(echo "${name}" | tr ' ' '-').png"
  if ! area=$(xvfb-run -a -s "-screen 0 1400x900x24" "${app}" --sample "${name}" --screenshot "${png}" \
                | sed -n 's/^preview: //p'); then
    echo "FAILED: ${name}: the program did not take its picture"
    failed=1
    continue
  fi
  # shellcheck disable=SC2086
  if ! "${checker}" "${png}" ${area}; then
    echo "FAILED: ${name}: the preview is blank"
    failed=1
  fi
done < <("${cli}" samples)
rm -rf "${XDG_CONFIG_HOME}"
exit "${failed}"
