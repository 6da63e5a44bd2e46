// The menu bar at the bottom: the topmost full-screen window's buttons and menus.
#pragma once

#include "platform/ChromeLayout.h"
#include "platform/ui/PaintedWindow.h"

namespace quill {

class CMenuPopup;
class CScreen;
class CWindow;

enum class MenuOpening { ByPen, ByKey };

class CMenuBar : public CPaintedWindow {
  Q_OBJECT
 public:
  explicit CMenuBar(CScreen& screen);

  // Null: an empty bar.
  void ShowFor(const CWindow* window);
  // Opens the first menu for the keyboard; nothing happens when the bar has none.
  void OpenFirstMenu();

  void ActivateRow(int row) override;

 protected:
  void PenPress(QPoint at) override;
  void PenMove(QPoint at) override;
  void PenRelease(QPoint at) override;

 private:
  int ButtonCount() const { return static_cast<int>(m_model.Buttons.size()); }
  void ShowPressed(int position);
  void OpenMenus(int position, MenuOpening opening);
  int NextMenu(int position, const CMenuPopup& left) const;
  void RunButton(int position);

  CScreen& m_screen;
  MenuBarModel m_model;
  int m_pressed = -1;  // a position in the model
};

}  // namespace quill
