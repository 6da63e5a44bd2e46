// The dialog resource of the preview of an appointment. Its buttons are hidden: the dialog draws
// two of its own in their places.
#pragma once

#include <array>

#include "resources/AppointmentIds.h"
#include "resources/Dialogs.h"

namespace quill::resources {

// Top to bottom.
inline constexpr std::array kAppointmentPreviewControls = {
    DialogControl{ControlKind::Button,
                  AppointmentPreviewIds::kModify,
                  u"Mod",
                  {216, 16, 20, 20},
                  ControlState::Hidden},
    DialogControl{ControlKind::Button,
                  AppointmentPreviewIds::kDelete,
                  u"Del",
                  {216, 39, 20, 20},
                  ControlState::Hidden},
};
inline constexpr DialogResource kAppointmentPreviewDialog = {
    AppointmentPreviewIds::kDialog, u"Memo", {}, kAppointmentPreviewControls};

}  // namespace quill::resources
