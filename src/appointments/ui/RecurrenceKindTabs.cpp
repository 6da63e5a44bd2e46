#include "appointments/ui/RecurrenceKindTabs.h"

#include <QKeyEvent>

#include <utility>

namespace quill {

CRecurrenceKindTabs::CRecurrenceKindTabs(QWidget* parent)
    : CPaintedWindow(parent, QAccessible::PageTabList) {
  setAccessibleName(QStringLiteral("How often"));
  setFocusPolicy(Qt::StrongFocus);
  setGeometry(kKindStripArea);
  SetBackground(kKindStripGround);
  LayOut();
}

void CRecurrenceKindTabs::SetKind(RecurrenceKind kind) {
  m_model.Kind = kind;
  LayOut();
}

void CRecurrenceKindTabs::Choose(RecurrenceKind kind) {
  SetKind(kind);
  QAccessibleEvent event(this, QAccessible::Selection);
  event.setChild(static_cast<int>(kind));
  QAccessible::updateAccessibility(&event);
  if (Chosen) Chosen();
}

void CRecurrenceKindTabs::SetPressed(std::optional<RecurrenceKind> kind) {
  m_model.Pressed = kind;
  LayOut();
}

void CRecurrenceKindTabs::LayOut() {
  m_model.HasFocus = hasFocus();
  SetRows(LayOutKindStrip(m_model));
}

void CRecurrenceKindTabs::PenPress(QPoint at) {
  setFocus(Qt::MouseFocusReason);
  SetPressed(KindAt(at));
}

void CRecurrenceKindTabs::PenRelease(QPoint at) {
  const auto pressed = m_model.Pressed;
  SetPressed({});
  if (pressed && pressed == KindAt(at)) Choose(*pressed);
}

// The line below the tabs is no kind.
void CRecurrenceKindTabs::ActivateRow(int row) {
  const int key = Rows()[static_cast<std::size_t>(row)].Key;
  if (key < 0) return;
  setFocus(Qt::OtherFocusReason);  // else a list that goes out of sight would have it
  Choose(static_cast<RecurrenceKind>(key));
}

void CRecurrenceKindTabs::keyPressEvent(QKeyEvent* event) {
  const auto kind = KindAfterKey(m_model.Kind, event->key());
  kind ? Choose(*kind) : CPaintedWindow::keyPressEvent(event);
}

void CRecurrenceKindTabs::focusInEvent(QFocusEvent*) { LayOut(); }

void CRecurrenceKindTabs::focusOutEvent(QFocusEvent*) { LayOut(); }

}  // namespace quill
