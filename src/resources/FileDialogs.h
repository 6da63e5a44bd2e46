// Dialog resources for bringing contacts in and taking them out: file list, character set,
// progress.
#pragma once

#include <array>

#include "resources/Dialogs.h"

namespace quill::resources {

// The list stands below them; name and option are there when something is written.
inline constexpr std::array kFileListControls = {
    DialogControl{ControlKind::Label, FileListIds::kFolder, u"", {4, 2, 232, 18}},
    DialogControl{ControlKind::Label,
                  FileListIds::kNameLabel,
                  u"Name",
                  {4, 22, 36, 20},
                  ControlState::Hidden},
    DialogControl{
        ControlKind::PanelEdit, FileListIds::kName, u"", {42, 22, 194, 20}, ControlState::Hidden},
    DialogControl{
        ControlKind::Check, FileListIds::kOption, u"", {4, 44, 232, 18}, ControlState::Hidden},
};
inline constexpr DialogResource kFileListDialog = {
    FileListIds::kDialog, u"", {}, kFileListControls};

inline constexpr std::array kCharsetControls = {
    DialogControl{ControlKind::WrappedLabel,
                  CharsetIds::kMessage,
                  u"The file does not say how its letters are written. Choose so that the name "
                  u"below reads right.",
                  {10, 6, 200, 46}},
    DialogControl{ControlKind::DropDown, CharsetIds::kCharset, u"", {10, 56, 200, 20}},
    DialogControl{ControlKind::CentredLabel, CharsetIds::kPreview, u"", {10, 82, 200, 20}},
    DialogControl{ControlKind::Button, kResultOK, u"OK", {41, 108, 64, 26}},
    DialogControl{ControlKind::Button, kResultCancel, u"Cancel", {115, 108, 64, 26}},
};
inline constexpr DialogResource kCharsetDialog = {
    CharsetIds::kDialog, u"Character set", {10, 70, 220, 160}, kCharsetControls};

inline constexpr std::array kProgressControls = {
    DialogControl{ControlKind::CentredLabel, ProgressIds::kSubject, u"", {10, 8, 180, 18}},
    DialogControl{ControlKind::CentredLabel, ProgressIds::kProgress, u"", {10, 28, 180, 18}},
    DialogControl{ControlKind::Button, kResultCancel, u"Cancel", {68, 54, 64, 26}},
};
inline constexpr DialogResource kProgressDialog = {
    ProgressIds::kDialog, u"", {20, 100, 200, 106}, kProgressControls};

}  // namespace quill::resources
