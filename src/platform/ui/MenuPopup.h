// A popup menu inside the frame: the menu bar's menus, tap-and-hold popups, drop-down lists.
//
// Rows are 17 pixels high, separators 5. A menu that is longer than the screen has scroll strips.
#pragma once

#include <QEventLoop>

#include <memory>
#include <optional>
#include <vector>

#include "platform/MenuLayout.h"
#include "platform/MenuModel.h"
#include "platform/ui/PaintedWindow.h"

namespace quill {

class CMenuShade;
class CScreen;

enum class MenuPopupKind { OnItsOwn, OfMenuBar };  // the arrow keys leave a menu of the menu bar

class CMenuPopup : public CPaintedWindow {
  Q_OBJECT
 public:
  // anchor is the rectangle that the menu drops from, in pixels of the screen; of empty size for a
  // point.
  CMenuPopup(CScreen& screen, std::vector<MenuItem> items, QRect anchor,
             MenuPopupKind kind = MenuPopupKind::OnItsOwn);
  // Before Track: the item that is highlighted when the menu opens.
  void StartAt(int item) { m_request.Current = item; }
  ~CMenuPopup() override;

  // Shows the menu and waits. The chosen command's id, 0 when the menu was dismissed.
  int Track();

  const std::vector<MenuItem>& Items() const { return m_items; }
  // Ends the menu with an item of it or of its submenus, for those who have neither pen nor keys.
  // False, and nothing happens, when there is
  // no such item or it is disabled.
  bool Choose(int id);
  void Dismiss() { End(0); }

  // How a menu of the menu bar was left: by an arrow key (-1 left, 1 right, else 0), or by a press
  // at this point of the screen.
  int LeftBy() const { return m_leftBy; }
  std::optional<QPoint> PressedOutsideAt() const { return m_pressedOutsideAt; }
  void PressOutside(QPoint onScreen);

  void ActivateRow(int row) override;

 protected:
  void PenPress(QPoint at) override;
  void PenMove(QPoint at) override;
  void PenRelease(QPoint at) override;
  void PenHover(QPoint at) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  // Tab stays in the menu, and hiding it moves the focus nowhere.
  bool focusNextPrevChild(bool) override { return true; }

 private:
  CMenuPopup(CMenuPopup& parent, std::vector<MenuItem> items, QRect anchor);

  CMenuPopup& Root();
  void LayOut(int firstItem);
  int ItemAt(QPoint at) const;
  void SetCurrent(int item);
  void MarkFirstOfSubmenu();
  void ActivateItem(int item);
  void OpenSubmenu(int item);
  void CloseSubmenu();
  CMenuPopup* SubmenuAt(QPoint at) const;
  bool HasOpenableItems(int item) const;
  bool ScrollAt(QPoint at);
  void GoSideways(int direction);
  void JumpToLetter(const QString& letter);
  void End(int id);

  CScreen& m_screen;
  const MenuPopupKind m_kind;
  std::vector<MenuItem> m_items;
  MenuLayoutRequest m_request;
  MenuLayout m_layout;
  CMenuPopup* m_parentMenu = nullptr;  // null for the root
  std::unique_ptr<CMenuPopup> m_submenu;
  QEventLoop* m_loop = nullptr;  // the root's, while Track runs
  int m_result = 0;
  int m_leftBy = 0;
  std::optional<QPoint> m_pressedOutsideAt;
};

}  // namespace quill
