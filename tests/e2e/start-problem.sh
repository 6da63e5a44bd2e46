#!/bin/bash
# start-problem.sh QUILL CLOSE_WINDOW: a start that nobody watches and that cannot be, as from an icon
# on a home that cannot be written, shows a window that says so; it ends with 2 when that is closed.
set -euo pipefail

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

# within SECONDS COMMAND...: tries the command ten times a second until it succeeds.
within() {
  local tries=$(($1 * 10))
  shift
  until "$@"; do
    ((tries-- > 0)) || return 1
    sleep 0.1
  done
}

find_window() {
  window=$(xdotool search --onlyvisible --name "^Quill \(Quillbook\)$" 2>/dev/null | head -n 1)
  [[ -n $window ]]
}

has_ended() { ! kill -0 "$program" 2>/dev/null; }

mkfifo "$scratch/number"
Xvfb -displayfd 3 -noreset -screen 0 800x800x24 -nolisten tcp 3>"$scratch/number" 2>"$scratch/xvfb.err" &
server=$!
read -r -t 20 number <"$scratch/number" || fail "no X server"
unset WAYLAND_DISPLAY QT_SCALE_FACTOR
export DISPLAY=:$number HOME=$scratch XDG_RUNTIME_DIR=$scratch DBUS_SESSION_BUS_ADDRESS=disabled:

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
