#include "list/ContactPopup.h"

#include <algorithm>
#include <array>

#include "appointments/ContactLink.h"
#include "memo/MemoListing.h"
#include "platform/CommandTarget.h"
#include "resources/Menus.h"
#include "store/AppointmentStore.h"
#include "store/ContactStore.h"

namespace quill {

LinkedItems g_linkedItems;

namespace {

// An entry of the popup that becomes a submenu of linked items.
struct LinkedKind {
  int TitleId;
  int FirstId;
  QStringView Title;  // with the count behind it
  const QStringList LinkedItems::*Texts;
  const int LinkedItems::*Count;
};
constexpr std::array kLinkedKinds = {
    LinkedKind{ID_APPOINTMENTS, ID_OPEN_APPOINTMENT_FIRST, u"Appointment: %1",
               &LinkedItems::Subjects, &LinkedItems::AppointmentCount},
    LinkedKind{ID_MEMOS, ID_OPEN_MEMO_FIRST, u"Memo: %1", &LinkedItems::Memos,
               &LinkedItems::MemoCount},
};

MenuItem OpenItem(int id, const QString& text, const CommandRoute& route) {
  return {.Text = text, .Id = id, .Enabled = route.State(id).Enabled};
}

void MakeSubmenu(MenuItem& item, const LinkedKind& kind, const LinkedItems& linked,
                 const CommandRoute& route) {
  item.Text = kind.Title.toString().arg(linked.*kind.Count);
  int id = kind.FirstId;
  for (const QString& text : linked.*kind.Texts) item.Items.push_back(OpenItem(id++, text, route));
  item.Enabled = !item.Items.empty();
}

}  // namespace

LinkedItems FindLinkedItems(const QString& fileAs) {
  LinkedItems linked;
  // One view of the store for all of them: faster than a look at its state for each.
  const auto reading = g_store.Provider ? g_store.Provider->BeginReading() : nullptr;
  linked.Appointments = FindContactAppointments(fileAs);
  linked.AppointmentCount = static_cast<int>(linked.Appointments.size());
  if (linked.AppointmentCount > kLinkedItemsLimit) linked.Appointments.resize(kLinkedItemsLimit);
  for (const Oid oid : linked.Appointments)
    linked.Subjects.append(AppointmentSubject(oid).value_or(QString()));
  linked.Memos = MemosWithPrefix(g_memo, fileAs);
  linked.MemoCount = static_cast<int>(linked.Memos.size());
  if (linked.MemoCount > kLinkedItemsLimit) linked.Memos.resize(kLinkedItemsLimit);
  return linked;
}

std::vector<MenuItem> BuildContactPopup(const LinkedItems& linked, const CommandRoute& route) {
  std::vector<MenuItem> items = BuildMenuItems(resources::kContactPopup, route);
  for (const LinkedKind& kind : kLinkedKinds) {
    const auto item = std::ranges::find(items, kind.TitleId, &MenuItem::Id);
    if (item != items.end()) MakeSubmenu(*item, kind, linked, route);
  }
  return items;
}

std::vector<MenuItem> BuildRowPopup(const ListState& list, int row, const CommandRoute& route) {
  if (list.Mode == ViewMode::ByMemo) return BuildMenuItems(resources::kMemoPopup, route);
  g_linkedItems = FindLinkedItems(list.Rows[static_cast<std::size_t>(row)].Name);
  return BuildContactPopup(g_linkedItems, route);
}

}  // namespace quill
