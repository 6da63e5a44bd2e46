#include "list/PageBuilding.h"

#include <algorithm>

#include "list/CategoryFilter.h"
#include "list/MemoPage.h"
#include "list/RestrictionText.h"
#include "list/RowContent.h"
#include "list/Selection.h"
#include "store/ContactStore.h"

namespace quill {

namespace {

void TakeCollection(ListState& list) {
  list.Collection = AllContacts();
  if (list.Mode == ViewMode::ByCompany) SortContacts(list.Collection, ContactOrder::ByCompany);
  list.Restriction = RestrictionText(list);
  if (!list.Restriction.isEmpty())
    list.Collection = RestrictContacts(list.Collection, list.Restriction);
  list.Total = Count(list.Collection);
}

// Puts the contact at this position (0-based) of the collection into a row of the page.
bool ReadRow(ListState& list, int index, int row) {
  ContactRecord record;
  const Oid oid = ReadListRow({list.Collection, index + 1}, record);
  if (oid == 0) return false;
  list.Rows[row] = MakeListRow(oid, record, row);
  return true;
}

// The same for the next free row. A contact that fails the filter leaves the row free.
bool ReadNextRow(ListState& list, int index) {
  ContactRecord record;
  const Oid oid = ReadListRow({list.Collection, index + 1}, record);
  if (oid == 0) return false;
  if (!PassesCategoryFilter(list, record[ContactField::Categories])) return true;
  list.Rows[list.RowsShown] = MakeListRow(oid, record, list.RowsShown);
  ++list.RowsShown;
  return true;
}

void NumberRows(ListState& list) {
  for (int row = 0; row < list.RowsShown; ++row) list.Rows[row].Position = row;
}

}  // namespace

void BuildPage(ListState& list) {
  list.RebuildDue = false;
  if (list.Mode == ViewMode::ByMemo) return BuildMemoPage(list, g_memo);
  TakeCollection(list);
  list.Top = std::clamp(list.Top, 0, LargestTop(list));
  RefillPage(list);
  KeepSelection(list);
}

void RefillPage(ListState& list) {
  list.RowsShown = 0;
  list.Rows.fill({});
  for (int index = list.Top; index < list.Total && list.RowsShown < list.RowsPerPage; ++index)
    if (!ReadNextRow(list, index)) break;
}

void RefillLineUp(ListState& list) {
  const auto rows = list.Rows.begin();
  const auto pageEnd = rows + list.RowsPerPage;
  std::move_backward(rows, pageEnd - 1, pageEnd);
  list.RowsShown = std::min(list.RowsShown + 1, list.RowsPerPage);
  if (!ReadRow(list, list.Top, 0)) {
    list.RowsShown = 0;
    list.Rows.fill({});
  }
  NumberRows(list);
}

void RefillLineDown(ListState& list) {
  const auto rows = list.Rows.begin();
  std::move(rows + 1, rows + list.RowsPerPage, rows);
  list.RowsShown = std::max(list.RowsShown - 1, 0);
  list.Rows[list.RowsShown] = {};
  const int next = list.Top + list.RowsShown;
  if (next < list.Total && ReadRow(list, next, list.RowsShown)) ++list.RowsShown;
  NumberRows(list);
}

int LargestTop(const ListState& list) { return std::max(list.Total - list.RowsPerPage + 1, 0); }

}  // namespace quill
