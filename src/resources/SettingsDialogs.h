// Dialog resources of the settings: configuration, name entry, confirmation of a delete.
#pragma once

#include <array>

#include "resources/Dialogs.h"

namespace quill::resources {

// A header painted in the first 25 lines stands above the controls.
inline constexpr std::array kConfigControls = {
    DialogControl{ControlKind::Check, ConfigIds::kShowIndex, u"Show ABC Index", {20, 34, 200, 18}},
    DialogControl{
        ControlKind::Check, ConfigIds::kAutoAreaCode, u"Auto Area Code", {20, 58, 200, 18}},
    DialogControl{ControlKind::DropDown,
                  ConfigIds::kAreaCodeList,
                  u"",
                  {144, 82, 76, 20},
                  ControlState::Hidden},
    DialogControl{ControlKind::PanelEdit, ConfigIds::kAreaCodeEdit, u"", {38, 82, 100, 20}},
    DialogControl{ControlKind::Button, ConfigIds::kDeleteAll, u"Delete All", {20, 120, 90, 25}},
    DialogControl{
        ControlKind::Button, ConfigIds::kReceive, u"Receive via IrDA", {115, 120, 110, 25}},
    DialogControl{ControlKind::Button, kOKButton, u"OK", {88, 157, 64, 26}},
};
inline constexpr DialogResource kConfigDialog = {
    ConfigIds::kDialog, kApplicationTitle, {}, kConfigControls};

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
