#include "platform/ui/CheckList.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <utility>

#include "platform/ui/RowPainter.h"

namespace quill {

CCheckList::CCheckList(const QString& name, QWidget* parent)
    : CPaintedWindow(parent, QAccessible::List), m_bar(new QScrollBar(this)) {
  setAccessibleName(name);
  m_bar->setAccessibleName(QStringLiteral("Scroll bar"));
  setFocusPolicy(Qt::StrongFocus);
  connect(m_bar, &QScrollBar::valueChanged, this, [this](int value) { ScrollTo(value); });
}

void CCheckList::SetItems(std::vector<CheckListItem> items) {
  m_model.Items = std::move(items);
  m_model.Current = -1;
  m_pressed = -1;
  LayOut();
}

void CCheckList::SetCurrent(int index) {
  const int before = std::exchange(m_model.Current, index);
  LayOut();
  if (index != before && CurrentChanged) CurrentChanged();
}

void CCheckList::ActivateRow(int row) {
  bool& checked = m_model.Items[static_cast<std::size_t>(row)].Checked;
  checked = !checked;
  SetCurrent(row);
  TellChecked(row);
}

void CCheckList::TellChecked(int row) {
  QAccessible::State changed;
  changed.checked = true;
  QAccessibleStateChangeEvent event(this, changed);
  event.setChild(row);
  QAccessible::updateAccessibility(&event);
}

// The current row is brought into sight.
void CCheckList::LayOut() {
  const int top = CheckTopShowing(m_model, m_model.Current, height());
  m_bar->setVisible(LastCheckTop(m_model, height()) > 0);
  m_bar->setGeometry(width() - kCheckListBarWidth, 0, kCheckListBarWidth, height());
  m_bar->setRange(0, LastCheckTop(m_model, height()));
  m_bar->setPageStep(CheckRowsShown(height()));
  m_bar->setValue(top);
  ScrollTo(top);
}

void CCheckList::ScrollTo(int top) {
  m_model.Top = top;
  const int rowWidth = width() - (m_bar->isHidden() ? 0 : kCheckListBarWidth);
  SetRows(LayOutCheckList(m_model, rowWidth, NormalTextWidth()));
}

// The row is looked for first: with the focus the input panel may go, and the list grow and scroll.
void CCheckList::PenPress(QPoint at) {
  m_pressed = RowAt(at);
  m_pressedArea = m_pressed < 0 ? QRect() : Rows()[static_cast<std::size_t>(m_pressed)].Rectangle;
  setFocus(Qt::MouseFocusReason);
}

void CCheckList::PenRelease(QPoint at) {
  const int pressed = std::exchange(m_pressed, -1);
  if (pressed >= 0 && m_pressedArea.contains(at)) ActivateRow(pressed);
}

void CCheckList::keyPressEvent(QKeyEvent* event) {
  const auto row = CheckRowAfterKey(m_model, event->key(), height());
  if (row)
    SetCurrent(*row);
  else if (event->key() == Qt::Key_Space && m_model.Current >= 0)
    ActivateRow(m_model.Current);
  else
    CPaintedWindow::keyPressEvent(event);
}

void CCheckList::wheelEvent(QWheelEvent* event) { QCoreApplication::sendEvent(m_bar, event); }

void CCheckList::resizeEvent(QResizeEvent*) { LayOut(); }

}  // namespace quill
