// The title bar: the topmost full-screen window's caption, OK and close, and what goes on beside
// them. A tap-and-hold opens the shell's own menu.
#pragma once

#include "platform/ChromeLayout.h"
#include "platform/Timers.h"
#include "platform/ui/PaintedWindow.h"

namespace quill {

class CScreen;
class CWindow;

class CTitleBar : public CPaintedWindow, public TimerTarget {
  Q_OBJECT
 public:
  explicit CTitleBar(CScreen& screen);
  ~CTitleBar() override;

  // Null: an empty bar.
  void ShowFor(const CWindow* window);
  void SetNotice(const std::optional<TitleNotice>& notice);
  // What a tap on the notice does. False when there is none.
  bool AnswerNotice();

  void ActivateRow(int row) override;
  void ShowRowMenu(int row) override;
  void OnTimer(int id) override;

 protected:
  void PenPress(QPoint at) override;
  void PenMove(QPoint at) override;
  void PenRelease(QPoint at) override;

 private:
  int KeyAt(QPoint at) const;
  int RowOf(int key) const;
  void SetPressed(int key);
  void LayOut();
  void Press(int key);

  CScreen& m_screen;
  TitleBarModel m_model;
  QPoint m_pressedAt;
};

}  // namespace quill
