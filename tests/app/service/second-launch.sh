#!/usr/bin/env bash
# A second launch of the desktop program with a file hands the file to the first instance
# and exits at once; the first opens it. Runs inside a session bus of its own.
#   tests/app/service/second-launch.sh path/to/svgfigurer-app
set -euo pipefail
if [ "${SVGFIGURER_PRIVATE_BUS:-}" != 1 ]; then
  exec env SVGFIGURER_PRIVATE_BUS=1 dbus-run-session -- "$0" "$@"
fi

app=$(realpath "${1:?usage: second-launch.sh SVGFIGURER-APP}")
work=$(mktemp -d)
first=
cleanup() {
  if [ -n "$first" ]; then kill "$first" 2>/dev/null || true; wait "$first" 2>/dev/null || true; fi
  rm -rf "$work"
}
trap cleanup EXIT
fail() {
  echo "second-launch: $*" >&2
  echo "--- first instance:" >&2; cat "$work/first.log" >&2
  exit 1
}

export QT_QPA_PLATFORM=offscreen QTWEBENGINE_CHROMIUM_FLAGS="--no-sandbox --disable-gpu"
export LOGLEVEL=log XDG_CONFIG_HOME=$work/config
printf '%s\n' '<svg xmlns="http://www.w3.org/2000/svg" width="20" height="20"><circle r="5"/></svg>' \
  >"$work/second.svg"

owned() {
  dbus-send --session --print-reply --dest=org.freedesktop.DBus /org/freedesktop/DBus \
    org.freedesktop.DBus.NameHasOwner string:net.quivane.SVGFigurer | grep -q 'boolean true'
}
waitFor() {  # waitFor SECONDS COMMAND...
  local tries=$(($1 * 10)); shift
  until "$@"; do
    tries=$((tries - 1))
    [ "$tries" -gt 0 ] || return 1
    sleep 0.1
  done
}

"$app" >"$work/first.log" 2>&1 &
first=$!
waitFor 60 owned || fail "the first instance did not take the bus name"

timeout 60 "$app" "$work/second.svg" >"$work/second.log" 2>&1 ||
  fail "the second launch did not exit cleanly: $(cat "$work/second.log")"
grep -q 'did register service:' "$work/second.log" &&
  fail "the second launch registered a service of its own"
kill -0 "$first" 2>/dev/null || fail "the first instance is gone"

waitFor 30 grep -q "^  open SVG: file://$work/second.svg second.svg" "$work/first.log" ||
  fail "the first instance did not take the file"
sleep 2
grep -q '^OPEN ERROR:' "$work/first.log" && fail "the first instance could not open a window"
echo "second-launch: ok"
