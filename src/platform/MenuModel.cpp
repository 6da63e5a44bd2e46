#include "platform/MenuModel.h"

#include "platform/CommandTarget.h"

namespace quill {

namespace {

MenuItem BuildMenuItem(const resources::MenuEntry& entry, const CommandRoute& route) {
  MenuItem item;
  item.Text = entry.Text.toString();
  item.Id = entry.Id;
  item.Separator = entry.Id == 0;
  const CommandState state = route.State(entry.Id);
  item.Enabled = !item.Separator && state.Enabled;
  item.Checked = state.Checked;
  return item;
}

}  // namespace

std::vector<MenuItem> BuildMenuItems(std::span<const resources::MenuEntry> entries,
                                     const CommandRoute& route) {
  std::vector<MenuItem> items;
  for (const resources::MenuEntry& entry : entries) items.push_back(BuildMenuItem(entry, route));
  return items;
}

std::vector<Menu> BuildMenus(std::span<const resources::MenuResource> menus,
                             const CommandRoute& route) {
  std::vector<Menu> built;
  for (const resources::MenuResource& menu : menus)
    built.push_back({menu.Text.toString(), BuildMenuItems(menu.Entries, route)});
  return built;
}

const MenuItem* FindMenuItem(const std::vector<MenuItem>& items, int id) {
  for (const MenuItem& item : items) {
    if (item.Id == id && !item.Separator && item.Items.empty()) return &item;
    if (const MenuItem* inner = FindMenuItem(item.Items, id)) return inner;
  }
  return nullptr;
}

}  // namespace quill
