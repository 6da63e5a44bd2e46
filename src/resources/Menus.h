// Menu resources: constexpr data; MenuModel turns them into what is shown.
#pragma once

#include <QStringView>

#include <array>
#include <span>

#include "resources/Ids.h"

namespace quill::resources {

// One line of a menu. Id 0 is a separator.
struct MenuEntry {
  QStringView Text;
  int Id = 0;
};

struct MenuResource {
  QStringView Text;
  std::span<const MenuEntry> Entries;
};

inline constexpr std::array kToolMenu = {
    MenuEntry{u"Beam Contacts...", ID_BEAM_CONTACTS},
    MenuEntry{u"Delete Items...", ID_DELETE_ITEMS},
    MenuEntry{},
    MenuEntry{u"Receive via IrDA...", ID_RECEIVE_INFRARED},
    MenuEntry{u"Delete all in list", ID_DELETE_ALL},
    MenuEntry{},
    MenuEntry{u"Configuration...", ID_CONFIGURATION},
};

inline constexpr std::array kViewMenu = {
    MenuEntry{u"By Name", ID_VIEW_BY_NAME},
    MenuEntry{u"By Company", ID_VIEW_BY_COMPANY},
    MenuEntry{u"By Memo", ID_VIEW_BY_MEMO},
};

inline constexpr std::array kHelpMenu = {
    MenuEntry{u"About Quill (Quillbook)...", ID_APP_ABOUT},
};

// The main frame's menu bar.
inline constexpr std::array kMainMenu = {
    MenuResource{u"Tool", kToolMenu},
    MenuResource{u"View", kViewMenu},
    MenuResource{u"Help", kHelpMenu},
};

// What a tap-and-hold on a contact's row opens; the first two become submenus of what is linked to
// the contact.
inline constexpr std::array kContactPopup = {
    MenuEntry{u"Appointment:", ID_APPOINTMENTS},
    MenuEntry{u"Memo:", ID_MEMOS},
    MenuEntry{},
    MenuEntry{u"Add Appoint...", ID_ADD_APPOINTMENT},
    MenuEntry{u"Add Memo...", ID_ADD_MEMO},
    MenuEntry{},
    MenuEntry{u"Beam Contact...", ID_BEAM_CONTACTS},
    MenuEntry{u"Copy Contact", ID_COPY_CONTACT},
    MenuEntry{u"Delete Contact", ID_DELETE_ITEMS},
};

// The same on a memo's row.
inline constexpr std::array kMemoPopup = {
    MenuEntry{u"Rename Memo...", ID_RENAME_MEMO},
    MenuEntry{u"Copy Memo...", ID_COPY_MEMO},
    MenuEntry{u"Delete Memo", ID_DELETE_MEMO},
};

// The menu bar of the record sheet's text pages.
inline constexpr std::array kTextEditMenu = {
    MenuEntry{u"Undo", ID_EDIT_UNDO},   MenuEntry{u"Cut", ID_EDIT_CUT},
    MenuEntry{u"Copy", ID_EDIT_COPY},   MenuEntry{u"Paste", ID_EDIT_PASTE},
    MenuEntry{u"Clear", ID_EDIT_CLEAR},
};
inline constexpr std::array kTextMenu = {MenuResource{u"Edit", kTextEditMenu}};

// The menu bar of ink notes.
inline constexpr std::array kInkEditMenu = {
    MenuEntry{u"Undo", ID_INK_UNDO},
    MenuEntry{u"Redo", ID_INK_REDO},
    MenuEntry{u"Cut", ID_INK_CUT},
    MenuEntry{u"Copy", ID_INK_COPY},
    MenuEntry{u"Paste", ID_INK_PASTE},
    MenuEntry{u"Clear", ID_INK_CLEAR},
    MenuEntry{u"Select All", ID_INK_SELECT_ALL},
};
inline constexpr std::array kInkToolMenu = {
    MenuEntry{u"75%", ID_INK_ZOOM_75},   MenuEntry{u"100%", ID_INK_ZOOM_100},
    MenuEntry{u"150%", ID_INK_ZOOM_150}, MenuEntry{u"200%", ID_INK_ZOOM_200},
    MenuEntry{u"300%", ID_INK_ZOOM_300}, MenuEntry{u"Delete Note", ID_INK_DELETE_NOTE},
};
inline constexpr std::array kInkMenu = {MenuResource{u"Edit", kInkEditMenu},
                                        MenuResource{u"Tool", kInkToolMenu}};

// What the title bar's menu has of the record sheet's own.
inline constexpr std::array kRecordTitleMenu = {
    MenuEntry{u"Imported details...", ID_IMPORTED_DETAILS},
};

// The menu that a tap-and-hold on the title bar opens.
inline constexpr std::array kShellMenu = {
    MenuEntry{u"Larger", ID_SHELL_LARGER},           MenuEntry{u"Smaller", ID_SHELL_SMALLER},
    MenuEntry{u"Full screen", ID_SHELL_FULL_SCREEN}, MenuEntry{},
    MenuEntry{u"Import...", ID_SHELL_IMPORT},        MenuEntry{u"Export...", ID_SHELL_EXPORT},
};

}  // namespace quill::resources
