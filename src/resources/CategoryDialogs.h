// The dialog resource of the category chooser.
#pragma once

#include <array>

#include "resources/Dialogs.h"

namespace quill::resources {

// Where they stand without the input panel. With it the list is lower and all else higher.
inline constexpr std::array kCategoryChooserControls = {
    DialogControl{
        ControlKind::CheckList, CategoryChooserIds::kList, u"Categories", {0, 0, 240, 200}},
    DialogControl{ControlKind::PanelEdit, CategoryChooserIds::kEdit, u"", {5, 207, 164, 22}},
    DialogControl{ControlKind::Button, CategoryChooserIds::kAdd, u"Add", {173, 206, 62, 24}},
    DialogControl{ControlKind::Button, CategoryChooserIds::kRename, u"Rename", {5, 238, 58, 26}},
    DialogControl{ControlKind::Button, CategoryChooserIds::kRemove, u"Remove", {66, 238, 58, 26}},
    DialogControl{ControlKind::Button, kResultOK, u"OK", {139, 238, 46, 26}},
    DialogControl{ControlKind::Button, kResultCancel, u"Cancel", {188, 238, 47, 26}},
};
inline constexpr DialogResource kCategoryChooser = {
    CategoryChooserIds::kDialog, u"Categories", {}, kCategoryChooserControls};

}  // namespace quill::resources
