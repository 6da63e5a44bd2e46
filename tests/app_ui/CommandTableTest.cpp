// The table walk: every menu item finds exactly one row on its window's route, and every row has an
// item or a sender that is known.
#include <QTemporaryDir>

#include <map>
#include <set>

#include "FrameFixture.h"
#include "app/Program.h"
#include "app/ui/ContactsApp.h"
#include "app/ui/ShellCommands.h"
#include "list/ui/CategoryCommands.h"
#include "list/ui/ContactCommands.h"
#include "list/ui/LinkedItemCommands.h"
#include "list/ui/ListKeyCommands.h"
#include "list/ui/MemoCommands.h"
#include "list/ui/SettingsCommands.h"
#include "list/ui/ViewModeCommands.h"
#include "platform/Shortcuts.h"
#include "resources/KeyCommandIds.h"
#include "resources/Menus.h"

namespace quill {
namespace {

// Submenus of a row's popup: their ids run nothing.
const std::set<int> kSubmenus = {ID_APPOINTMENTS, ID_MEMOS};

// Commands that no menu has, and what sends them.
const std::map<int, const char*> kSenders = {
    {ID_FILE_NEW, "the menu bar's button"},
    {ContactsViewIds::kSearchButton, "the search button"},
    {ID_SHELL_INPUT_PANEL, "the menu bar's button"},
    {ID_SHELL_STOP_RECEIVING, "the marker in the title bar"},
    {ID_KEY_OK, "a key"},
    {ID_KEY_CLOSE, "a key"},
    {ID_KEY_MENU_BAR, "a key"},
    {ID_KEY_CONTEXT_MENU, "a key"},
    {ID_KEY_TITLE_MENU, "a key"},
    {ID_KEY_SEARCH, "a key"},
    {ID_KEY_CATEGORIES, "a key"},
    {ID_KEY_INDEX_FIRST, "a key"},
    {ID_KEY_INDEX_FIRST + 1, "a key"},
    {ID_KEY_INDEX_FIRST + 2, "a key"},
    {ID_KEY_INDEX_FIRST + 3, "a key"},
    {ID_KEY_INDEX_LAST, "a key"},
};

template <class Entries>
void AddIds(std::set<int>& ids, const Entries& entries) {
  for (const resources::MenuEntry& entry : entries)
    if (entry.Id != 0) ids.insert(entry.Id);
}

std::set<int> MenuIds() {
  std::set<int> ids;
  for (const resources::MenuResource& menu : resources::kMainMenu) AddIds(ids, menu.Entries);
  AddIds(ids, resources::kShellMenu);
  AddIds(ids, resources::kContactPopup);
  AddIds(ids, resources::kMemoPopup);
  for (const int id : kSubmenus) ids.erase(id);
  // What a contact's submenus list.
  for (int id = ID_OPEN_APPOINTMENT_FIRST; id <= ID_OPEN_MEMO_LAST; ++id) ids.insert(id);
  // What the category menu lists.
  for (int id = ID_CATEGORY_FIRST; id <= ID_CATEGORY_LAST; ++id) ids.insert(id);
  return ids;
}

ProgramOptions OptionsAt(const QString& home) {
  ProgramOptions options;
  options.Where = HomePlaces(home, {});
  return options;
}

class CommandTableTest : public test::FrameFixture {
 protected:
  CommandTableTest()
      : m_program(OptionsAt(m_home.path())), m_app(m_program, {}), m_shellCommands(m_app) {}

  // The whole route of a menu command in the main frame: view, application, screen.
  CommandRoute WholeRoute() {
    CommandRoute route = m_frame->View().Route();
    route.Add(m_shellCommands);
    route.Add(m_screen->ScreenCommands());
    return route;
  }

