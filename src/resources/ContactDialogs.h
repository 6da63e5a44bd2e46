// The dialog resource of what a contact holds beyond its sheet.
#pragma once

#include <array>

#include "resources/Dialogs.h"

namespace quill::resources {

inline constexpr std::array kImportedDetailsControls = {
    DialogControl{ControlKind::MultiEdit, ImportedDetailsIds::kText, u"", {4, 4, 232, 226}},
    DialogControl{ControlKind::Button, ImportedDetailsIds::kCopy, u"Copy", {85, 238, 70, 26}},
};
inline constexpr DialogResource kImportedDetailsDialog = {
    ImportedDetailsIds::kDialog, u"Imported details", {}, kImportedDetailsControls};

}  // namespace quill::resources
