// The selected rows of the list, by their keys: Oids, or by memo positions in the memo list. They
// keep the order in which they were selected, so that commands act in that order.
//
// Rows are those of the page, 0-based. The current row is the one that keys and commands begin at;
// it stays when the selection goes, and is -1 until a row was tapped or reached by keys.
#pragma once

#include "list/ListState.h"

namespace quill {

// How many rows from the first can be selected. By memo that includes a row that only begins below
// the last whole one.
int SelectableRows(const ListState& list);
bool IsSelectableRow(const ListState& list, int row);

// The row must be selectable.
int KeyOfRow(const ListState& list, int row);
// -1 when the item is not on the page.
int RowOfKey(const ListState& list, int key);

bool IsKeySelected(const ListState& list, int key);
// The current row when it alone is selected, else -1: what a single tap's commands act on.
int SingleSelectedRow(const ListState& list);
// The uppermost of the selected rows on the page; the current row when none is on it.
int FirstSelectedRow(const ListState& list);

// Makes this row, which must be selectable, the current one and its key the only selected one.
void SelectRow(ListState& list, int row);
// The same for every row from the anchor to this one; the anchor's key is the first.
void SelectRun(ListState& list, int anchor, int row);

// Selects nothing; the current row stays.
void ClearSelectedKeys(ListState& list);
// Selects nothing and has no current row: after a change of what is listed, no key may be taken
// for another item's and no hidden row be acted on.
void DropSelection(ListState& list);

// After a scroll: the current row stays the same row of the page, or becomes the last one, and its
// key the only selected one. Without a current row nothing is selected.
void SelectAfterScroll(ListState& list);

// After the page was built again: keys whose contact is not on it are dropped, since no command may
// act on what is not seen, as are positions that have no memo any more. The others stay in their
// order, and the current row follows the first of them.
void KeepSelection(ListState& list);

// After what was selected from this row on has been deleted and the page built again: the row that
// stands there now is selected, or the last one. Where something is still selected it stays so.
void SelectInPlace(ListState& list, int row);

}  // namespace quill