  std::vector<CommandRow> AllRows() {
    std::vector<CommandRow> rows;
    CContactsView& view = m_frame->View();
    const auto contacts = MakeContactCommands(view);
    const auto linkedItems = MakeLinkedItemCommands(view);
    const auto memos = MakeMemoCommands(view);
    const auto modes = MakeViewModeCommands(view);
    const auto categories = MakeCategoryCommands(view);
    const auto settings = MakeSettingsCommands(view);
    const auto keys = MakeListKeyCommands(view);
    const std::vector<const CommandTarget*> targets = {
        contacts.get(), linkedItems.get(), memos.get(),
        modes.get(),    categories.get(),  settings.get(),
        keys.get(),     &m_shellCommands,  &m_screen->ScreenCommands()};
    for (const CommandTarget* target : targets)
      rows.insert(rows.end(), target->Rows().begin(), target->Rows().end());
    return rows;
  }

  QTemporaryDir m_home;
  Program m_program;
  CContactsApp m_app;
  ShellCommands m_shellCommands;
};

TEST_F(CommandTableTest, EveryMenuItemHasExactlyOneRow) {
  const CommandRoute route = WholeRoute();
  for (const int id : MenuIds()) EXPECT_EQ(route.Rows(id).size(), 1U) << id;
}

TEST_F(CommandTableTest, EveryOtherSenderHasExactlyOneRow) {
  const CommandRoute route = WholeRoute();
  for (const auto& [id, sender] : kSenders) EXPECT_EQ(route.Rows(id).size(), 1U) << sender;
}

TEST_F(CommandTableTest, EveryRowHasAMenuItemOrASender) {
  const std::set<int> items = MenuIds();
  for (const CommandRow& row : AllRows())
    for (int id = row.First; id <= row.Last; ++id)
      EXPECT_TRUE(items.contains(id) || kSenders.contains(id)) << id;
}

// The note's two are on the routes of the memo editor and the memo page.
TEST_F(CommandTableTest, EveryKeysCommandHasARow) {
  const CommandRoute route = WholeRoute();
  for (const Shortcut& shortcut : Shortcuts()) {
    if (shortcut.Command == 0 || shortcut.Place == ShortcutPlace::Note) continue;
    EXPECT_EQ(route.Rows(shortcut.Command).size(), 1U) << shortcut.Keys.toString().toStdString();
  }
}

TEST_F(CommandTableTest, NoItemStandsInTwoMenus) {
  std::multiset<int> ids;
  for (const resources::MenuResource& menu : resources::kMainMenu)
    for (const resources::MenuEntry& entry : menu.Entries)
      if (entry.Id != 0) ids.insert(entry.Id);
  for (const int id : ids) EXPECT_EQ(ids.count(id), 1U) << id;
}

struct MenuTableCase {
  const char16_t* Text;
  int Id;
};

class MainMenuTest : public testing::TestWithParam<MenuTableCase> {};

TEST_P(MainMenuTest, HasTheItemWithItsNumber) {
  for (const resources::MenuResource& menu : resources::kMainMenu)
    for (const resources::MenuEntry& entry : menu.Entries)
      if (entry.Id == GetParam().Id) {
        EXPECT_EQ(entry.Text, GetParam().Text);
      }
  EXPECT_TRUE(MenuIds().contains(GetParam().Id));
}

INSTANTIATE_TEST_SUITE_P(Items, MainMenuTest,
                         testing::Values(MenuTableCase{u"Beam Contacts...", 40015},
                                         MenuTableCase{u"Delete Items...", 40017},
                                         MenuTableCase{u"Receive via IrDA...", 32831},
                                         MenuTableCase{u"Delete all in list", 40002},
                                         MenuTableCase{u"Configuration...", 32830},
                                         MenuTableCase{u"By Name", 59413},
                                         MenuTableCase{u"By Company", 32823},
                                         MenuTableCase{u"By Memo", 32825},
                                         MenuTableCase{u"About Quill (Quillbook)...", 57664}));

}  // namespace
}  // namespace quill
