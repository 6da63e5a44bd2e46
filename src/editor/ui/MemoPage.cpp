#include "editor/ui/MemoPage.h"

#include <QPainter>

#include "platform/ui/RowPainter.h"
#include "platform/ui/Screen.h"
#include "platform/ui/Sheet.h"
#include "resources/Ids.h"
#include "resources/Menus.h"
#include "store/ContactStore.h"

namespace quill {

namespace {

constexpr QRect kTextArea{0, 100, kScreenWidth, kCellHeight};

// Listed in the menus, disabled until there is an ink editor.
CommandRow Unavailable(int first, int last) { return {first, last, nullptr, nullptr}; }

}  // namespace

CMemoPage::CMemoPage(CSheet& sheet)
    : CSheetPage(sheet, QStringLiteral("Memo")),
      m_commands({Unavailable(ID_INK_SELECT_ALL, ID_INK_ZOOM_300),
                  Unavailable(ID_INK_DELETE_NOTE, ID_INK_DELETE_NOTE)}) {}

MenuBarModel CMemoPage::MenuBar() const {
  return {{Sheet().Screen().InputPanelButton()}, BuildMenus(resources::kInkMenu, Route())};
}

CommandRoute CMemoPage::Route() const {
  CommandRoute route;
  route.Add(m_commands);
  return route;
}

void CMemoPage::showEvent(QShowEvent*) {
  m_text = g_contactInk.Count() > 0 ? QStringLiteral("There are handwritten notes.")
                                    : QStringLiteral("There are no handwritten notes.");
}

void CMemoPage::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  DrawRow(painter, {.Rectangle = kTextArea,
                    .Items = {{.Rectangle = kTextArea,
                               .Text = m_text,
                               .Alignment = TextAlign::Centre,
                               .Color = 0x666666}}});
}

}  // namespace quill
