// Finds the program's windows from outside: the screen among the top-level widgets, everything else
// below it. A pointer is null while there is no such window.
#pragma once

#include <QJsonValue>
#include <QPoint>
#include <QRect>
#include <QWidget>

#include <optional>

#include "driver/Request.h"

namespace quill {
class CContactListCtrl;
class CMainFrame;
class CMenuPopup;
class CPartEditor;
class CRecordRowList;
class CScreen;
class CSheet;
class CWindow;
class InkX;
}  // namespace quill

namespace quill::driver {

CScreen* FindScreen();
CMainFrame* FindMainFrame();
QWidget* FindView();
CContactListCtrl* FindList();
// The window that commands, keys and controls mean.
CWindow* FindTopmost();
// The uppermost property sheet, also below a dialog.
CSheet* FindSheet();
// The row list of the uppermost sheet's page, and the part editor that is open over it.
CRecordRowList* FindRecordRows();
CPartEditor* FindPartEditor();
// The ink control that the topmost window shows.
InkX* FindInk();
// The popup menu that was opened first, when submenus of it are open.
CMenuPopup* FindPopup();

// A window and the part of it that is its client area, in logical pixels of the window.
struct Target {
  QWidget* Window = nullptr;
  QRect Client = {};
};
Target ClientOf(CWindow& window);
// What "on" names; the screen without it. Nothing when there is no such window just now, or when it
// is neither a text nor a whole number.
std::optional<Target> FindTarget(const QJsonValue& on);
// The refusal of an operation for which FindTarget found nothing.
Answer RefuseTarget(const QJsonValue& on);

// Rectangles and points of the screen, in logical pixels.
QRect OnScreen(const Target& target);
QPoint OnScreen(const Target& target, QPoint inClient);

// What the desktop's close button does.
void CloseOuterWindow();

}  // namespace quill::driver
