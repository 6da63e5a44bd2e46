// The list's vertical scroll bar: what each of its requests does to the page in view.
#pragma once

#include "list/ListState.h"

namespace quill {

enum class ScrollRequest { LineUp, LineDown, PageUp, PageDown, ThumbTrack };

// Moves Top and refills the page; the filter is not asked anew, and by memo nothing is read. A page
// keeps one row of the page before. The current row stays the same row of the page, its item the
// only selected one. Thumb is the thumb's position, used by ThumbTrack only. False when nothing is
// to be done.
bool ScrollList(ListState& list, ScrollRequest request, int thumb = 0);

}  // namespace quill
