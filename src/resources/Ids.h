// Command and control identifiers: the only place where they stand as numbers.
//
// Command ids are global. Control ids repeat between windows, so each window has its namespace.
#pragma once

namespace quill {

// Main menu and menu bar.
inline constexpr int ID_FILE_NEW = 57600;
inline constexpr int ID_BEAM_CONTACTS = 40015;
inline constexpr int ID_DELETE_ITEMS = 40017;
inline constexpr int ID_RECEIVE_INFRARED = 32831;
inline constexpr int ID_DELETE_ALL = 40002;
inline constexpr int ID_CONFIGURATION = 32830;
inline constexpr int ID_VIEW_BY_NAME = 59413;
inline constexpr int ID_VIEW_BY_COMPANY = 32823;
inline constexpr int ID_VIEW_BY_MEMO = 32825;
inline constexpr int ID_APP_ABOUT = 57664;

// The popups of the list's rows.
inline constexpr int ID_APPOINTMENTS = 32817;  // the title of a submenu
inline constexpr int ID_MEMOS = 32818;         // the same
inline constexpr int ID_ADD_APPOINTMENT = 32819;
inline constexpr int ID_ADD_MEMO = 32820;
inline constexpr int ID_COPY_CONTACT = 32822;
inline constexpr int ID_DELETE_MEMO = 32826;
inline constexpr int ID_COPY_MEMO = 32828;
inline constexpr int ID_RENAME_MEMO = 32829;
inline constexpr int ID_OPEN_APPOINTMENT_FIRST = 33001;  // one for each linked appointment
inline constexpr int ID_OPEN_APPOINTMENT_LAST = 33200;
inline constexpr int ID_OPEN_MEMO_FIRST = 33201;  // one for each linked memo
inline constexpr int ID_OPEN_MEMO_LAST = 33400;

// The menu behind the category label: "Show All", the categories, "More...".
inline constexpr int ID_CATEGORY_FIRST = 107;
inline constexpr int ID_CATEGORY_LAST = 1107;

// The Edit menu of the record sheet's text pages.
inline constexpr int ID_EDIT_UNDO = 32773;
inline constexpr int ID_EDIT_CLEAR = 32774;
inline constexpr int ID_EDIT_CUT = 40019;
inline constexpr int ID_EDIT_COPY = 40020;
inline constexpr int ID_EDIT_PASTE = 40021;

// The menus of ink notes.
inline constexpr int ID_INK_SELECT_ALL = 32780;
inline constexpr int ID_INK_UNDO = 32781;
inline constexpr int ID_INK_REDO = 32782;
inline constexpr int ID_INK_CUT = 32783;
inline constexpr int ID_INK_COPY = 32784;
inline constexpr int ID_INK_PASTE = 32785;
inline constexpr int ID_INK_CLEAR = 32786;
inline constexpr int ID_INK_ZOOM_75 = 32787;
inline constexpr int ID_INK_ZOOM_100 = 32788;
inline constexpr int ID_INK_ZOOM_150 = 32789;
inline constexpr int ID_INK_ZOOM_200 = 32790;
inline constexpr int ID_INK_ZOOM_300 = 32791;
inline constexpr int ID_INK_DELETE_NOTE = 32824;

// The shell's own commands: the button for the input panel and the menu behind the title bar.
inline constexpr int ID_SHELL_INPUT_PANEL = 60000;
inline constexpr int ID_SHELL_LARGER = 60001;
inline constexpr int ID_SHELL_SMALLER = 60002;
inline constexpr int ID_SHELL_FULL_SCREEN = 60003;
inline constexpr int ID_SHELL_IMPORT = 60004;
inline constexpr int ID_SHELL_EXPORT = 60005;
inline constexpr int ID_IMPORTED_DETAILS = 60006;

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

// The messages that tell the main frame of changes in the store, and the one it hands to the view.
inline constexpr int kMessageItemWritten = 1025;
inline constexpr int kMessageItemDeleted = 1027;
inline constexpr int kMessageStoreChanged = 1030;
inline constexpr int kMessageStoreNotice = 10024;

}  // namespace quill
