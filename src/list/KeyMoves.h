// Moving through the list by keys: the current row moves on the page, and at the page's ends the
// page scrolls instead.
#pragma once

#include "list/ListState.h"

namespace quill {

enum class KeyMove { LineUp, LineDown, PageUp, PageDown, First, Last };

// The row reached is the only selected one. Without a current row a line leads to the first row of
// the page, and a page scrolls without selecting.
void MoveCurrentRow(ListState& list, KeyMove move);

// The run of selected rows grows or shrinks at the end that is not its first row, within the page.
// Without a selection on the page this is a plain move.
void ExtendSelection(ListState& list, KeyMove move);

}  // namespace quill
