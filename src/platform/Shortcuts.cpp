#include "platform/Shortcuts.h"

#include <algorithm>

#include "resources/Ids.h"
#include "resources/KeyCommandIds.h"

namespace quill {

namespace {

using enum ShortcutPlace;
constexpr auto kNone = QKeyCombination(Qt::Key_unknown);

constexpr QKeyCombination Ctrl(Qt::Key key) { return Qt::CTRL | key; }

constexpr auto kShortcuts = std::to_array<Shortcut>({
    {Everywhere,
     u"Ctrl+Return",
     u"what OK in the title bar does",
     ID_KEY_OK,
     {Ctrl(Qt::Key_Return), Ctrl(Qt::Key_Enter), kNone}},
    {Everywhere, u"Return", u"OK, or the button that has the focus"},
    {Everywhere, u"Escape", u"cancel; beside a notice in the title bar, what a tap on it does"},
    {Everywhere,
     u"Ctrl+W",
     u"close the window, the program if it is the only one",
     ID_KEY_CLOSE,
     {Ctrl(Qt::Key_W), kNone, kNone}},
    {Everywhere, u"Tab, Shift+Tab", u"go to the next control, to the one before"},
    {Everywhere, u"F10, Alt", u"open the menu bar", ID_KEY_MENU_BAR, {Qt::Key_F10, kNone, kNone}},
    {Everywhere,
     u"Ctrl+F10",
     u"open the title bar's menu: import, export, size",
     ID_KEY_TITLE_MENU,
     {Ctrl(Qt::Key_F10), kNone, kNone}},
    {Everywhere,
     u"Shift+F10, Menu",
     u"open the menu of a tap-and-hold",
     ID_KEY_CONTEXT_MENU,
     {Qt::SHIFT | Qt::Key_F10, Qt::Key_Menu, kNone}},
    {Everywhere,
     u"F9",
     u"show or hide the keys for the pen",
     ID_SHELL_INPUT_PANEL,
     {Qt::Key_F9, kNone, kNone}},
    {Everywhere, u"F11", u"full screen", ID_SHELL_FULL_SCREEN, {Qt::Key_F11, kNone, kNone}},
    {Everywhere,
     u"Ctrl++",
     u"larger",
     ID_SHELL_LARGER,
     {Ctrl(Qt::Key_Plus), Ctrl(Qt::Key_Equal), Qt::CTRL | Qt::SHIFT | Qt::Key_Plus}},
    {Everywhere, u"Ctrl+-", u"smaller", ID_SHELL_SMALLER, {Ctrl(Qt::Key_Minus), kNone, kNone}},
    {Everywhere, u"F4, Alt+Down", u"open a date's calendar, a time's or a choice's list"},
    {Everywhere, u"Ctrl+R, Ctrl+D", u"restore or discard what a bar offers as unsaved"},

    {List, u"Up, Down, PageUp, PageDown, Home, End", u"go to another row"},
    {List, u"Shift+Up, Shift+Down, ...", u"select several rows of the page"},
    {List, u"Return", u"open the selected contact or memo"},
    {List, u"Right", u"show the contact's summary card"},
    {List, u"Delete", u"delete what is selected", ID_DELETE_ITEMS, {Qt::Key_Delete, kNone, kNone}},
    {List,
     u"Delete, by memo",
     u"delete the selected memo",
     ID_DELETE_MEMO,
     {Qt::Key_Delete, kNone, kNone}},
    {List,
     u"Ctrl+N",
     u"begin a new contact, by memo a new memo",
     ID_FILE_NEW,
     {Ctrl(Qt::Key_N), kNone, kNone}},
    {List, u"Ctrl+F", u"go to the search box", ID_KEY_SEARCH, {Ctrl(Qt::Key_F), kNone, kNone}},
    {List, u"Down, in the search box", u"go on to the list"},
    {List,
     u"Ctrl+G",
     u"open the menu of categories",
     ID_KEY_CATEGORIES,
     {Ctrl(Qt::Key_G), kNone, kNone}},
    {List,
     u"Ctrl+1",
     u"the index strip's first button",
     ID_KEY_INDEX_FIRST,
     {Ctrl(Qt::Key_1), kNone, kNone}},
    {List, u"Ctrl+2", u"the second", ID_KEY_INDEX_FIRST + 1, {Ctrl(Qt::Key_2), kNone, kNone}},
    {List, u"Ctrl+3", u"the third", ID_KEY_INDEX_FIRST + 2, {Ctrl(Qt::Key_3), kNone, kNone}},
    {List, u"Ctrl+4", u"the fourth", ID_KEY_INDEX_FIRST + 3, {Ctrl(Qt::Key_4), kNone, kNone}},
    {List, u"Ctrl+5", u"the last", ID_KEY_INDEX_LAST, {Ctrl(Qt::Key_5), kNone, kNone}},

    {Menu, u"Up, Down, Home, End", u"go to another item"},
    {Menu, u"Left, Right", u"close or open a submenu; in the menu bar, go to another menu"},
    {Menu, u"a letter", u"go to the next item that begins with it"},
    {Menu, u"Return, Space", u"choose the item"},
    {Menu, u"Escape", u"close the menu"},

    {Sheet, u"Ctrl+PageDown, Ctrl+PageUp", u"go to another page"},
    {Sheet, u"Up, Down, Tab, Shift+Tab", u"edit another row"},
    {Sheet, u"a letter", u"begin the first row with it, where no row is edited"},
    {Sheet, u"Escape", u"end the edit of a row or of its parts, then cancel"},
    {Sheet, u"Space", u"open the row's parts or the choice of categories"},

    {Row, u"Up, Down, Home, End", u"go to another row of an appointment"},
    {Row, u"Return, Space", u"change it"},
    {Row, u"Space", u"check or uncheck a category"},

    {Calendar, u"arrow keys", u"go to another day or week"},
    {Calendar, u"PageUp, PageDown", u"go to another month, with Ctrl to another year"},
    {Calendar, u"Home, End", u"go to the month's first or last day"},
    {Calendar, u"Return", u"choose the day"},

    {Files, u"Up, Down, PageUp, PageDown, Home, End", u"go to another file"},
    {Files, u"Return", u"open the folder, take the file"},
    {Files, u"Backspace", u"go to the folder above"},

    {Note, u"Ctrl+Z, Ctrl+Shift+Z", u"undo, redo"},
    {Note, u"Ctrl+X, Ctrl+C, Ctrl+V, Ctrl+A", u"cut, copy, paste, select all"},
    {Note, u"PageUp, PageDown", u"scroll"},
    {Note,
     u"Ctrl+T",
     u"let the pen select instead of write, and back",
     ID_INK_TOGGLE,
     {Ctrl(Qt::Key_T), kNone, kNone}},
    {Note, u"Ctrl+L", u"look closer, and back", ID_INK_MODE, {Ctrl(Qt::Key_L), kNone, kNone}},
});

}  // namespace

std::span<const Shortcut> Shortcuts() { return kShortcuts; }

QStringView NameOf(ShortcutPlace place) {
  switch (place) {
    case Everywhere:
      return u"Everywhere";
    case List:
      return u"In the list of contacts or memos";
    case Menu:
      return u"In a menu";
    case Sheet:
      return u"In a contact";
    case Row:
      return u"In rows of an appointment and in check lists";
    case Calendar:
      return u"In a calendar";
    case Files:
      return u"In a list of files";
    case Note:
      return u"In a note";
  }
  Q_UNREACHABLE();
}

std::vector<int> CommandsOfKey(int key, Qt::KeyboardModifiers modifiers) {
  const QKeyCombination pressed(modifiers & ~Qt::KeypadModifier, static_cast<Qt::Key>(key));
  std::vector<int> commands;
  for (const Shortcut& shortcut : kShortcuts)
    if (shortcut.Command != 0 &&
        std::ranges::find(shortcut.Combinations, pressed) != shortcut.Combinations.end())
      commands.push_back(shortcut.Command);
  return commands;
}

}  // namespace quill
