// The list's page as painted rows, in logical pixels of the list control.
#pragma once

#include <QStringList>

#include <vector>

#include "list/ListState.h"
#include "platform/PaintedRow.h"
#include "platform/TextFitting.h"

namespace quill {

inline constexpr int kListWidth = 225;
inline constexpr int kListRowHeight = 16;
inline constexpr int kListNameWidth = 60;  // names are shortened to this; the column is wider

inline constexpr Rgb kListBackground = 0xFFFFFF;
inline constexpr Rgb kListSelection = 0xD6EDBA;
inline constexpr Rgb kListSeparator = 0x999999;
inline constexpr Rgb kListHintColor = 0x666666;

// The row of the page at this y, 0-based, whether or not it shows anything; -1 above the list.
int ListRowAt(int y);

// One painted row for each row shown, its key the contact's Oid, by memo the memo's position among
// memoNames. A page that is not full ends with one more separator line, and an empty store's page
// holds one line that says how to fill it; both have key 0 and cannot be selected.
std::vector<PaintedRow> LayOutList(const ListState& list, const QStringList& memoNames,
                                   const TextWidth& width);

}  // namespace quill
