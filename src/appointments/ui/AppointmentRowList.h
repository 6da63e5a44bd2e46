// The painted rows of the appointment dialog. A tap on a row, or Return and the space bar on the
// current one, chooses it; a tap below them chooses none, one on the heading nothing at all; the
// arrow keys move the current row, which shows while the list has the focus.
#pragma once

#include <functional>

#include "appointments/AppointmentRows.h"
#include "platform/ui/PaintedWindow.h"

namespace quill {

class CAppointmentRowList : public CPaintedWindow {
  Q_OBJECT
 public:
  CAppointmentRowList(const QString& heading, QWidget* parent);

  void ShowForm(const AppointmentForm& form);
  // The row whose controls are shown over it.
  void SetRevealed(std::optional<AppointmentRow> row);
  std::optional<AppointmentRow> Revealed() const { return m_revealed; }
  void ActivateRow(int row) override;

  std::function<void(std::optional<AppointmentRow> row)> Chosen;
  // The arrow keys made this row the current one.
  std::function<void(AppointmentRow row)> Reached = [](AppointmentRow) {};

 protected:
  void PenPress(QPoint at) override;
  void PenRelease(QPoint at) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void LayOut();
  void MoveCurrent(int step);
  void Choose(AppointmentRow row);

  const QString m_heading;
  AppointmentForm m_form;
  AppointmentRow m_current = AppointmentRow::Subject;
  std::optional<AppointmentRow> m_revealed;
  std::optional<QPoint> m_pressedAt;
};

}  // namespace quill
