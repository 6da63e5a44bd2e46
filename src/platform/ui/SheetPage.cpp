#include "platform/ui/SheetPage.h"

#include "platform/ui/ControlFactory.h"
#include "platform/ui/Screen.h"
#include "platform/ui/Sheet.h"

namespace quill {

CSheetPage::CSheetPage(CSheet& sheet, const QString& title)
    : QWidget(&sheet), m_sheet(sheet), m_title(title) {
  setAccessibleName(title);
  setVisible(false);
}

QWidget* CSheetPage::AddPageControl(const resources::DialogControl& control) {
  QWidget* const widget = MakeControl(control, m_sheet.Screen(), this);
  if (control.Id != resources::kNoId) AddControl(control.Id, widget);
  return widget;
}

MenuBarModel CSheetPage::MenuBar() const { return {{m_sheet.Screen().InputPanelButton()}, {}}; }

}  // namespace quill
