// A window that paints rows of data. One paint event draws them, one accessibility class answers
// from them; neither reads anything but the rows.
#pragma once

#include <QAccessible>

#include <vector>

#include "platform/PaintedRow.h"
#include "platform/ui/PenWidget.h"

namespace quill {

class CPaintedWindow : public CPenWidget {
  Q_OBJECT
 public:
  // role: what the window as a whole is to assistive technology.
  CPaintedWindow(QWidget* parent, QAccessible::Role role);

  QAccessible::Role Role() const { return m_role; }

  const std::vector<PaintedRow>& Rows() const { return m_rows; }
  // The row that keys act on, -1 when there is none.
  int CurrentRow() const;
  // The row at a point, -1 when there is none.
  int RowAt(QPoint at) const;
  // What assistive technology does to a row: press it, or open its popup. Nothing by default.
  virtual void ActivateRow(int row);
  virtual void ShowRowMenu(int row);

 protected:
  void SetRows(std::vector<PaintedRow> rows);
  void SetBackground(Rgb color);
  void paintEvent(QPaintEvent* event) override;

 private:
  void TellAssistiveTechnology(QAccessible::Event type);

  const QAccessible::Role m_role;
  std::vector<PaintedRow> m_rows;
  Rgb m_background = 0xFFFFFF;
};

}  // namespace quill
