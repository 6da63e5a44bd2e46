#include "list/ui/LinkedItemCommands.h"

#include <optional>

#include "list/ContactPopup.h"
#include "list/ListState.h"
#include "list/ui/ContactsView.h"
#include "memo/MemoFolder.h"
#include "memo/MemoNames.h"
#include "memo/ui/MemoOpening.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"

namespace quill {

namespace {

// Listed in the popups, disabled until their windows exist.
CommandRow Unavailable(int first, int last) { return {first, last, nullptr, nullptr}; }

// What the current row's contact is filed under.
std::optional<QString> CurrentContact() {
  const bool hasRow = g_list.Mode != ViewMode::ByMemo && g_list.CurrentRow >= 0 &&
                      g_list.CurrentRow < g_list.RowsShown;
  if (!hasRow) return std::nullopt;
  return g_list.Rows[static_cast<std::size_t>(g_list.CurrentRow)].Name;
}

void AddMemo(CContactsView& view) {
  if (const auto fileAs = CurrentContact())
    WriteNewMemo(*ScreenAround(&view), NewMemoPath(g_memo, *fileAs));
}

void OpenLinkedMemo(CContactsView& view, int id) {
  const QString name = g_linkedItems.Memos.value(id - ID_OPEN_MEMO_FIRST);
  if (!name.isEmpty()) EditMemoFile(*ScreenAround(&view), MemoPath(g_memo, name));
}

}  // namespace

std::unique_ptr<CommandTarget> MakeLinkedItemCommands(CContactsView& view) {
  return std::make_unique<CommandTarget>(std::vector<CommandRow>{
      Unavailable(ID_ADD_APPOINTMENT, ID_ADD_APPOINTMENT),
      {ID_ADD_MEMO, ID_ADD_MEMO, [&view](int) { AddMemo(view); }},
      Unavailable(ID_OPEN_APPOINTMENT_FIRST, ID_OPEN_APPOINTMENT_LAST),
      {ID_OPEN_MEMO_FIRST, ID_OPEN_MEMO_LAST, [&view](int id) { OpenLinkedMemo(view, id); }},
  });
}

}  // namespace quill
