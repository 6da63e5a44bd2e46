// Menu resources: constexpr data; MenuModel turns them into what is shown.
#pragma once

#include <QStringView>

#include <array>
#include <span>

#include "resources/Ids.h"

namespace quill::resources {

// One line of a menu. Id 0 is a separator.
struct MenuEntry {
  QStringView Text;
  int Id = 0;
};

struct MenuResource {
  QStringView Text;
  std::span<const MenuEntry> Entries;
};

inline constexpr std::array kToolMenu = {
    MenuEntry{u"Beam Contacts...", ID_BEAM_CONTACTS},
    MenuEntry{u"Delete Items...", ID_DELETE_ITEMS},
    MenuEntry{},
    MenuEntry{u"Receive via IrDA...", ID_RECEIVE_INFRARED},
    MenuEntry{u"Delete all in list", ID_DELETE_ALL},
    MenuEntry{},
    MenuEntry{u"Configuration...", ID_CONFIGURATION},
};

inline constexpr std::array kViewMenu = {
    MenuEntry{u"By Name", ID_VIEW_BY_NAME},
    MenuEntry{u"By Company", ID_VIEW_BY_COMPANY},
    MenuEntry{u"By Memo", ID_VIEW_BY_MEMO},
};

inline constexpr std::array kHelpMenu = {
    MenuEntry{u"About Quill (Quillbook)...", ID_APP_ABOUT},
};

// The main frame's menu bar.
inline constexpr std::array kMainMenu = {
    MenuResource{u"Tool", kToolMenu},
    MenuResource{u"View", kViewMenu},
    MenuResource{u"Help", kHelpMenu},
};

// The menu that a tap-and-hold on the title bar opens.
inline constexpr std::array kShellMenu = {
    MenuEntry{u"Larger", ID_SHELL_LARGER},
    MenuEntry{u"Smaller", ID_SHELL_SMALLER},
    MenuEntry{u"Full screen", ID_SHELL_FULL_SCREEN},
};

}  // namespace quill::resources
