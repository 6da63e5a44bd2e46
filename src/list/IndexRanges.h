// The index strip's five buttons and the range of names behind each.
#pragma once

#include <QStringView>

#include "list/ListState.h"

namespace quill {

inline constexpr int kIndexButtonCount = 5;
inline constexpr int kIndexButtonWidth = 48;  // logical pixels; five fill the screen's width

// From Lower up to but not including Upper. Where Lower does not sort before Upper the range wraps
// round: everything from Lower on and everything before Upper.
struct IndexRange {
  QStringView Lower;  // also the button's label
  QStringView Upper;
};

// Buttons are numbered from 1. An unknown button's range is empty texts.
IndexRange IndexButtonRange(int button);

// The button at this x of the strip; 0 beside it.
int IndexButtonAt(int x);

// Makes the button's range the list's filter and goes to its first row; the page is not built. An
// unknown button changes nothing.
void ChooseIndexButton(ListState& list, int button);

}  // namespace quill
