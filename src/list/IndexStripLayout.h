// The index strip as painted rows, in logical pixels of the strip.
#pragma once

#include <QSize>

#include <vector>

#include "list/ListState.h"
#include "platform/PaintedRow.h"

namespace quill {

// One row for each button, its key the button's number; the one that filters the list is selected.
std::vector<PaintedRow> LayOutIndexStrip(const ListState& list, QSize size);

}  // namespace quill
