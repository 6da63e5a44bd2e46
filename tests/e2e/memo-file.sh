#!/bin/bash
# memo-file.sh QUILL: memo files on the command line, of the program that opens the window and of one
# that finds it open. Files from elsewhere are copied into the memo folder, never over another.
set -euo pipefail

quill=${1:?path of quill}
scratch=$(mktemp -d)
program=
trap '[[ -z $program ]] || kill "$program" 2>/dev/null || true; rm -rf "$scratch"' EXIT
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$scratch
memos="$scratch/home/My Documents/Fennick"

fail() {
  echo "FAILED: $1"
  cat "$scratch/log"
  exit 1
}

# Waits until a memo has this content.
has() {  # NAME CONTENT
  local tries
  for ((tries = 300; tries > 0; --tries)); do
    [[ ! -f $memos/$1 || $(cat "$memos/$1") != "$2" ]] || return 0
    sleep 0.1
  done
  fail "$1 does not hold $2"
}

mkdir -p "$memos" "$scratch/elsewhere"
printf 'there already' > "$memos/b.pwi"
printf 'one' > "$scratch/elsewhere/a.pwi"
printf 'two' > "$scratch/elsewhere/b.pwi"

"$quill" --home "$scratch/home" "$scratch/elsewhere/a.pwi" > "$scratch/log" 2>&1 &
program=$!
has a.pwi one
"$quill" --home "$scratch/home" "$scratch/elsewhere/b.pwi" || fail "the open window took no memo"
has 'b (2).pwi' two
has b.pwi 'there already'
"$quill" --home "$scratch/home" "$memos/b.pwi" || fail "the open window took no memo of its own"
[[ $(find "$memos" -name '*.pwi' | wc -l) == 3 ]] || fail "there are other files: $(ls "$memos")"
kill -0 "$program" || fail "the window is gone"
echo "memo files are taken by a window and handed over to it"
