#include "platform/ui/PanelEdit.h"

#include <QFocusEvent>

#include "platform/InputPanel.h"
#include "platform/Services.h"

namespace quill {

namespace {

// Null where the panel is to stay as it is.
InputPanel* PanelToMove(const QFocusEvent& event) {
  return event.reason() == Qt::PopupFocusReason ? nullptr : g_services.InputPanel;
}

}  // namespace

void CPanelEdit::focusInEvent(QFocusEvent* event) {
  CEdit::focusInEvent(event);
  if (InputPanel* const panel = PanelToMove(*event)) panel->Raise();
}

void CPanelEdit::focusOutEvent(QFocusEvent* event) {
  CEdit::focusOutEvent(event);
  if (InputPanel* const panel = PanelToMove(*event)) panel->Lower();
}

}  // namespace quill
