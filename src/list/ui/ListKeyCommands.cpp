#include "list/ui/ListKeyCommands.h"

#include "list/ListAreas.h"
#include "list/ui/CategoryCommands.h"
#include "list/ui/ContactsView.h"
#include "resources/KeyCommandIds.h"
#include "settings/Settings.h"

namespace quill {

std::unique_ptr<CommandTarget> MakeListKeyCommands(CContactsView& view) {
  return std::make_unique<CommandTarget>(std::vector<CommandRow>{
      {ID_KEY_SEARCH, ID_KEY_SEARCH, [&view](int) { view.FocusSearch(); }},
      {ID_KEY_CATEGORIES, ID_KEY_CATEGORIES, [&view](int) { ShowCategoryMenu(view); },
       [](int, CommandState& state) { state.Enabled = g_list.Mode != ViewMode::ByMemo; }},
      {ID_KEY_INDEX_FIRST, ID_KEY_INDEX_LAST,
       [&view](int id) { view.ChooseIndex(id - ID_KEY_INDEX_FIRST + 1); },
       [](int, CommandState& state) { state.Enabled = ShowsIndexStrip(g_settings); }}});
}

}  // namespace quill
