// A button that is on or off, as a painted row. Pure layout, in logical pixels of the button.
#pragma once

#include <QSize>
#include <QString>

#include "platform/PaintedRow.h"

namespace quill {

struct ToggleModel {
  QString Text = {};
  bool IsOn = false;
  bool IsPressed = false;
  bool HasFocus = false;
};

// The text stands in the upper half, the mark of one that is on in the lower.
PaintedRow LayOutToggle(const ToggleModel& model, QSize size);

}  // namespace quill
