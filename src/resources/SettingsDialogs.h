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

// Caption and label are set by what the name is for.
inline constexpr std::array kNameEntryControls = {
    DialogControl{ControlKind::Label, NameEntryIds::kLabel, u"", {10, 8, 200, 16}},
    DialogControl{ControlKind::Edit, NameEntryIds::kEdit, u"", {10, 28, 200, 20}},
    DialogControl{ControlKind::Button, kOKButton, u"OK", {41, 60, 64, 26}},
    DialogControl{ControlKind::Button, kResultCancel, u"Cancel", {115, 60, 64, 26}},
};
inline constexpr DialogResource kNameEntryDialog = {
    NameEntryIds::kDialog, u"", {10, 50, 220, 114}, kNameEntryControls};

}  // namespace quill::resources
