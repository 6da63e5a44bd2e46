#include "list/ui/ViewModeCommands.h"

#include "list/ui/ContactsView.h"
#include "resources/Ids.h"

namespace quill {

namespace {

CommandRow ModeRow(int id, ViewMode mode, CContactsView& view) {
  return {id, id, [&view, mode](int) { view.ShowMode(mode); },
          [mode](int, CommandState& state) { state.Checked = g_list.Mode == mode; }};
}

}  // namespace

std::unique_ptr<CommandTarget> MakeViewModeCommands(CContactsView& view) {
  return std::make_unique<CommandTarget>(std::vector<CommandRow>{
      ModeRow(ID_VIEW_BY_NAME, ViewMode::ByName, view),
      ModeRow(ID_VIEW_BY_COMPANY, ViewMode::ByCompany, view),
      ModeRow(ID_VIEW_BY_MEMO, ViewMode::ByMemo, view),
  });
}

}  // namespace quill
