#include "appointments/ui/AppointmentRowList.h"

#include <QKeyEvent>

#include <algorithm>
#include <utility>

#include "platform/ui/RowPainter.h"

namespace quill {

CAppointmentRowList::CAppointmentRowList(const QString& heading, QWidget* parent)
    : CPaintedWindow(parent, QAccessible::List), m_heading(heading) {
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(heading);
  SetBackground(kAppointmentBackground);
}

void CAppointmentRowList::ShowForm(const AppointmentForm& form) {
  m_form = form;
  LayOut();
}

void CAppointmentRowList::SetRevealed(std::optional<AppointmentRow> row) {
  m_revealed = row;
  LayOut();
}

// The rows come first, so that a row and its index among the painted ones are the same.
void CAppointmentRowList::LayOut() {
  const auto current = hasFocus() ? std::optional(m_current) : std::nullopt;
  std::vector<PaintedRow> rows = LayOutAppointmentRows(
      m_form, {.Current = current, .Revealed = m_revealed}, NormalTextWidth());
  rows.push_back(LayOutAppointmentHeading(m_heading));
  SetRows(std::move(rows));
}

void CAppointmentRowList::ActivateRow(int row) {
  if (row >= 0 && row < kAppointmentRowCount) Choose(static_cast<AppointmentRow>(row));
}

void CAppointmentRowList::Choose(AppointmentRow row) {
  m_current = row;
  LayOut();
  Chosen(row);
}

void CAppointmentRowList::PenPress(QPoint at) {
  if (at.y() >= AppointmentRowArea(AppointmentRow::Subject).top()) m_pressedAt = at;
}

void CAppointmentRowList::PenRelease(QPoint at) {
  const auto pressedAt = std::exchange(m_pressedAt, std::nullopt);
  if (!pressedAt || !rect().contains(at)) return;
  const auto row = AppointmentRowAt(at);
  if (AppointmentRowAt(*pressedAt) != row) return;
  row ? Choose(*row) : Chosen(std::nullopt);
}

void CAppointmentRowList::MoveCurrent(int step) {
  const int row = std::clamp(static_cast<int>(m_current) + step, 0, kAppointmentRowCount - 1);
  m_current = static_cast<AppointmentRow>(row);
  LayOut();
  Reached(m_current);
}

void CAppointmentRowList::keyPressEvent(QKeyEvent* event) {
  if (event->modifiers().testFlag(Qt::ControlModifier))  // Ctrl+Return is OK's
    return CPaintedWindow::keyPressEvent(event);
  switch (event->key()) {
    case Qt::Key_Up:
      return MoveCurrent(-1);
    case Qt::Key_Down:
      return MoveCurrent(1);
    case Qt::Key_Home:
      return MoveCurrent(-kAppointmentRowCount);
    case Qt::Key_End:
      return MoveCurrent(kAppointmentRowCount);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      if (!event->isAutoRepeat()) Choose(m_current);
      return;
    default:
      CPaintedWindow::keyPressEvent(event);
  }
}

void CAppointmentRowList::focusInEvent(QFocusEvent* event) {
  CPaintedWindow::focusInEvent(event);
  LayOut();
}

void CAppointmentRowList::focusOutEvent(QFocusEvent* event) {
  CPaintedWindow::focusOutEvent(event);
  LayOut();
}

}  // namespace quill
