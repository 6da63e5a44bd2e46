#include "platform/Shortcuts.h"

#include <QFile>

#include <gtest/gtest.h>

#include <set>

#include "resources/Ids.h"
#include "resources/KeyCommandIds.h"

namespace quill {
namespace {

QString Page() {
  QString page = QStringLiteral(
      "# Keys\n\nEverything but writing by hand can be done without a pen. `quill --help` prints "
      "the "
      "same list.\n");
  std::optional<ShortcutPlace> place;
  for (const Shortcut& shortcut : Shortcuts()) {
    if (place != shortcut.Place)
      page += QStringLiteral("\n## %1\n\n| keys | what they do |\n|---|---|\n")
                  .arg(NameOf(shortcut.Place));
    place = shortcut.Place;
    page += QStringLiteral("| %1 | %2 |\n").arg(shortcut.Keys).arg(shortcut.Does);
  }
  return page;
}

TEST(Shortcuts, TheDocumentHasThemAll) {
  QFile document(QStringLiteral(QUILL_DOCS "/shortcuts.md"));
  ASSERT_TRUE(document.open(QIODevice::ReadOnly));
  EXPECT_EQ(QString::fromUtf8(document.readAll()).toStdString(), Page().toStdString());
}

TEST(Shortcuts, EachPlaceStandsTogether) {
  std::set<ShortcutPlace> seen;
  std::optional<ShortcutPlace> before;
  for (const Shortcut& shortcut : Shortcuts()) {
    if (shortcut.Place != before) {
      EXPECT_TRUE(seen.insert(shortcut.Place).second) << shortcut.Keys.toString().toStdString();
    }
    before = shortcut.Place;
  }
}

TEST(Shortcuts, ARowWithACommandHasItsKeysAndAnyOtherHasNone) {
  for (const Shortcut& shortcut : Shortcuts())
    EXPECT_EQ(shortcut.Combinations[0] != QKeyCombination(Qt::Key_unknown), shortcut.Command != 0)
        << shortcut.Keys.toString().toStdString();
}

TEST(Shortcuts, AKeyFindsItsCommandsInTheirOrder) {
  EXPECT_EQ(CommandsOfKey(Qt::Key_N, Qt::ControlModifier), std::vector<int>{ID_FILE_NEW});
  EXPECT_EQ(CommandsOfKey(Qt::Key_Delete, Qt::NoModifier),
            (std::vector<int>{ID_DELETE_ITEMS, ID_DELETE_MEMO}));
  EXPECT_EQ(CommandsOfKey(Qt::Key_4, Qt::ControlModifier), std::vector<int>{ID_KEY_INDEX_LAST - 1});
}

TEST(Shortcuts, OtherModifiersAreOtherKeys) {
  EXPECT_TRUE(CommandsOfKey(Qt::Key_N, Qt::NoModifier).empty());
  EXPECT_EQ(CommandsOfKey(Qt::Key_F10, Qt::NoModifier), std::vector<int>{ID_KEY_MENU_BAR});
  EXPECT_EQ(CommandsOfKey(Qt::Key_F10, Qt::ShiftModifier), std::vector<int>{ID_KEY_CONTEXT_MENU});
  EXPECT_EQ(CommandsOfKey(Qt::Key_F10, Qt::ControlModifier), std::vector<int>{ID_KEY_TITLE_MENU});
}

TEST(Shortcuts, TheKeypadCountsAsTheOtherKeys) {
  EXPECT_EQ(CommandsOfKey(Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier),
            std::vector<int>{ID_SHELL_LARGER});
  EXPECT_EQ(CommandsOfKey(Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier),
            std::vector<int>{ID_KEY_OK});
}

}  // namespace
}  // namespace quill
