// Global command identifiers: the code has their numbers only here and in KeyCommandIds.h.
#pragma once

#include "resources/ControlIds.h"

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

// The buttons of ink notes in the menu bar.
inline constexpr int ID_INK_TOGGLE = 204;  // between writing and selecting
inline constexpr int ID_INK_MODE = 205;    // between the page and the close-up

// The shell's own commands: the button for the input panel and the menu behind the title bar.
inline constexpr int ID_SHELL_INPUT_PANEL = 60000;
inline constexpr int ID_SHELL_LARGER = 60001;
inline constexpr int ID_SHELL_SMALLER = 60002;
inline constexpr int ID_SHELL_FULL_SCREEN = 60003;
inline constexpr int ID_SHELL_IMPORT = 60004;
inline constexpr int ID_SHELL_EXPORT = 60005;
inline constexpr int ID_IMPORTED_DETAILS = 60006;
inline constexpr int ID_SHELL_STOP_RECEIVING = 60007;

// The messages that tell the main frame of changes in the store, and the one it hands to the view.
inline constexpr int kMessageItemWritten = 1025;
inline constexpr int kMessageItemDeleted = 1027;
inline constexpr int kMessageStoreChanged = 1030;
inline constexpr int kMessageStoreNotice = 10024;

}  // namespace quill
