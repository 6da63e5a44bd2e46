#include "editor/SheetScrolling.h"

#include <algorithm>

#include "editor/RecordRowLayout.h"

namespace quill {

namespace {

constexpr int kLargestTopWithPanel = 3;

}  // namespace

int LargestSheetTop(PanelState panel) { return panel == PanelState::Up ? kLargestTopWithPanel : 0; }

int SheetTopAfter(SheetScroll request, int top, PanelState panel, int thumb) {
  const int largest = LargestSheetTop(panel);
  switch (request) {
    case SheetScroll::LineUp:
      return std::max(top - 1, 0);
    case SheetScroll::LineDown:
      return std::min(top + 1, largest);
    case SheetScroll::PageUp:
      return 0;
    case SheetScroll::PageDown:
      return largest;
    case SheetScroll::ThumbTrack:
      break;
  }
  return std::min(thumb, largest);
}

int SheetTopWithPanel(int top, PanelState panel) { return panel == PanelState::Up ? top : 0; }

int RecordRowsShown(int height) { return std::max(height / kRecordRowHeight, 1); }

int SheetTopShowing(int row, int top, int rowsShown, PanelState panel) {
  return std::clamp(std::clamp(top, row - rowsShown + 1, row), 0, LargestSheetTop(panel));
}

std::optional<int> RowAfterMove(int row, RowMove move, int rowCount) {
  const int next = move == RowMove::Next ? row + 1 : (row < 0 ? rowCount : row) - 1;
  return next >= 0 && next < rowCount ? std::optional(next) : std::nullopt;
}

}  // namespace quill
