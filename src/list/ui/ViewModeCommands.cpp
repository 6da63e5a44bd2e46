#include "list/ui/ViewModeCommands.h"

#include "list/ListState.h"
#include "list/ui/ContactsView.h"
#include "resources/Ids.h"

namespace quill {

namespace {

CommandRow ModeRow(int id, ViewMode mode, std::function<void(int)> run) {
  return {id, id, std::move(run),
          [mode](int, CommandState& state) { state.Checked = g_list.Mode == mode; }};
}

}  // namespace

std::unique_ptr<CommandTarget> MakeViewModeCommands(CContactsView& view) {
  return std::make_unique<CommandTarget>(std::vector<CommandRow>{
      ModeRow(ID_VIEW_BY_NAME, ViewMode::ByName, [&view](int) { view.ShowByName(); }),
      ModeRow(ID_VIEW_BY_COMPANY, ViewMode::ByCompany, nullptr),
      ModeRow(ID_VIEW_BY_MEMO, ViewMode::ByMemo, nullptr),
  });
}

}  // namespace quill
