#!/bin/bash
# selftest-rooms.sh CHECK_ROOMS QT_INCLUDE_FOLDER: the room check passes what is allowed and finds
# each kind of breach, naming the line.
set -euo pipefail

checker=${1:?path of check-rooms}
qt=${2:?folder of the Qt modules}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/docs"
cp "$(dirname "$checker")/../docs/architecture.md" "$scratch/docs"
cases=0
failures=0

try() {  # EXPECTED_CODE FILE INCLUDE
  local output code=0
  rm -rf "$scratch/src"
  mkdir -p "$(dirname "$scratch/src/$2")"
  printf '#pragma once\n#include %s\n' "$3" >"$scratch/src/$2"
  output=$("$checker" "$scratch" "$qt") || code=$?
  cases=$((cases + 1))
  if ((code != $1)) || { ((code == 1)) && [[ $output != *"src/$2:2: "* ]]; }; then
    failures=$((failures + 1))
    echo "FAILED: $2 with $3 ended with $code, not $1: $output"
  fi
}

bad() { try 1 "$@"; }
fine() { try 0 "$@"; }

fine list/Page.h '"store/ContactRecord.h"'
fine list/Page.h '"list/ListState.h"'
fine list/Page.h '<QString>'
fine list/Page.h '<vector>'
fine ink/Raster.cpp '<QImage>'
fine app/Request.cpp '<QLocalServer>'
fine app/Program.cpp '"store/pim/PimStore.h"'
fine cli/Import.cpp '"store/pim/PimStore.h"'
fine store/pim/Schema.cpp '<sqlite3.h>'
fine list/ui/ContactsView.cpp '"exchange/VCard.h"'
fine list/ui/ContactsView.cpp '"platform/ui/Screen.h"'
fine list/ui/ContactsView.cpp '<QWidget>'
fine store/ui/CategoryChooser.cpp '"platform/ui/Dialog.h"'
fine settings/ui/ConfigDlg.cpp '"store/ui/CategoryChooser.h"'

bad store/Record.h '"list/ListState.h"'
bad list/Page.cpp '"list/ui/ContactsView.h"'
bad list/Page.cpp '"platform/ui/Screen.h"'
bad platform/ui/Screen.cpp '"list/ui/ContactsView.h"'
bad store/ui/CategoryChooser.cpp '"settings/ui/ConfigDlg.h"'
bad exchange/Import.cpp '"store/pim/PimStore.h"'
bad app/ui/Shell.cpp '"store/pim/PimStore.h"'
bad list/Page.cpp '"ListState.h"'
bad list/Page.cpp '"../store/ContactRecord.h"'
bad list/Page.cpp '"cupboard/Thing.h"'
bad cupboard/Thing.h '<QString>'
bad list/Page.cpp '<QWidget>'
bad list/Page.cpp '<QFontMetricsF>'
bad list/Page.cpp '<QLocalServer>'
bad ink/Raster.cpp '<QWidget>'
bad list/Page.cpp '<qpainter.h>'
bad list/ui/ContactsView.cpp '<QtWidgets/QWidget>'
bad list/Page.cpp '<QtCore/QString>'
bad list/Page.cpp '<sqlite3.h>'

code=0
rm -rf "$scratch/src"
mkdir "$scratch/src"
"$checker" "$scratch" "$qt" >/dev/null || code=$?
((code == 2)) || { echo "FAILED: an empty tree ended with $code"; failures=$((failures + 1)); }

echo "$cases cases, $failures failed"
((failures == 0))
