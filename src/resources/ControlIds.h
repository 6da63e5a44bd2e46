// Control identifiers; those of appointments stand in AppointmentIds.h. They are numbers nowhere
// else. They repeat between windows, so each window has its namespace.
#pragma once

namespace quill {

// The contact list view.
namespace ContactsViewIds {
inline constexpr int kScrollBar = 1024;
inline constexpr int kSearchEdit = 1028;
inline constexpr int kSearchButton = 1035;
inline constexpr int kListControl = 1036;
}  // namespace ContactsViewIds

// Buttons that end a dialog or a message box: their ids are the results that DoModal returns.
inline constexpr int kResultOK = 1;
inline constexpr int kResultCancel = 2;
inline constexpr int kResultYes = 6;
inline constexpr int kResultNo = 7;
// The OK button of a dialog that numbers it so: the result is kResultOK all the same.
inline constexpr int kOKButton = 1064;

namespace MessageBoxIds {
inline constexpr int kIcon = 20;
inline constexpr int kText = 65535;
}  // namespace MessageBoxIds

// The menu of an editor.
namespace EditMenuIds {
inline constexpr int kCut = 1;
inline constexpr int kCopy = 2;
inline constexpr int kPaste = 3;
inline constexpr int kSelectAll = 4;
inline constexpr int kAdded = 5;
}  // namespace EditMenuIds

namespace AboutDialogIds {
inline constexpr int kDialog = 100;
inline constexpr int kTitle = 1001;
inline constexpr int kVersion = 1002;
inline constexpr int kMaker = 1003;
inline constexpr int kLicence = 1004;
}  // namespace AboutDialogIds

namespace CategoryChooserIds {
inline constexpr int kDialog = 101;
inline constexpr int kList = 1000;
inline constexpr int kEdit = 1001;
inline constexpr int kAdd = 1002;
inline constexpr int kRename = 1003;
inline constexpr int kRemove = 1004;
}  // namespace CategoryChooserIds

namespace ConfigIds {
inline constexpr int kDialog = 137;
inline constexpr int kShowIndex = 1046;
inline constexpr int kAutoAreaCode = 1049;
inline constexpr int kAreaCodeList = 1009;
inline constexpr int kAreaCodeEdit = 1017;
inline constexpr int kDeleteAll = 1000;
inline constexpr int kReceive = 1001;
}  // namespace ConfigIds

namespace DeleteConfirmIds {
inline constexpr int kDialog = 134;
inline constexpr int kMessage = 1030;
}  // namespace DeleteConfirmIds

namespace NameEntryIds {
inline constexpr int kDialog = 270;
inline constexpr int kLabel = 1012;
inline constexpr int kEdit = 1017;
}  // namespace NameEntryIds

// The record sheet and its pages.
namespace RecordSheetIds {
inline constexpr int kBasicPage = 206;
inline constexpr int kDetailPage = 207;
inline constexpr int kMemoPage = 208;
inline constexpr int kRowDropDown = 712;
inline constexpr int kRowEdit = 713;
inline constexpr int kRowDate = 716;
inline constexpr int kNamePartEdit = 801;
inline constexpr int kStreetEdit = 802;
inline constexpr int kAddressPartEdit = 803;
inline constexpr int kBasicScrollBar = 1006;
inline constexpr int kDetailScrollBar = 1009;
inline constexpr int kRestoreDraft = 1101;
inline constexpr int kDiscardDraft = 1102;
}  // namespace RecordSheetIds

// What the front ends of ink offer.
namespace InkIds {
inline constexpr int kRestore = 1103;
inline constexpr int kDiscard = 1104;
}  // namespace InkIds

// The menu of a tap-and-hold on a record sheet's row.
namespace RowMenuIds {
inline constexpr int kOpen = 1;
inline constexpr int kCopy = 2;
}  // namespace RowMenuIds

namespace ImportedDetailsIds {
inline constexpr int kDialog = 290;
inline constexpr int kText = 1001;
inline constexpr int kCopy = 1002;
}  // namespace ImportedDetailsIds

namespace FileListIds {
inline constexpr int kDialog = 280;
inline constexpr int kFolder = 1001;
inline constexpr int kList = 1002;
inline constexpr int kScrollBar = 1003;
inline constexpr int kNameLabel = 1004;
inline constexpr int kName = 1005;
inline constexpr int kOption = 1006;
}  // namespace FileListIds

namespace CharsetIds {
inline constexpr int kDialog = 281;
inline constexpr int kMessage = 1001;
inline constexpr int kCharset = 1002;
inline constexpr int kPreview = 1003;
}  // namespace CharsetIds

namespace CalendarIds {
inline constexpr int kDialog = 283;
inline constexpr int kMonth = 1001;
inline constexpr int kToday = 1002;
}  // namespace CalendarIds

namespace ProgressIds {
inline constexpr int kDialog = 282;
inline constexpr int kSubject = 1001;
inline constexpr int kProgress = 1002;
}  // namespace ProgressIds

}  // namespace quill
