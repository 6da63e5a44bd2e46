// Makes the widget of a resource's control, for dialogs and for the pages of sheets.
#pragma once

#include <QRect>

#include "resources/Dialogs.h"

class QWidget;

namespace quill {

class CScreen;

QRect ToRect(const resources::Rectangle& place);

// The widget belongs to the parent, in which it stands at the control's place.
QWidget* MakeControl(const resources::DialogControl& control, CScreen& screen, QWidget* parent);

}  // namespace quill
