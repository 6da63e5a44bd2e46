#include "platform/ui/CalendarView.h"

#include <QKeyEvent>

namespace quill {

CCalendarView::CCalendarView(QDate current, QDate today, QWidget* parent)
    : CPaintedWindow(parent, QAccessible::Grouping),
      m_model{.Current = KeepInCalendar(current), .Today = today} {
  setAccessibleName(QStringLiteral("Calendar"));
  setFocusPolicy(Qt::StrongFocus);
}

int CCalendarView::KeyAt(QPoint at) const {
  const int row = RowAt(at);
  return row < 0 ? -1 : Rows()[static_cast<std::size_t>(row)].Key;
}

void CCalendarView::SetCurrent(QDate date) {
  m_model.Current = date;
  LayOut();
}

void CCalendarView::SetPressed(int key) {
  m_model.Pressed = key;
  LayOut();
}

void CCalendarView::Press(int key) {
  const auto day = DayOfCalendarKey(key);
  SetCurrent(day.value_or(DateAfterCalendarButton(m_model.Current, key)));
  if (day && Chosen) Chosen();
}

void CCalendarView::LayOut() { SetRows(LayOutCalendar(m_model, size())); }

void CCalendarView::PenPress(QPoint at) { SetPressed(KeyAt(at)); }

void CCalendarView::PenRelease(QPoint at) {
  const int pressed = m_model.Pressed;
  SetPressed(-1);
  if (pressed >= 0 && pressed == KeyAt(at)) Press(pressed);
}

void CCalendarView::ActivateRow(int row) { Press(Rows()[static_cast<std::size_t>(row)].Key); }

void CCalendarView::keyPressEvent(QKeyEvent* event) {
  const auto date = DateAfterCalendarKey(m_model.Current, event->key(), event->modifiers());
  date ? SetCurrent(*date) : CPaintedWindow::keyPressEvent(event);
}

void CCalendarView::resizeEvent(QResizeEvent*) { LayOut(); }

}  // namespace quill
