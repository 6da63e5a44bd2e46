// The popup menu of a row: its commands, and what is linked to its contact.
#pragma once

#include <QStringList>

#include <vector>

#include "list/ListState.h"
#include "platform/MenuModel.h"

namespace quill {

class CommandRoute;

inline constexpr int kLinkedItemsLimit = 200;  // of each kind are offered

// What a contact has: all are counted, the first ones are offered.
struct LinkedItems {
  std::vector<Oid> Appointments = {};  // in Oid order
  QStringList Subjects = {};           // theirs, one for each
  int AppointmentCount = 0;
  QStringList Memos = {};  // file names, sorted without case
  int MemoCount = 0;
};
// Those of the popup shown last: the commands that open one of them name it by its number.
extern LinkedItems g_linkedItems;

// By the name that the contact is filed under.
LinkedItems FindLinkedItems(const QString& fileAs);

// Item i of the appointments runs ID_OPEN_APPOINTMENT_FIRST + i, of the memos ID_OPEN_MEMO_FIRST +
// i; a kind that the contact has none of cannot be opened.
std::vector<MenuItem> BuildContactPopup(const LinkedItems& linked, const CommandRoute& route);

// The popup of a row of the page: of its contact, whose linked items become g_linkedItems, or of
// its memo.
std::vector<MenuItem> BuildRowPopup(const ListState& list, int row, const CommandRoute& route);

}  // namespace quill
