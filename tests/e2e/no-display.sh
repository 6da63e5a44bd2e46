#!/bin/bash
# no-display.sh QUILL: without any display the program says so, says how to look at it all the same,
# and ends with 2; what needs no window works as ever.
set -euo pipefail
quill=${1:?path of quill}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM

code=0
timeout 20 "$quill" --home "$scratch/home" 2>"$scratch/err" || code=$?
((code == 2)) || { echo "FAILED: ended with $code"; cat "$scratch/err"; exit 1; }
grep -q 'display' "$scratch/err" || { echo "FAILED: no word of a display"; exit 1; }
grep -q 'quill-driver' "$scratch/err" || { echo "FAILED: no word of how to look"; exit 1; }

timeout 20 "$quill" --version >"$scratch/out" || { echo "FAILED: --version ended with $?"; exit 1; }
grep -q '[0-9]' "$scratch/out" || { echo "FAILED: --version printed no number"; exit 1; }
