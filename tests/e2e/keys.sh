#!/bin/bash
# keys.sh QUILL_DRIVER: a Korean name, a digit and an address by the keys of the input panel, tapped
# where they are painted; the search finds the person by them.
set -euo pipefail
driver=${1:?path of quill-driver}
scratch=$(mktemp -d)
driving=

cleanup() {
  [[ -z $driving ]] || kill "$driving" 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$scratch"
}
trap cleanup EXIT

fail() {
  echo "FAILED: $1"
  cat "$scratch/driver.err" 2>/dev/null || true
  exit 1
}

start_driver() {
  local ready=
  mkfifo "$scratch/orders" "$scratch/answers"
  QT_QPA_PLATFORM=offscreen "$driver" --home "$scratch/home" \
    <"$scratch/orders" >"$scratch/answers" 2>"$scratch/driver.err" &
  driving=$!
  exec 4>"$scratch/orders" 5<"$scratch/answers"
  read -r -t 30 -u 5 ready || true
  [[ $ready == *'"ready":true'* ]] || fail "the driver is not ready: $ready"
}

# order JSON: has the driver do it; its answer stands in $answer.
order() {
  echo "$1" >&4
  read -r -t 30 -u 5 answer || fail "no answer to $1"
  [[ $answer == *'"ok":true'* ]] || fail "$1 was answered $answer"
}

holds() { [[ $answer == *"$1"* ]] || fail "no $1 in: $answer"; }
lacks() { [[ $answer != *"$1"* ]] || fail "$1 in: $answer"; }

# tap_key LABEL: the key with this text, which stands in the panel's lines of the screen.
tap_key() {
  local place
  order '{"op":"texts","on":"screen"}'
  place=$(grep -o '{[^{}]*}' <<<"$answer" | grep -F "\"text\":\"$1\"" | awk '
    function value(key) {
      match($0, "\"" key "\":-?[0-9.]+")
      return substr($0, RSTART + length(key) + 3, RLENGTH - length(key) - 3)
    }
    { x = int(value("x") + value("w") / 2); y = int(value("y") + value("h") / 2)
      if (y >= 216 && y < 296) printf "\"x\":%d,\"y\":%d", x, y }')
  [[ -n $place ]] || fail "no key $1"
  order "{\"op\":\"tap\",\"on\":\"screen\",$place}"
}

tap_keys() {
  local key
  for key in "$@"; do tap_key "$key"; done
}

start_driver
order '{"op":"put","fields":{"FileAs":"김철수1 k@x.kr"}}'
order '{"op":"put","fields":{"FileAs":"김철호"}}'
order '{"op":"tap","on":"view","x":40,"y":12}'
order '{"op":"texts","on":"screen"}'
lacks '"text":"Space"'
order '{"op":"panel","up":true}'
tap_keys 한글 ㄱ ㅣ ㅁ ㅊ ㅓ ㄹ ㅅ
order '{"op":"get","id":1028}'
holds '"text":"김"' # the next syllable is still composed
tap_keys ㅜ 1 Space Abc k @ x . k r
order '{"op":"get","id":1028}'
holds '"text":"김철수1 k@x.kr"'
# A search finds what is typed, its last syllable half composed; another name it does not.
tap_key 한글
order '{"op":"set","id":1028,"text":""}'
tap_keys ㄱ ㅣ ㅁ ㅊ ㅓ ㄹ ㅅ ㅜ
order '{"op":"click","id":1035}'
order '{"op":"list"}'
holds '"search":"김철수"'
holds '"total":1'
order '{"op":"panel","up":false}'
order '{"op":"texts","on":"screen"}'
lacks '"text":"Space"'
echo passed
