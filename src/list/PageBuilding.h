// Filling the page buffer from the store.
//
// Nothing is reported: a restriction or a read that fails ends the page early, and RowsShown says
// how many rows there are. The rows past it are empty.
#pragma once

#include "list/ListState.h"

namespace quill {

// Asks the store anew for what the filter lets through, moves Top into the scroll range and fills
// the page from there. The selection stays, but for contacts that are gone. By memo the memos are
// listed instead and no row of the page buffer is filled.
void BuildPage(ListState& list);

// Fills the page from Top again out of the collection that is already held; Total stays.
void RefillPage(ListState& list);

// The page after Top has moved by one: keeps the rows that stay and reads the one that came into
// view. It does not test the category a second time, as a whole page does; this is intended.
void RefillLineUp(ListState& list);
void RefillLineDown(ListState& list);

// The scroll range is 0 to this; at its end the last row of the page is blank.
int LargestTop(const ListState& list);

}  // namespace quill
