#!/bin/bash
# xvfb.sh QUILL QUILL_DRIVER CLOSE_WINDOW SCALE: the program in a real X window, with real clicks.
#
# A virtual X server that no network reaches shows quill at SCALE. The window must have its title and
# size; Help and About are opened by clicks where quill-driver says they stand, and after each step
# the window must look as the driver's picture of the same step (a blinking cursor is let pass). The
# program is closed by the window manager's delete message with About still open, then once more by
# its own close button.
set -euo pipefail
# shellcheck source=tests/e2e/window.sh
. "$(dirname "${BASH_SOURCE[0]}")/window.sh"

quill=${1:?path of quill}
driver=${2:?path of quill-driver}
close_window=${3:?path of the program that sends the delete message}
scale=${4:?scale}

title='Quill (Quillbook)'
scratch=$(mktemp -d)
server=
program=
driving=

cleanup() {
  local pid
  for pid in $program $driving $server; do kill "$pid" 2>/dev/null || true; done
  wait 2>/dev/null || true
  [[ -n ${KEEP-} ]] || rm -rf "$scratch"
}
trap cleanup EXIT

fail() {
  echo "FAILED at scale $scale: $1"
  cat "$scratch/quill.err" 2>/dev/null || true
  exit 1
}

# Nothing of the caller's desktop reaches the program.
set_environment() {
  unset WAYLAND_DISPLAY QT_SCALE_FACTOR
  export HOME=$scratch XDG_RUNTIME_DIR=$scratch/runtime LC_ALL=C.UTF-8
  export DBUS_SESSION_BUS_ADDRESS=disabled:
  mkdir -m 700 "$scratch/runtime"
}

start_quill() {
  QT_QPA_PLATFORM=xcb "$quill" --home "$scratch/home" --scale "$scale" 2>"$scratch/quill.err" &
  program=$!
  within 30 find_window || fail "no window called $title"
}

check_size() {
  local expected actual
  expected=$(awk -v k="$scale" 'BEGIN { printf "%dx%d", 240 * k, 320 * k }')
  actual=$(xdotool getwindowgeometry --shell "$window" |
    awk -F = '$1 == "WIDTH" { w = $2 } $1 == "HEIGHT" { print w "x" $2 }')
  [[ $actual == "$expected" ]] || fail "the window is $actual, not $expected"
}

start_driver() {
  mkfifo "$scratch/orders" "$scratch/answers"
  QT_QPA_PLATFORM=offscreen "$driver" --home "$scratch/driven" --scale "$scale" \
    <"$scratch/orders" >"$scratch/answers" 2>"$scratch/driver.err" &
  driving=$!
  exec 4>"$scratch/orders" 5<"$scratch/answers"
  local ready=
  read -r -t 30 -u 5 ready || true
  [[ $ready == *'"ready":true'* ]] || fail "the driver is not ready: $ready"
}

# order JSON: has the driver do it; its answer stands in $answer.
order() {
  echo "$1" >&4
  read -r -t 30 -u 5 answer || fail "no answer to $1"
  [[ $answer == *'"ok":true'* ]] || fail "$1 was answered $answer"
}

# place_of TEXT: logical screen coordinates of the middle of a text that is shown, as "X Y".
place_of() {
  order '{"op":"texts","on":"screen"}'
  grep -o '{[^{}]*}' <<<"$answer" | grep -F "\"text\":\"$1\"" | tail -n 1 | awk '
    function value(key) {
      match($0, "\"" key "\":-?[0-9.]+")
      return substr($0, RSTART + length(key) + 3, RLENGTH - length(key) - 3)
    }
    { printf "%d %d", value("x") + value("w") / 2, value("y") + value("h") / 2 }'
}

# tap X Y: in the real window and in the driven one.
tap() {
  local x y
  read -r x y < <(awk -v k="$scale" -v x="$1" -v y="$2" 'BEGIN { printf "%d %d\n", x * k, y * k }')
  xdotool mousemove --window "$window" "$x" "$y" click 1
  order "{\"op\":\"tap\",\"on\":\"screen\",\"x\":$1,\"y\":$2}"
}

tap_text() {
  local place
  place=$(place_of "$1")
  [[ -n $place ]] || fail "$1 is not shown: $answer"
  # shellcheck disable=SC2086
  tap $place
}

# Per cent of pixels that differ visibly between two pictures; 100 when they cannot be compared.
difference() {
  local pixels size
  pixels=$(compare -metric AE -fuzz 5% "$1" "$2" null: 2>&1 || true)
  size=$(identify -format '%w %h' "$1")
  awk -v pixels="$pixels" -v size="$size" 'BEGIN {
    split(size, side, " ")
    print pixels ~ /^[0-9.e+]+$/ ? 100 * pixels / (side[1] * side[2]) : 100 }'
}

looks_driven() {
  import -window "$window" "$scratch/$1-real.png"
  [[ $(identify -format '%wx%h' "$scratch/$1-real.png" "$scratch/$1.png" | sort -u | wc -l) == 1 ]] &&
    awk -v d="$(difference "$scratch/$1-real.png" "$scratch/$1.png")" 'BEGIN { exit d >= 0.2 }'
}

# same_picture NAME: the real window comes to look as the driver's picture of this step.
same_picture() {
  order "{\"op\":\"screenshot\",\"file\":\"$scratch/$1.png\",\"scale\":$scale}"
  within 10 looks_driven "$1" ||
    fail "$1 differs by $(difference "$scratch/$1-real.png" "$scratch/$1.png") per cent"
}

different_pictures() {
  awk -v d="$(difference "$scratch/$1-real.png" "$scratch/$2-real.png")" 'BEGIN { exit d < 1 }' ||
    fail "$1 and $2 look the same"
}

has_ended() { ! kill -0 "$program" 2>/dev/null; }

ends_well() {
  local code=0
  within 20 has_ended || fail "still running after $1"
  wait "$program" || code=$?
  program=
  ((code == 0)) || fail "exit code $code after $1"
}

open_about() {
  tap_text Help
  same_picture menu
  tap_text "About $title..."
  same_picture about
}

start_server 1024x1100x24
set_environment
start_driver

start_quill
check_size
same_picture frame
open_about
different_pictures frame menu
different_pictures frame about
"$close_window" "$window"
ends_well "the delete message"

order '{"op":"cancel"}'
start_quill
same_picture again
tap 228 13
ends_well "a tap on the close button"
echo "passed at scale $scale"
