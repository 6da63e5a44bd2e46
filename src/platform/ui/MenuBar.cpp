#include "platform/ui/MenuBar.h"

#include "platform/ui/MenuPopup.h"
#include "platform/ui/RowPainter.h"
#include "platform/ui/Screen.h"

namespace quill {

namespace {

constexpr Rgb kBarBackground = 0xDDE6EB;

}  // namespace

CMenuBar::CMenuBar(CScreen& screen)
    : CPaintedWindow(&screen, QAccessible::MenuBar), m_screen(screen) {
  setGeometry(kMenuBarArea);
  setAccessibleName(QStringLiteral("Menu bar"));
  SetBackground(kBarBackground);
}

void CMenuBar::ShowFor(const CWindow* window) {
  m_model = window ? window->MenuBar() : MenuBarModel{};
  ShowPressed(m_pressed);
}

void CMenuBar::ShowPressed(int position) {
  m_pressed = position;
  SetRows(LayOutMenuBar(m_model, size(), position, NormalTextWidth()));
}

void CMenuBar::PenPress(QPoint at) {
  m_screen.UpdateChrome();
  const int position = RowAt(at);
  if (position >= ButtonCount())
    OpenMenus(position, MenuOpening::ByPen);
  else
    ShowPressed(position);
}

void CMenuBar::PenMove(QPoint at) {
  if (m_screen.Popup()) return;  // the press opened a menu: the rest of it does nothing
  if (m_pressed >= 0 && RowAt(at) != m_pressed) ShowPressed(-1);
}

void CMenuBar::PenRelease(QPoint at) {
  if (m_screen.Popup()) return;
  const int position = RowAt(at);
  const bool same = position >= 0 && position == m_pressed;
  ShowPressed(-1);
  if (same) RunButton(position);
}

void CMenuBar::ActivateRow(int row) {
  if (!m_screen.IsChromeUsable()) return;
  m_screen.UpdateChrome();
  row < ButtonCount() ? RunButton(row) : OpenMenus(row, MenuOpening::ByKey);
}

void CMenuBar::RunButton(int position) {
  if (position >= ButtonCount()) return;
  m_screen.RunCommand(m_model.Buttons[static_cast<std::size_t>(position)].Id);
}

void CMenuBar::OpenFirstMenu() {
  if (!m_screen.IsChromeUsable()) return;
  m_screen.UpdateChrome();
  if (!m_model.Menus.empty()) OpenMenus(ButtonCount(), MenuOpening::ByKey);
}

// By a key the menu begins at its first item.
void CMenuBar::OpenMenus(int position, MenuOpening opening) {
  int command = 0;
  while (position >= 0) {
    ShowPressed(position);
    const auto& menu = m_model.Menus[static_cast<std::size_t>(position - ButtonCount())];
    const QRect title = Rows()[static_cast<std::size_t>(position)].Rectangle.translated(pos());
    CMenuPopup popup(m_screen, menu.Items, title, MenuPopupKind::OfMenuBar);
    popup.setAccessibleName(menu.Text);
    if (opening == MenuOpening::ByKey) popup.StartAt(NextMenuItem(menu.Items, -1, 1));
    command = popup.Track();
    position = NextMenu(position, popup);
    opening = popup.LeftBy() != 0 ? MenuOpening::ByKey : MenuOpening::ByPen;
  }
  ShowPressed(-1);
  if (command != 0) m_screen.RunCommand(command);
}

// The menu to open after one was left by an arrow key or by a press on another title; -1 for none.
int CMenuBar::NextMenu(int position, const CMenuPopup& left) const {
  const int menus = static_cast<int>(m_model.Menus.size());
  if (left.LeftBy() != 0)
    return ButtonCount() + (position - ButtonCount() + left.LeftBy() + menus) % menus;
  if (!left.PressedOutsideAt()) return -1;
  const int pressed = RowAt(*left.PressedOutsideAt() - pos());
  return pressed >= ButtonCount() && pressed != position ? pressed : -1;
}

}  // namespace quill
