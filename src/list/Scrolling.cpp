#include "list/Scrolling.h"

#include <algorithm>
#include <optional>

#include "list/PageBuilding.h"
#include "list/Selection.h"

namespace quill {

namespace {

bool CanScrollUp(const ListState& list) { return list.Top >= 1; }

bool CanScrollDown(const ListState& list) { return list.Top + list.RowsPerPage - 1 < list.Total; }

int TopAfterPageDown(const ListState& list) {
  const bool whole = list.Top + 2 * list.RowsPerPage - 2 <= list.Total;
  return whole ? list.Top + list.RowsPerPage - 1 : LargestTop(list);
}

int TopAtThumb(const ListState& list, int thumb) { return std::clamp(thumb, 0, LargestTop(list)); }

// Nothing when the request's condition does not hold.
std::optional<int> NextTop(const ListState& list, ScrollRequest request, int thumb) {
  const auto when = [](bool condition, int top) {
    return condition ? std::optional(top) : std::nullopt;
  };
  switch (request) {
    case ScrollRequest::LineUp:
      return when(CanScrollUp(list), list.Top - 1);
    case ScrollRequest::LineDown:
      return when(CanScrollDown(list), list.Top + 1);
    case ScrollRequest::PageUp:
      return when(CanScrollUp(list), std::max(0, list.Top - list.RowsPerPage + 1));
    case ScrollRequest::PageDown:
      return when(CanScrollDown(list), TopAfterPageDown(list));
    case ScrollRequest::ThumbTrack:
      return TopAtThumb(list, thumb);
  }
  return std::nullopt;
}

void Refill(ListState& list, ScrollRequest request) {
  if (request == ScrollRequest::LineUp)
    RefillLineUp(list);
  else if (request == ScrollRequest::LineDown)
    RefillLineDown(list);
  else
    RefillPage(list);
}

}  // namespace

bool ScrollList(ListState& list, ScrollRequest request, int thumb) {
  const std::optional<int> top = NextTop(list, request, thumb);
  if (!top) return false;
  list.Top = *top;
  if (list.Mode != ViewMode::ByMemo) Refill(list, request);
  SelectAfterScroll(list);
  return true;
}

}  // namespace quill
