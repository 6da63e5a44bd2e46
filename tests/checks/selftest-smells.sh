#!/bin/bash
# selftest-smells.sh CHECK_SMELLS: every smell check passes a clean tree and its near misses, and
# finds each bad sample, naming the file.
set -euo pipefail

checker=${1:?path of check-smells}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cases=0
failures=0
declare -A sampled

# A tree that every check is content with.
clean_tree() {
  rm -rf "$scratch/tree"
  mkdir -p "$scratch/tree/src/resources" "$scratch/tree/src/store"
  cd "$scratch/tree"
  echo 'inline constexpr int ID_FILE_NEW = 57600;' >src/resources/Ids.h
  echo 'inline constexpr int ID_KEY_OK = 60100;' >src/resources/KeyCommandIds.h
  echo 'inline constexpr auto kFields = {"BusinessFaxNumber", "HomeFaxNumber"};' >src/store/Fields.h
}

try() {  # EXPECTED_CODE CHECK FILE: the tree stands ready
  local output code=0
  cases=$((cases + 1))
  output=$("$checker" "$2" "$scratch/tree") || code=$?
  if ((code != $1)) || { ((code == 1)) && [[ $output != *"$3"* ]]; }; then
    failures=$((failures + 1))
    echo "FAILED: $2 on $3 ended with $code, not $1: ${output:-no output}"
    sed 's/^/  | /' "$scratch/tree/$3" | head -n 3
  fi
}

write_sample() {  # FILE, the text on standard input
  clean_tree
  mkdir -p "$(dirname "$1")"
  cat >"$1"
}

