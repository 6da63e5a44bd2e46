// What a menu shows at one moment: made from the menu resources just before it opens.
#pragma once

#include <QString>

#include <span>
#include <vector>

#include "resources/Menus.h"
#include "resources/Pictures.h"

namespace quill {

class CommandRoute;

// A line of a menu. With Items it opens a submenu and its id runs nothing. Picture is for buttons
// of a menu bar: it is what they show in place of their text.
struct MenuItem {
  QString Text = {};
  int Id = 0;
  bool Enabled = true;
  bool Checked = false;
  bool Separator = false;
  std::vector<MenuItem> Items = {};
  const resources::Picture* Picture = nullptr;
};

struct Menu {
  QString Text;
  std::vector<MenuItem> Items;
};

// A window's menu bar: command buttons (New, the input panel's) and menus, from left to right; the
// buttons with a picture stand at the right end.
struct MenuBarModel {
  std::vector<MenuItem> Buttons;
  std::vector<Menu> Menus;
};

// The entries with each item's state as its update handler gives it. An id that nothing on the
// route handles is disabled.
std::vector<MenuItem> BuildMenuItems(std::span<const resources::MenuEntry> entries,
                                     const CommandRoute& route);
std::vector<Menu> BuildMenus(std::span<const resources::MenuResource> menus,
                             const CommandRoute& route);

// The item with this id, in submenus too; null when there is none.
const MenuItem* FindMenuItem(const std::vector<MenuItem>& items, int id);

}  // namespace quill
