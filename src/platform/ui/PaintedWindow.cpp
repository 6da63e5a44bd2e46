#include "platform/ui/PaintedWindow.h"

#include <QPaintEvent>
#include <QPainter>

#include "platform/ui/RowPainter.h"

namespace quill {

CPaintedWindow::CPaintedWindow(QWidget* parent, QAccessible::Role role)
    : CPenWidget(parent), m_role(role) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

int CPaintedWindow::RowAt(QPoint at) const {
  for (std::size_t i = 0; i < m_rows.size(); ++i)
    if (m_rows[i].Rectangle.contains(at)) return static_cast<int>(i);
  return -1;
}

void CPaintedWindow::ActivateRow(int) {}

void CPaintedWindow::ShowRowMenu(int) {}

void CPaintedWindow::SetRows(std::vector<PaintedRow> rows) {
  const bool structureChanged = rows.size() != m_rows.size();
  m_rows = std::move(rows);
  update();
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(
      this, structureChanged ? QAccessible::ObjectReorder : QAccessible::VisibleDataChanged);
  QAccessible::updateAccessibility(&event);
}

void CPaintedWindow::SetBackground(Rgb color) {
  m_background = color;
  update();
}

void CPaintedWindow::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), QColor::fromRgb(m_background));
  for (const PaintedRow& row : m_rows)
    if (row.Rectangle.intersects(event->rect())) DrawRow(painter, row);
}

}  // namespace quill
