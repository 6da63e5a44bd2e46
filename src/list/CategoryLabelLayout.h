// The category label at the right of the title band, in logical pixels of the label's window.
#pragma once

#include <QRect>

#include "list/ListState.h"
#include "platform/PaintedRow.h"
#include "platform/TextFitting.h"

namespace quill {

// The label's window in the view: its text and the area that takes its taps.
inline constexpr QRect kCategoryLabelArea{152, 1, 83, 24};

// One button that names the chosen category, or says that they are several. Names of 9 units and
// more begin at the label's left end, shorter ones end at its right; those too wide end with dots.
PaintedRow LayOutCategoryLabel(const ListState& list, const TextWidth& width);

}  // namespace quill
