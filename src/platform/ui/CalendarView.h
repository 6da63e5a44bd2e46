// A month of which one day is current. Keys and buttons move it; a tap on a day chooses it.
#pragma once

#include <functional>

#include "platform/CalendarLayout.h"
#include "platform/ui/PaintedWindow.h"

namespace quill {

class CCalendarView : public CPaintedWindow {
  Q_OBJECT
 public:
  // A date beyond the calendar's ends becomes the nearest within.
  CCalendarView(QDate current, QDate today, QWidget* parent);

  QDate Current() const { return m_model.Current; }
  void ActivateRow(int row) override;

  // Called when a day was tapped; it is current by then.
  std::function<void()> Chosen;

 protected:
  void PenPress(QPoint at) override;
  void PenRelease(QPoint at) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int KeyAt(QPoint at) const;
  void SetCurrent(QDate date);
  void SetPressed(int key);
  void Press(int key);
  void LayOut();

  CalendarModel m_model;
};

}  // namespace quill
