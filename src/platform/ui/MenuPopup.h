// A popup menu inside the frame: the menu bar's menus, tap-and-hold popups, drop-down lists.
//
// Rows are 17 pixels high, separators 5. A menu that is longer than the screen has scroll strips.
#pragma once

#include <QEventLoop>

#include <vector>

#include "platform/MenuModel.h"
#include "platform/MenuLayout.h"
#include "platform/ui/PaintedWindow.h"

namespace quill {

class CScreen;

class CMenuPopup : public CPaintedWindow {
  Q_OBJECT
 public:
  // The menu takes what it shows from items; anchor is the rectangle on the screen that it drops
  // from, in logical pixels (empty size: a point).
  CMenuPopup(CScreen& screen, const std::vector<MenuItem>& items, QRect anchor,
             MenuPlacement placement);
  ~CMenuPopup() override;

  // Shows the menu and waits. The chosen command's id, 0 when the menu was dismissed.
  int Track();

  const std::vector<MenuItem>& Items() const { return m_items; }
  // Ends the whole menu with an item of it or of its submenus; a disabled or unknown id is refused.
  bool Choose(int id);
  void Dismiss();
  // The arrow that left a menu of the menu bar: -1 left, 1 right, 0 none.
  int LeftBy() const { return m_leftBy; }

  void ActivateRow(int row) override;

 protected:
  void PenPress(QPoint at) override;
  void PenMove(QPoint at) override;
  void PenRelease(QPoint at) override;
  void PenHover(QPoint at) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  friend class CMenuShade;
  void LayOut();
  void SetCurrent(int item);
  void MoveCurrent(int step);
  void ActivateItem(int item);
  void OpenSubmenu(int item);
  void CloseSubmenu();
  void ScrollAt(QPoint at);
  bool JumpToLetter(const QString& letter);
  void Leave(int direction);
  void End(int id);

  CScreen& m_screen;
  std::vector<MenuItem> m_items;
  MenuLayout m_layout;
  CMenuPopup* m_parentMenu = nullptr;
  CMenuPopup* m_submenu = nullptr;
  QEventLoop* m_loop = nullptr;
  int m_current = -1;
  int m_result = 0;
  int m_leftBy = 0;
};

}  // namespace quill
