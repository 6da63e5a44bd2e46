// How a page of the record sheet scrolls and where keys lead on it. Positions are the first row
// that is shown; rows are counted from 0.
#pragma once

#include <optional>

namespace quill {

enum class PanelState { Down, Up };  // of the input panel
enum class SheetScroll { LineUp, LineDown, PageUp, PageDown, ThumbTrack };

// With the panel down all rows are shown and nothing scrolls.
int LargestSheetTop(PanelState panel);

// Thumb is the thumb's position, used by ThumbTrack only.
int SheetTopAfter(SheetScroll request, int top, PanelState panel, int thumb = 0);

// What is left of a position when the panel has come or gone.
int SheetTopWithPanel(int top, PanelState panel);

// How many rows a list of this height shows whole, at least 1.
int RecordRowsShown(int height);

// The position nearest to top at which the row is among the rows shown, as far as the page scrolls.
int SheetTopShowing(int row, int top, int rowsShown, PanelState panel);

enum class RowMove { Previous, Next };

// The row that is edited after this one (-1: none yet) in a list of so many; nothing at its end.
std::optional<int> RowAfterMove(int row, RowMove move, int rowCount);

}  // namespace quill
