// A page's row list as painted rows: where a row stands, what a tap means, where it is edited.
// Pure layout, in logical pixels of the list; rows are counted from 0.
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
inline constexpr QRect kRecordListArea(0, 10, 225, 248);
inline constexpr QRect kRecordScrollBarArea(227, 0, 13, 248);

inline constexpr int kRecordRowHeight = 19;
inline constexpr int kRecordValueLeft = 80;
inline constexpr int kRecordRowCount = kPageRowCount - 1;  // the closing row shows nothing

inline constexpr Rgb kRecordLabelColor = 0x3232FF;
inline constexpr Rgb kRecordLineColor = 0x999999;
inline constexpr Rgb kRecordPictureColor = 0x2F5568;

struct RecordRowView {
  int Top = 0;       // the first row that is shown
  int Current = -1;  // the row that is edited, -1 none
};

// One painted row for each row but the closing one, with its index as key; rows scrolled out lie
// outside the list. Texts stand on one line.
std::vector<PaintedRow> LayOutRecordRows(std::span<const RecordRow> rows, const RecordRowView& view,
                                         const TextWidth& width);

// The row at this y, if one shows there; and the one whose edit a tap there starts, which the
// label's column does not.
std::optional<int> RecordRowAt(int y, int top);
std::optional<int> RecordRowToEdit(QPoint tap, int top);

// Where a row's value is edited in place.
QRect RecordEditArea(int row, int top);

}  // namespace quill
