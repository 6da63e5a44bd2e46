#include "list/ui/LinkedItemCommands.h"

#include <optional>

#include "appointments/ui/AppointmentOpening.h"
#include "appointments/ui/AppointmentPreviewDlg.h"
#include "list/ContactPopup.h"
#include "list/ListState.h"
#include "list/ui/ContactsView.h"
#include "memo/MemoFolder.h"
#include "memo/MemoNames.h"
#include "memo/ui/MemoOpening.h"
#include "platform/ui/Screen.h"
#include "resources/AppointmentIds.h"
#include "resources/Ids.h"
#include "store/AppointmentStore.h"

namespace quill {

namespace {

bool IsByMemo() { return g_list.Mode == ViewMode::ByMemo; }

// What the current row's contact is filed under.
std::optional<QString> CurrentContact() {
  const bool hasRow = !IsByMemo() && g_list.CurrentRow >= 0 && g_list.CurrentRow < g_list.RowsShown;
  if (!hasRow) return std::nullopt;
  return g_list.Rows[static_cast<std::size_t>(g_list.CurrentRow)].Name;
}

void AddToCalendar(CContactsView& view) {
  if (const auto fileAs = CurrentContact()) AddAppointment(*ScreenAround(&view), *fileAs);
}

void AddMemo(CContactsView& view) {
  if (const auto fileAs = CurrentContact())
    WriteNewMemo(*ScreenAround(&view), NewMemoPath(g_memo, *fileAs));
}

// What is chosen in the preview happens at once. Should the appointment be gone by then, nothing
// does.
void OpenLinkedAppointment(CContactsView& view, int id) {
  const auto index = static_cast<std::size_t>(id - ID_OPEN_APPOINTMENT_FIRST);
  if (IsByMemo() || index >= g_linkedItems.Appointments.size()) return;
  const Oid appointment = g_linkedItems.Appointments[index];
  CScreen& screen = *ScreenAround(&view);
  const int result = CAppointmentPreviewDlg(screen, appointment).DoModal();
  if (result == AppointmentPreviewIds::kModifyResult) EditAppointment(screen, appointment);
  if (result == AppointmentPreviewIds::kDeleteResult) DeleteAppointment(appointment);
}

void OpenLinkedMemo(CContactsView& view, int id) {
  const QString name = g_linkedItems.Memos.value(id - ID_OPEN_MEMO_FIRST);
  if (!IsByMemo() && !name.isEmpty()) EditMemoFile(*ScreenAround(&view), MemoPath(g_memo, name));
}

}  // namespace

std::unique_ptr<CommandTarget> MakeLinkedItemCommands(CContactsView& view) {
  return std::make_unique<CommandTarget>(std::vector<CommandRow>{
      {ID_ADD_APPOINTMENT, ID_ADD_APPOINTMENT, [&view](int) { AddToCalendar(view); }},
      {ID_ADD_MEMO, ID_ADD_MEMO, [&view](int) { AddMemo(view); }},
      {ID_OPEN_APPOINTMENT_FIRST, ID_OPEN_APPOINTMENT_LAST,
       [&view](int id) { OpenLinkedAppointment(view, id); }},
      {ID_OPEN_MEMO_FIRST, ID_OPEN_MEMO_LAST, [&view](int id) { OpenLinkedMemo(view, id); }},
  });
}

}  // namespace quill
