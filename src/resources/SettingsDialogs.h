// Dialog resources of the settings: configuration, name entry, confirmation of a delete.
#pragma once

#include <array>

#include "resources/Dialogs.h"

namespace quill::resources {

inline constexpr std::array kDeleteConfirmControls = {
    DialogControl{ControlKind::WrappedLabel, DeleteConfirmIds::kMessage, u"", {20, 20, 140, 50}},
    DialogControl{ControlKind::Button, kOKButton, u"OK", {20, 75, 64, 26}},
    DialogControl{ControlKind::Button, kResultCancel, u"Cancel", {95, 75, 64, 26}},
};
inline constexpr DialogResource kDeleteConfirmDialog = {
    DeleteConfirmIds::kDialog, u"Delete", {30, 40, 180, 140}, kDeleteConfirmControls};

}  // namespace quill::resources
