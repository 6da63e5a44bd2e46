#!/bin/bash
# start-problem.sh QUILL CLOSE_WINDOW: a start that nobody watches and that cannot be, as from an icon
# on a home that cannot be written, shows a window that says so; it ends with 2 when that is closed.
set -euo pipefail
# shellcheck source=tests/e2e/window.sh
. "$(dirname "${BASH_SOURCE[0]}")/window.sh"

quill=${1:?path of quill}
close_window=${2:?path of the program that sends the delete message}
scratch=$(mktemp -d)
server=
program=

cleanup() {
  local pid
  for pid in $program $server; do kill "$pid" 2>/dev/null || true; done
  wait 2>/dev/null || true
  rm -rf "$scratch"
}
trap cleanup EXIT

fail() {
  echo "FAILED: $1"
  cat "$scratch"/*.err 2>/dev/null || true
  exit 1
}

has_ended() { ! kill -0 "$program" 2>/dev/null; }

start_server 800x800x24
unset WAYLAND_DISPLAY QT_SCALE_FACTOR
export HOME=$scratch XDG_RUNTIME_DIR=$scratch DBUS_SESSION_BUS_ADDRESS=disabled:

# The home is a file: nobody can make anything in it, whoever runs this.
touch "$scratch/home"
QT_QPA_PLATFORM=xcb "$quill" --home "$scratch/home" 2>"$scratch/quill.err" &
program=$!
within 30 find_window || fail "no window"
grep -q "^quill: cannot make the folder $scratch/home" "$scratch/quill.err" || fail "no word on the console"
has_ended && fail "the window is gone by itself"
"$close_window" "$window"
within 20 has_ended || fail "still running after the window was closed"
code=0
wait "$program" || code=$?
program=
((code == 2)) || fail "ended with $code"
echo passed
