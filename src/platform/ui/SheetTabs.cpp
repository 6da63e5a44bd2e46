#include "platform/ui/SheetTabs.h"

namespace quill {

CSheetTabs::CSheetTabs(QWidget* parent) : CPaintedWindow(parent, QAccessible::PageTabList) {
  setAccessibleName(QStringLiteral("Pages"));
}

void CSheetTabs::AddTab(const QString& title) {
  m_model.Titles.append(title);
  LayOut();
}

void CSheetTabs::SetActive(int page) {
  m_model.Active = page;
  LayOut();
  QAccessibleEvent event(this, QAccessible::Selection);
  event.setChild(page);
  QAccessible::updateAccessibility(&event);
}

void CSheetTabs::SetPressed(int page) {
  m_model.Pressed = page;
  LayOut();
}

void CSheetTabs::LayOut() { SetRows(LayOutSheetTabs(m_model, size())); }

void CSheetTabs::PenPress(QPoint at) { SetPressed(RowAt(at)); }

void CSheetTabs::PenRelease(QPoint at) {
  const int pressed = m_model.Pressed;
  SetPressed(-1);
  if (pressed >= 0 && pressed == RowAt(at)) ActivateRow(pressed);
}

void CSheetTabs::ActivateRow(int row) {
  if (Chosen) Chosen(row);
}

void CSheetTabs::resizeEvent(QResizeEvent*) { LayOut(); }

}  // namespace quill
