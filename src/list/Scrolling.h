// The list's vertical scroll bar: what each of its requests does to the page in view.
#pragma once

#include "list/ListState.h"

namespace quill {

enum class ScrollRequest { LineUp, LineDown, PageUp, PageDown, ThumbTrack };

// Moves Top and refills the page; the filter is not asked anew. A page keeps one row of the page
// before. Thumb is the thumb's position, used by ThumbTrack only. False when nothing is to be done.
bool ScrollList(ListState& list, ScrollRequest request, int thumb = 0);

// The row on the page (0-based) that is the current one after a scroll: the same row, or the last
// one shown when the page has become shorter. -1, no current row, stays.
int CurrentRowAfterScroll(const ListState& list, int row);

}  // namespace quill
