#include "appointments/ui/AppointmentPreviewFace.h"

#include <QKeyEvent>

#include <utility>

#include "platform/ui/RowPainter.h"

namespace quill {

namespace {

// With Ctrl it is OK's.
bool UsesButton(const QKeyEvent& event) {
  const int key = event.key();
  return !event.modifiers().testFlag(Qt::ControlModifier) &&
         (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space);
}

}  // namespace

CAppointmentPreviewFace::CAppointmentPreviewFace(AppointmentPreview preview, QWidget* parent)
    : CPaintedWindow(parent, QAccessible::Grouping), m_preview(std::move(preview)) {
  setAccessibleName(QStringLiteral("Appointment"));
  setFocusPolicy(Qt::TabFocus);
  LayOut();
}

void CAppointmentPreviewFace::LayOut() {
  SetRows(LayOutAppointmentPreview(m_preview, {.Pressed = m_pen.Shown(), .Current = m_current},
                                   {.Heading = BoldTextWidth(), .Body = NormalTextWidth()}));
}

void CAppointmentPreviewFace::SetCurrent(std::optional<PreviewButton> button) {
  m_current = button;
  LayOut();
}

void CAppointmentPreviewFace::ActivateRow(int row) {
  const PaintedRow& used = Rows()[static_cast<std::size_t>(row)];
  if (used.Role == PaintedRole::Button) Chosen(used.Key);
}

void CAppointmentPreviewFace::PenPress(QPoint at) {
  m_pen.Press(at);
  LayOut();
}

void CAppointmentPreviewFace::PenMove(QPoint at) {
  m_pen.Move(at);
  LayOut();
}

void CAppointmentPreviewFace::PenRelease(QPoint at) {
  const auto used = m_pen.Release(at);
  LayOut();
  if (used) Chosen(CommandOf(*used));
}

// A held key uses a button here, not also what it opens.
void CAppointmentPreviewFace::keyPressEvent(QKeyEvent* event) {
  const auto next = PreviewButtonAfterKey(event->key());
  if (next) return SetCurrent(next);
  if (!UsesButton(*event) || !m_current) return CPaintedWindow::keyPressEvent(event);
  if (!event->isAutoRepeat()) Chosen(CommandOf(*m_current));
}

void CAppointmentPreviewFace::focusInEvent(QFocusEvent* event) {
  const bool backwards = event->reason() == Qt::BacktabFocusReason;
  SetCurrent(backwards ? PreviewButton::Delete : PreviewButton::Modify);
}

void CAppointmentPreviewFace::focusOutEvent(QFocusEvent*) { SetCurrent(std::nullopt); }

bool CAppointmentPreviewFace::focusNextPrevChild(bool next) {
  const auto other = next ? PreviewButton::Delete : PreviewButton::Modify;
  if (m_current == other) return CPaintedWindow::focusNextPrevChild(next);
  SetCurrent(other);
  return true;
}

}  // namespace quill
