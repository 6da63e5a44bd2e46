#include "platform/ui/SheetPage.h"

#include "platform/ui/Screen.h"
#include "platform/ui/Sheet.h"

namespace quill {

CSheetPage::CSheetPage(CSheet& sheet, const QString& title)
    : QWidget(&sheet), m_sheet(sheet), m_title(title) {
  setAccessibleName(title);
  setVisible(false);
}

MenuBarModel CSheetPage::MenuBar() const { return {{m_sheet.Screen().InputPanelButton()}, {}}; }

}  // namespace quill
