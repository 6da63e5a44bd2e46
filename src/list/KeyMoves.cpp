#include "list/KeyMoves.h"

#include <algorithm>

#include "list/PageBuilding.h"
#include "list/Scrolling.h"
#include "list/Selection.h"

namespace quill {

namespace {

int LastRowOfPage(const ListState& list) {
  return std::min(SelectableRows(list), list.RowsPerPage) - 1;
}

// As near to it as the page allows; nothing on an empty page.
void SelectNearest(ListState& list, int row) {
  const int last = LastRowOfPage(list);
  if (last >= 0) SelectRow(list, std::clamp(row, 0, last));
}

// Where the list ends the row stays.
void MoveTo(ListState& list, int row, ScrollRequest beyond) {
  const bool isOnPage = row >= 0 && row <= LastRowOfPage(list);
  if (isOnPage || !ScrollList(list, beyond)) SelectNearest(list, row);
}

void ScrollAndSelect(ListState& list, int top, int row) {
  ScrollList(list, ScrollRequest::ThumbTrack, top);
  SelectNearest(list, row);
}

// Where a move on the page leads from this row.
int RowOnPageAfter(const ListState& list, int row, KeyMove move) {
  switch (move) {
    case KeyMove::LineUp:
      return std::max(row - 1, 0);
    case KeyMove::LineDown:
      return std::min(row + 1, LastRowOfPage(list));
    case KeyMove::PageUp:
    case KeyMove::First:
      return 0;
    case KeyMove::PageDown:
    case KeyMove::Last:
      return LastRowOfPage(list);
  }
  Q_UNREACHABLE();
}

}  // namespace

void MoveCurrentRow(ListState& list, KeyMove move) {
  switch (move) {
    case KeyMove::LineUp:
      return MoveTo(list, list.CurrentRow < 0 ? 0 : list.CurrentRow - 1, ScrollRequest::LineUp);
    case KeyMove::LineDown:
      return MoveTo(list, list.CurrentRow + 1, ScrollRequest::LineDown);
    case KeyMove::PageUp:
      if (!ScrollList(list, ScrollRequest::PageUp)) SelectNearest(list, 0);
      return;
    case KeyMove::PageDown:
      if (!ScrollList(list, ScrollRequest::PageDown)) SelectNearest(list, list.RowsPerPage);
      return;
    case KeyMove::First:
      return ScrollAndSelect(list, 0, 0);
    case KeyMove::Last:
      return ScrollAndSelect(list, LargestTop(list), list.RowsPerPage);
  }
}

void ExtendSelection(ListState& list, KeyMove move) {
  if (list.SelectedKeys.empty()) return MoveCurrentRow(list, move);
  const int anchor = RowOfKey(list, list.SelectedKeys.front());
  const int end = RowOfKey(list, list.SelectedKeys.back());
  if (anchor < 0 || end < 0) return MoveCurrentRow(list, move);
  SelectRun(list, anchor, RowOnPageAfter(list, end, move));
}

}  // namespace quill