bad() {  # CHECK FILE [TEXT], without TEXT it comes on standard input
  sampled[$1]=1
  if (($# > 2)); then write_sample "$2" <<<"$3"; else write_sample "$2"; fi
  try 1 "$1" "$2"
}

fine() {
  if (($# > 2)); then write_sample "$2" <<<"$3"; else write_sample "$2"; fi
  try 0 "$1" "$2"
}

lines() { for ((i = 1; i <= $1; i++)); do echo "${2:-int line}$i;"; done; }
handler() { printf 'void CView::%s(QPaintEvent* event) {\n' "$1"; lines "$2" "  Draw"; echo '}'; }

checks=$("$checker" --list)
for check in $checks; do
  clean_tree
  try 0 "$check" src/store/Fields.h
done

bad one-field-table src/exchange/Cards.cpp 'Put(u"BusinessFaxNumber", number);'
fine one-field-table src/exchange/Cards.cpp '// "BusinessFaxNumber" is one of them'

bad bare-ids src/list/Commands.cpp 'if (id == 57600) return;'
bad bare-ids src/list/Commands.cpp 'if (id == 60100) return;'
bad bare-ids src/list/Commands.cpp 'auto* edit = Control(1028);'
fine bare-ids src/list/Commands.cpp 'if (count == 157600) Control(ContactsViewIds::kSearchEdit);'

bad test-hooks src/list/Tap.h 'void AdvanceForTest();'
bad test-hooks src/list/Tap.h 'class FakeClock;'
bad test-hooks src/list/Tap.h 'auto answer = mockPrompt;'
bad test-hooks src/list/Tap.h 'void setNextAnswer(int button);'
bad test-hooks src/list/Tap.h '  friend class TapMachineTest;'
bad test-hooks src/list/Tap.h 'auto* list = screen->findChild<QWidget*>();'
bad test-hooks src/list/Tap.h '#ifdef UNIT_TEST'
fine test-hooks src/list/Tap.h '// A test hooks in from outside: no fake stands here.'

bad device-calls src/list/Page.cpp 'auto now = QDateTime::currentDateTime();'
bad device-calls src/list/Page.cpp 'auto now = QDate::currentDate();'
bad device-calls src/list/Page.cpp 'QSettings settings;'
bad device-calls src/list/ui/Page.cpp '#include <QMessageBox>'
fine device-calls src/platform/Clock.cpp 'return QDateTime::currentDateTime();'
fine device-calls src/list/Page.cpp 'ShowSettings(g_services.Clock->Now());'

bad file-calls src/exchange/Import.cpp 'QFile file(name);'
bad file-calls src/list/Page.cpp 'std::ifstream in(name);'
fine file-calls src/store/pim/Migration.cpp 'QFile::copy(name, copy);'
fine file-calls src/exchange/Import.cpp 'void Import(QIODevice& file);'

bad shell-statics src/list/ui/Look.cpp 'QFont g_font;'
bad shell-statics src/list/ui/Look.cpp '  static QPixmap arrow(u":/arrow.png"_qs);'
bad shell-statics src/list/ui/Look.cpp '  static const QIcon icon = Load();'
bad shell-statics src/list/ui/Look.cpp 'static QObject* g_owner = nullptr;'
bad shell-statics src/list/ui/Look.cpp 'Q_GLOBAL_STATIC(QFont, theFont)'
fine shell-statics src/list/ui/Look.cpp '  const QFont font = MakeFont();'
fine shell-statics src/list/ui/Look.cpp 'static QFont MakeFont(int pixels);'
fine shell-statics src/list/ui/Look.cpp 'QFont MakeFont(int pixels) {'

bad sleeping-tests tests/list/TapTest.cpp 'QTest::qWait(500);'
bad sleeping-tests tests/list/TapTest.cpp 'std::this_thread::sleep_for(500ms);'
bad sleeping-tests tests/list/TapTest.cpp 'QThread::msleep(500);'
fine sleeping-tests tests/list/TapTest.cpp 'timers.Advance(500);  // no sleep'

bad junk-drawers src/list/utils.h '#pragma once'
bad junk-drawers src/list/TextHelpers.cpp 'int x;'
bad junk-drawers src/common/Text.h '#pragma once'
bad junk-drawers tests/support/Misc.cpp 'int x;'
bad junk-drawers src/list/SelectionManager.h '#pragma once'
fine junk-drawers src/list/CommonName.h '#pragma once'

bad sizes src/list/Long.h < <(lines 161)
bad sizes src/list/Long.cpp < <(lines 401)
bad sizes tests/list/LongTest.cpp < <(lines 401)
bad sizes src/main.cpp < <(lines 61)
fine sizes src/list/Long.h < <(lines 160)
fine sizes src/list/Long.cpp < <(lines 400)

bad god-view src/list/ui/ContactsView.cpp < <(lines 400)
bad god-view src/list/ui/ContactsView.h < <(for i in {1..41}; do echo "  void Do$i(int id);"; done)
fine god-view src/list/ui/ContactsView.h < <(for i in {1..40}; do echo "  void Do$i(int id);"; done)

bad thick-handlers src/list/ui/List.cpp < <(handler paintEvent 11)
bad thick-handlers src/list/ui/List.cpp < <(handler Small 2; handler mousePressEvent 11)
fine thick-handlers src/list/ui/List.cpp < <(handler paintEvent 10; handler Layout 30)

clean_tree
mkdir -p src/list/ui src/memo/ui
lines 8 'Same' | tee src/list/ui/One.cpp >src/memo/ui/Two.cpp
sampled[copied-windows]=1
try 1 copied-windows src/memo/ui/Two.cpp
{ lines 7 'Same'; echo 'other;'; } >src/memo/ui/Two.cpp
try 0 copied-windows src/memo/ui/Two.cpp
{ lines 4 'Same'; printf '}\n\n#include <QRect>\n// why\n'; lines 8 'Same' | tail -n 4; } >src/memo/ui/Two.cpp
try 1 copied-windows src/memo/ui/Two.cpp
{ lines 30 '#include "a'; lines 30 '} // namespace '; } | tee src/list/ui/One.cpp >src/memo/ui/Two.cpp
try 0 copied-windows src/memo/ui/Two.cpp

flags() { echo "class CView {"; for ((i = 1; i <= $1; i++)); do echo "  bool m_flag$i = false;"; done; }
bad flag-soup src/list/Tap.h < <(flags 4; echo '};')
fine flag-soup src/list/Tap.h < <(flags 3; echo '};'; flags 3; echo '};')

bad machine-paths docs/notes.md "Look into /ho""me/somebody/quill."
bad machine-paths tools/look "cd /wo""rk/main"
# shellcheck disable=SC2016
fine machine-paths docs/notes.md 'Look into build/release, or $HOME/.local, or http://host/home/x.'
fine machine-paths tests/app/PlacesTest.cpp 'Expect("/home/ann", "/home/ann/.config");'

bad leftovers src/list/Page.cpp "// TO""DO: sort"
fine leftovers src/list/Page.cpp '// autodolist'

for check in $checks; do
  [[ -n ${sampled[$check]-} ]] || { echo "FAILED: $check has no bad sample"; failures=$((failures + 1)); }
done
code=0
"$checker" no-such-check "$scratch/tree" >/dev/null || code=$?
((code == 2)) || { echo "FAILED: an unknown check ended with $code"; failures=$((failures + 1)); }

echo "$cases cases, $failures failed"
((failures == 0))
