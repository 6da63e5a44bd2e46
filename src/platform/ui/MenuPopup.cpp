#include "platform/ui/MenuPopup.h"

#include <QKeyEvent>
#include <QPointer>
#include <QWheelEvent>

#include "platform/ui/InputCommit.h"
#include "platform/ui/RowPainter.h"
#include "platform/ui/Screen.h"
#include "platform/ui/Shade.h"

namespace quill {

namespace {

constexpr Rgb kMenuBackground = 0xFFFFFF;
constexpr Rgb kMenuBorder = 0x5B7F95;

std::size_t Index(int item) { return static_cast<std::size_t>(item); }

// The border, the strips and their arrows are rows of no item.
std::vector<PaintedRow> WithFrame(const MenuLayout& layout) {
  const QSize size = layout.Frame.size();
  std::vector<PaintedRow> rows = layout.Rows;
  PaintedRow frame{.Rectangle = {0, 0, 0, 0}, .Key = -1, .Role = PaintedRole::Separator};
  const QRect all(QPoint(0, 0), size);
  for (const QRect& side :
       {QRect(0, 0, size.width(), 1), QRect(0, 0, 1, size.height()),
        QRect(0, all.bottom(), size.width(), 1), QRect(all.right(), 0, 1, size.height())})
    frame.Items.push_back({.Rectangle = side, .Fill = kMenuBorder});
  const auto addArrow = [&frame](const QRect& strip, const resources::Picture& picture) {
    const int left = strip.left() + (strip.width() - kMenuStripHeight) / 2;
    frame.Items.push_back({.Rectangle = {left, strip.top(), kMenuStripHeight, kMenuStripHeight},
                           .Color = kMenuBorder,
                           .Picture = &picture});
  };
  if (!layout.UpStrip.isNull()) addArrow(layout.UpStrip, resources::kUpPicture);
  if (!layout.DownStrip.isNull()) addArrow(layout.DownStrip, resources::kDownPicture);
  frame.Rectangle = all;
  rows.push_back(std::move(frame));
  return rows;
}

}  // namespace

// Lies below the menu over the whole screen: a press outside the menu ends it.
class CMenuShade : public CShade {
 public:
  CMenuShade(CScreen& screen, CMenuPopup& menu) : CShade(screen), m_menu(menu) {}

 protected:
  void PenPress(QPoint at) override { m_menu.PressOutside(at); }

