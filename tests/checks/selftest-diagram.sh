#!/bin/bash
# selftest-diagram.sh CHECK_DIAGRAM: the diagram check passes a true diagram and finds an arrow too many
# and one too few.
set -euo pipefail

checker=${1:?path of check-diagram}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$scratch/docs" "$scratch"/src/{low,middle,top/ui}
echo '#include "low/Ground.h"' >"$scratch/src/middle/Floor.h"
printf '#include "low/Ground.h"\n#include "middle/Floor.h"\n' >"$scratch/src/top/ui/Roof.cpp"
echo '#include "top/ui/Roof.h"' >"$scratch/src/main.cpp"
failures=0

try() {  # EXPECTED_CODE EXPECTED_TEXT ARROW...
  local output code=0
  { echo '```mermaid'; printf '  %s\n' "${@:3}"; echo '```'; } >"$scratch/docs/architecture.md"
  output=$("$checker" "$scratch") || code=$?
  if ((code != $1)) || [[ $output != *"$2"* ]]; then
    failures=$((failures + 1))
    echo "FAILED: $* ended with $code: $output"
  fi
}

try 0 '3 arrows' 'main[the program] --> top/ui' 'top/ui --> middle' 'middle --> low'
try 0 '4 arrows' 'main --> top/ui' 'top/ui --> low & middle' 'middle --> low'
try 0 '4 arrows' 'main --> top/ui' 'top/ui & middle --> low' 'top/ui --> middle'
try 1 'the arrow from middle to top/ui is no include' 'main --> top/ui' 'top/ui --> middle' 'middle --> low & top/ui'
try 1 'top/ui includes middle, to which no arrow leads' 'main --> top/ui' 'top/ui & middle --> low'
try 2 'no arrows' 'low'

echo "$failures failed"
((failures == 0))
