// The painted part of an appointment's preview, above its note: texts, and two buttons that a pen
// presses. With the focus, Tab and the arrow keys go from button to button, Return and the space
// bar use the current one.
#pragma once

#include <functional>

#include "appointments/AppointmentPreviewLayout.h"
#include "platform/ui/PaintedWindow.h"

namespace quill {

class CAppointmentPreviewFace : public CPaintedWindow {
  Q_OBJECT
 public:
  CAppointmentPreviewFace(AppointmentPreview preview, QWidget* parent);

  void ActivateRow(int row) override;

  // Called with the command of the button that was used.
  std::function<void(int command)> Chosen;

 protected:
  void PenPress(QPoint at) override;
  void PenMove(QPoint at) override;
  void PenRelease(QPoint at) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void LayOut();
  void SetCurrent(std::optional<PreviewButton> button);

  const AppointmentPreview m_preview;
  PreviewPen m_pen;
  std::optional<PreviewButton> m_current;  // while it has the focus
};

}  // namespace quill
