// The keys of the window: one table, from which the screen runs commands and the help is written.
#pragma once

#include <QKeyCombination>
#include <QString>
#include <QStringView>

#include <array>
#include <span>
#include <vector>

namespace quill {

// Where keys work. Everywhere is below any window that has no other use for them.
enum class ShortcutPlace { Everywhere, List, Menu, Sheet, Row, Calendar, Files, Note };

struct Shortcut {
  ShortcutPlace Place;
  QStringView Keys;  // as the help shows them
  QStringView Does;  // one line
  // The command that the screen runs for these keys; 0: the place itself takes them. Unused
  // combinations are Qt::Key_unknown.
  int Command = 0;
  std::array<QKeyCombination, 3> Combinations = {Qt::Key_unknown, Qt::Key_unknown, Qt::Key_unknown};
};

std::span<const Shortcut> Shortcuts();

// How the help calls a place.
QStringView NameOf(ShortcutPlace place);

// The commands of a key, in the table's order; several where which one is meant depends on what the
// window shows. The keypad's keys count as the others.
std::vector<int> CommandsOfKey(int key, Qt::KeyboardModifiers modifiers);

}  // namespace quill
