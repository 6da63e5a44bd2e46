// The contact list's rows: paints the page buffer, selects rows by pen, and turns what pen, keys
// and wheel mean into requests. It never talks to the store; the view fills the page and listens.
// Rows are those of the page; points are logical pixels of the list.
#pragma once

#include <functional>

#include "list/KeyMoves.h"
#include "list/Scrolling.h"
#include "list/TapMachine.h"
#include "platform/Timers.h"
#include "platform/ui/PaintedWindow.h"

namespace quill {

class CContactListCtrl : public CPaintedWindow, public TimerTarget {
  Q_OBJECT
 public:
  explicit CContactListCtrl(QWidget* view);
  ~CContactListCtrl() override;

  // Lays the page out again after it was filled or the selection changed.
  void ShowPage();

  std::function<void(ScrollRequest request)> ScrollAsked;
  std::function<void(KeyMove move)> MoveAsked;
  std::function<void(int row)> OpenAsked;
  // The card or the popup of the row's contact, at a point. Without one nothing happens.
  std::function<void(int row, QPoint at)> CardAsked;
  std::function<void(int row, QPoint at)> PopupAsked;

  void ActivateRow(int row) override;
  void ShowRowMenu(int row) override;
  void OnTimer(int id) override;

 protected:
  void PenPress(QPoint at) override;
  void PenDoublePress(QPoint at) override;
  void PenMove(QPoint at) override;
  void PenRelease(QPoint at) override;
  void PenCancel() override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void CarryOut(const TapIntention& intention);
  void Ask(const TapIntention& intention);
  void Move(KeyMove move, Qt::KeyboardModifiers modifiers);
  bool AskForPopup(const QKeyEvent& event);
  bool ActOnSelected(const QKeyEvent& event);

  TapMachine m_taps;
  int m_wheelRest = 0;  // turned but not yet a whole line, in the wheel's units
};

}  // namespace quill
