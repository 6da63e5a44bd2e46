// Makes the widget of a dialog resource's control.
#pragma once

#include "resources/Dialogs.h"

class QWidget;

namespace quill {

class CDialog;

// The widget belongs to the dialog. It is not placed.
QWidget* MakeControl(const resources::DialogControl& control, CDialog& dialog);

}  // namespace quill
