#!/bin/bash
# thread.sh QUILL QUILL_DRIVER: from a file of cards to the list. quill brings the cards in without a
# window and names the one it cannot read; the window, driven, pages through them and finds one by the
# first letters of the name.
set -euo pipefail
quill=${1:?path of quill}
driver=${2:?path of quill-driver}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
unset DISPLAY WAYLAND_DISPLAY
home=$scratch/home

fail() {
  echo "FAILED: $1"
  cat "$scratch"/*.err 2>/dev/null || true
  exit 1
}

# Forty people "Person01, Ada" to "Person40, Ada", and between them a card that never names anybody.
write_cards() {
  local number
  for number in $(seq -w 40 -1 1); do
    printf 'BEGIN:VCARD\r\nVERSION:3.0\r\nN:Person%s;Ada;;;\r\nFN:Ada Person%s\r\n' "$number" "$number"
    printf 'TEL;TYPE=CELL:555-01%s\r\nORG:Works %s\r\nEND:VCARD\r\n' "$number" "$number"
    [[ $number != 20 ]] || printf 'BEGIN:VCARD\r\nVERSION:3.0\r\nX-NOTHING:\r\nEND:VCARD\r\n'
  done
}

# ask JSON...: one answer a line, the greeting left out.
ask() {
  printf '%s\n' "$@" | QT_QPA_PLATFORM=offscreen timeout 60 "$driver" --home "$home" \
    2>"$scratch/driver.err" | tail -n +2
}

holds() { [[ $1 == *"$2"* ]] || fail "no $2 in: $1"; }
lacks() { [[ $1 != *"$2"* ]] || fail "$2 in: $1"; }

write_cards >"$scratch/people.vcf"
code=0
timeout 60 "$quill" --home "$home" import "$scratch/people.vcf" >"$scratch/import.out" 2>&1 || code=$?
((code != 0)) || fail "the import says nothing of the empty card: $(cat "$scratch/import.out")"
holds "$(cat "$scratch/import.out")" people.vcf

names=$(timeout 60 "$quill" --home "$home" list)
[[ $(grep -c . <<<"$names") == 40 ]] || fail "the list has other than 40 names: $names"
[[ $(LC_ALL=C sort <<<"$names") == "$names" ]] || fail "the names are not in order: $names"

mapfile -t answers < <(ask '{"op":"list"}' \
  '{"op":"scroll","on":"view","code":"pagedown"}' '{"op":"list"}' \
  '{"op":"set","id":1028,"text":"Person3"}' '{"op":"click","id":1035}' '{"op":"list"}')
((${#answers[@]} == 6)) || fail "six orders, answers: ${answers[*]}"
for answer in "${answers[@]}"; do holds "$answer" '"ok":true'; done

holds "${answers[0]}" '"total":40'
holds "${answers[0]}" Person01
lacks "${answers[0]}" Person20
lacks "${answers[2]}" Person01
holds "${answers[2]}" Person20
holds "${answers[5]}" '"total":10'
holds "${answers[5]}" Person30
lacks "${answers[5]}" Person29
echo passed
