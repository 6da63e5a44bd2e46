// The editors of a name's and an address' parts as painted rows: like a page's row list, but in
// columns of their own, and an address begins with a street of several lines. Pure layout, in
// logical pixels of the editor; rows are counted from 0.
#pragma once

#include <QPoint>
#include <QRect>

#include <optional>
#include <span>
#include <vector>

#include "editor/RecordRows.h"
#include "platform/PaintedRow.h"
#include "platform/TextFitting.h"

namespace quill {

// Of the page.
inline constexpr QRect kNameEditorArea(20, 20, 200, 100);
inline constexpr QRect kAddressEditorArea(20, 30, 200, 131);

inline constexpr int kStreetHeight = 50;  // of the row
inline constexpr int kPartValueLeft = 55;

// Where the editor of these parts stands on its page. The set is one of parts.
QRect PartEditorArea(RowSet parts);

// Whether the row is edited in several lines.
bool IsStreet(RowSet parts, int row);

// The row that typing begins with: of a name the first name, since few have a title.
int PartTypedFirst(RowSet parts);

// One painted row for each part, with its index as key. Current is the row that is edited, -1 none:
// its value is not painted, since the field over it covers less than the row.
std::vector<PaintedRow> LayOutParts(std::span<const RecordRow> rows, RowSet parts, int current,
                                    const TextWidth& width);

// The row whose edit a tap starts: none left of the values and below the last part.
std::optional<int> PartToEdit(RowSet parts, QPoint tap);

// Where a part is edited in place.
QRect PartEditArea(RowSet parts, int row);

}  // namespace quill