 private:
  CMenuPopup& m_menu;
};

CMenuPopup::CMenuPopup(CScreen& screen, std::vector<MenuItem> items, QRect anchor,
                       MenuPopupKind kind)
    : CPaintedWindow(&screen, QAccessible::PopupMenu),
      m_screen(screen),
      m_kind(kind),
      m_items(std::move(items)) {
  m_request = {.Anchor = anchor, .Screen = screen.size()};
  setAccessibleName(QStringLiteral("Menu"));
  SetBackground(kMenuBackground);
  setFocusPolicy(Qt::StrongFocus);
}

CMenuPopup::CMenuPopup(CMenuPopup& parent, std::vector<MenuItem> items, QRect anchor)
    : CMenuPopup(parent.m_screen, std::move(items), anchor, parent.m_kind) {
  m_parentMenu = &parent;
  m_request.Placement = MenuPlacement::Beside;
}

CMenuPopup::~CMenuPopup() = default;

CMenuPopup& CMenuPopup::Root() { return m_parentMenu ? m_parentMenu->Root() : *this; }

int CMenuPopup::Track() {
  if (m_screen.IsClosing() || m_items.empty()) return 0;
  CommitInput();
  const QPointer<QWidget> focusBefore = m_screen.window()->focusWidget();
  CMenuPopup* const popupBefore = m_screen.Popup();
  CMenuShade shade(m_screen, *this);
  LayOut(0);
  if (m_request.Current >= 0) LayOut(FirstItemToShow(m_items, m_layout, m_request.Current));
  show();
  raise();
  setFocus(Qt::PopupFocusReason);
  m_screen.SetPopup(this);
  QEventLoop loop;
  m_loop = &loop;
  loop.exec(QEventLoop::DialogExec);
  m_loop = nullptr;
  m_screen.SetPopup(popupBefore);
  m_submenu.reset();
  hide();
  if (focusBefore) focusBefore->setFocus(Qt::PopupFocusReason);
  return m_result;
}

void CMenuPopup::End(int id) {
  CMenuPopup& root = Root();
  root.m_result = id;
  if (root.m_loop) root.m_loop->quit();
}

bool CMenuPopup::Choose(int id) {
  const MenuItem* item = FindMenuItem(m_items, id);
  if (!item || !item->Enabled) return false;
  End(id);
  return true;
}

void CMenuPopup::PressOutside(QPoint onScreen) {
  m_pressedOutsideAt = onScreen;
  End(0);
}

void CMenuPopup::LayOut(int firstItem) {
  m_request.FirstItem = firstItem;
  m_layout = LayOutMenu(m_items, m_request, NormalTextWidth());
  setGeometry(m_layout.Frame);
  SetRows(WithFrame(m_layout));
}

int CMenuPopup::ItemAt(QPoint at) const {
  for (const PaintedRow& row : m_layout.Rows)
    if (row.Rectangle.contains(at)) return row.Key;
  return -1;
}

void CMenuPopup::SetCurrent(int item) {
  if (item == m_request.Current) return;
  CloseSubmenu();
  m_request.Current = item;
  LayOut(item < 0 ? m_layout.FirstItem : FirstItemToShow(m_items, m_layout, item));
}

void CMenuPopup::ActivateRow(int row) {
  const int item = Rows()[Index(row)].Key;
  if (item >= 0) ActivateItem(item);
}

void CMenuPopup::ActivateItem(int item) {
  const MenuItem& chosen = m_items[Index(item)];
  if (chosen.Separator || !chosen.Enabled) return;
  if (chosen.Items.empty())
    End(chosen.Id);
  else
    OpenSubmenu(item);
}

void CMenuPopup::OpenSubmenu(int item) {
  SetCurrent(item);
  if (m_submenu) return;
  QRect anchor;
  for (const PaintedRow& row : m_layout.Rows)
    if (row.Key == item) anchor = row.Rectangle.translated(pos());
  m_submenu.reset(new CMenuPopup(*this, m_items[Index(item)].Items, anchor));
  m_submenu->setAccessibleName(m_items[Index(item)].Text);
  m_submenu->LayOut(0);
  m_submenu->show();
  m_submenu->raise();
  m_submenu->setFocus(Qt::PopupFocusReason);
}

void CMenuPopup::CloseSubmenu() {
  if (!m_submenu) return;
  m_submenu.reset();
  setFocus(Qt::PopupFocusReason);
}

bool CMenuPopup::HasOpenableItems(int item) const {
  return !m_items[Index(item)].Items.empty() && m_items[Index(item)].Enabled;
}

bool CMenuPopup::ScrollAt(QPoint at) {
  const int step = std::max(1, m_layout.LastItem - m_layout.FirstItem);
  if (m_layout.UpStrip.contains(at))
    LayOut(m_layout.FirstItem - step);
  else if (m_layout.DownStrip.contains(at))
    LayOut(m_layout.FirstItem + step);
  else
    return false;
  return true;
}

void CMenuPopup::PenPress(QPoint at) {
  if (ScrollAt(at)) return;
  const int item = ItemAt(at);
  if (item >= 0 && HasOpenableItems(item))
    OpenSubmenu(item);
  else
    SetCurrent(item);
}

// The open submenu when it lies under this point.
CMenuPopup* CMenuPopup::SubmenuAt(QPoint at) const {
  return m_submenu && m_submenu->geometry().contains(mapToParent(at)) ? m_submenu.get() : nullptr;
}

void CMenuPopup::PenMove(QPoint at) {
  if (CMenuPopup* const submenu = SubmenuAt(at))
    return submenu->PenMove(submenu->mapFromParent(mapToParent(at)));
  const int item = ItemAt(at);
  if (item < 0 && m_submenu) return;  // on the way to the submenu
  SetCurrent(item);
  if (item >= 0 && HasOpenableItems(item)) OpenSubmenu(item);
}

void CMenuPopup::PenHover(QPoint at) {
  const int item = ItemAt(at);
  if (item >= 0) SetCurrent(item);
}

void CMenuPopup::PenRelease(QPoint at) {
  if (CMenuPopup* const submenu = SubmenuAt(at))
    return submenu->PenRelease(submenu->mapFromParent(mapToParent(at)));
  const int item = ItemAt(at);
  if (item >= 0 && item == m_request.Current && m_items[Index(item)].Items.empty())
    ActivateItem(item);
}

void CMenuPopup::wheelEvent(QWheelEvent* event) {
  event->accept();
  const int turn = event->angleDelta().y();
  if (turn == 0) return;
  CloseSubmenu();
  LayOut(m_layout.FirstItem + (turn > 0 ? -1 : 1));
}

void CMenuPopup::GoSideways(int direction) {
  const int item = m_request.Current;
  if (direction > 0 && item >= 0 && !m_items[Index(item)].Items.empty()) {
    OpenSubmenu(item);
    MarkFirstOfSubmenu();
  } else if (direction < 0 && m_parentMenu) {
    m_parentMenu->CloseSubmenu();  // deletes this
  } else if (m_kind == MenuPopupKind::OfMenuBar) {
    Root().m_leftBy = direction;
    End(0);
  }
}

// Of the one that a key opened: the next key goes on from there.
void CMenuPopup::MarkFirstOfSubmenu() {
  if (m_submenu) m_submenu->SetCurrent(NextMenuItem(m_submenu->m_items, -1, 1));
}

void CMenuPopup::JumpToLetter(const QString& letter) {
  if (letter.isEmpty()) return;
  const int count = static_cast<int>(m_items.size());
  for (int i = 1; i <= count; ++i) {
    const int item = (std::max(m_request.Current, -1) + i) % count;
    if (m_items[Index(item)].Enabled &&
        m_items[Index(item)].Text.startsWith(letter, Qt::CaseInsensitive))
      return SetCurrent(item);
  }
}

void CMenuPopup::keyPressEvent(QKeyEvent* event) {
  event->accept();
  switch (event->key()) {
    case Qt::Key_Up:
      return SetCurrent(NextMenuItem(m_items, m_request.Current, -1));
    case Qt::Key_Down:
      return SetCurrent(NextMenuItem(m_items, m_request.Current, 1));
    case Qt::Key_Home:
      return SetCurrent(NextMenuItem(m_items, -1, 1));
    case Qt::Key_End:
      return SetCurrent(NextMenuItem(m_items, -1, -1));
    case Qt::Key_Left:
      return GoSideways(-1);
    case Qt::Key_Right:
      return GoSideways(1);
    case Qt::Key_Escape:
      if (m_parentMenu) return m_parentMenu->CloseSubmenu();  // deletes this
      return Dismiss();
    case Qt::Key_F10:
    case Qt::Key_Alt:
    case Qt::Key_Menu:
      return Dismiss();
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      if (m_request.Current >= 0) ActivateItem(m_request.Current);
      return MarkFirstOfSubmenu();
    default:
      return JumpToLetter(event->text());
  }
}

}  // namespace quill
