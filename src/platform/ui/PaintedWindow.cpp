#include "platform/ui/PaintedWindow.h"

#include <QPaintEvent>
#include <QPainter>

#include <utility>

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

int CPaintedWindow::CurrentRow() const {
  for (std::size_t i = 0; i < m_rows.size(); ++i)
    if (m_rows[i].State.testFlag(PaintedStateFlag::Current)) return static_cast<int>(i);
  return -1;
}

void CPaintedWindow::SetRows(std::vector<PaintedRow> rows) {
  const auto currentItem = [this] {
    const int row = CurrentRow();
    return std::pair(row, row < 0 ? 0 : m_rows[static_cast<std::size_t>(row)].Key);
  };
  const auto currentBefore = currentItem();
  const bool structureChanged = rows.size() != m_rows.size();
  m_rows = std::move(rows);
  update();
  if (!QAccessible::isActive()) return;
  TellAssistiveTechnology(structureChanged ? QAccessible::ObjectReorder
                                           : QAccessible::VisibleDataChanged);
  if (currentItem() != currentBefore && CurrentRow() >= 0)
    TellAssistiveTechnology(QAccessible::Focus);
}

// A focus event is the current row's, any other the window's.
void CPaintedWindow::TellAssistiveTechnology(QAccessible::Event type) {
  QAccessibleEvent event(this, type);
  if (type == QAccessible::Focus) event.setChild(CurrentRow());
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
