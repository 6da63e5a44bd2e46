#include "list/ui/ContactListCtrl.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>
#include <array>

#include "list/ListLayout.h"
#include "list/Selection.h"
#include "memo/MemoState.h"
#include "platform/Hold.h"
#include "platform/Services.h"
#include "platform/ui/RowPainter.h"
#include "store/ContactStore.h"

namespace quill {

namespace {

constexpr int kWheelLine = 40;  // eighths of a degree: three lines for a notch of 15 degrees

struct MoveKey {
  int Key;
  KeyMove Move;
};
constexpr std::array kMoveKeys = {
    MoveKey{Qt::Key_Up, KeyMove::LineUp},     MoveKey{Qt::Key_Down, KeyMove::LineDown},
    MoveKey{Qt::Key_PageUp, KeyMove::PageUp}, MoveKey{Qt::Key_PageDown, KeyMove::PageDown},
    MoveKey{Qt::Key_Home, KeyMove::First},    MoveKey{Qt::Key_End, KeyMove::Last},
};

constexpr int kCardMiddle = 10;  // below the row's top: where the card of a key begins

bool IsMenuKey(const QKeyEvent& event) {
  const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
  return event.key() == Qt::Key_Menu || (shift && event.key() == Qt::Key_F10);
}

bool IsOpenKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

// Where the popup of a key stands: below the row.
QPoint PopupPlace(int row) { return {kListWidth / 2, (row + 1) * kListRowHeight}; }

}  // namespace

CContactListCtrl::CContactListCtrl(QWidget* view) : CPaintedWindow(view, QAccessible::List) {
  setFocusPolicy(Qt::StrongFocus);
  SetBackground(kListBackground);
}

CContactListCtrl::~CContactListCtrl() {
  if (g_services.Timers) g_services.Timers->KillAll(*this);
}

void CContactListCtrl::ShowPage() {
  const bool isByMemo = g_list.Mode == ViewMode::ByMemo;
  setAccessibleName(isByMemo ? QStringLiteral("Memos") : QStringLiteral("Contacts"));
  if (!g_store.Provider) return SetRows({});  // without a store nobody can be added
  SetRows(LayOutList(g_list, g_memo.NameList, NormalTextWidth()));
}

void CContactListCtrl::PenPress(QPoint at) {
  setFocus(Qt::MouseFocusReason);
  CarryOut(m_taps.Press(g_list, at));
}

void CContactListCtrl::PenDoublePress(QPoint at) { CarryOut(m_taps.DoublePress(g_list, at)); }

void CContactListCtrl::PenMove(QPoint at) { CarryOut(m_taps.Move(g_list, at, height())); }

void CContactListCtrl::PenRelease(QPoint at) { CarryOut(m_taps.Release(g_list, at)); }

void CContactListCtrl::PenCancel() { CarryOut(m_taps.Cancel()); }

void CContactListCtrl::OnTimer(int id) {
  if (id == kListHoldTimer) CarryOut(m_taps.Hold(g_list));
}

void CContactListCtrl::CarryOut(const TapIntention& intention) {
  if (intention.Timer == TapTimer::Start)
    g_services.Timers->Set(*this, kListHoldTimer, kHoldMilliseconds);
  if (intention.Timer == TapTimer::Stop) g_services.Timers->Kill(*this, kListHoldTimer);
  if (intention.Action == TapAction::None) return;
  ApplyTap(g_list, intention);
  ShowPage();
  Ask(intention);
}

void CContactListCtrl::Ask(const TapIntention& intention) {
  if (intention.Action == TapAction::Open && OpenAsked) OpenAsked(intention.Row);
  if (intention.Action == TapAction::ShowCard && CardAsked) CardAsked(intention.Row, intention.At);
  if (intention.Action == TapAction::ShowPopup && PopupAsked)
    PopupAsked(intention.Row, intention.At);
}

// Assistive technology selects the row it acts on, as a tap does.
void CContactListCtrl::ActivateRow(int row) {
  if (IsSelectableRow(g_list, row)) CarryOut({.Action = TapAction::Open, .Row = row});
}

void CContactListCtrl::ShowRowMenu(int row) {
  if (!IsSelectableRow(g_list, row)) return;
  CarryOut({.Action = TapAction::Select, .Row = row});
  Ask({.Action = TapAction::ShowPopup, .Row = row, .At = PopupPlace(row)});
}

void CContactListCtrl::keyPressEvent(QKeyEvent* event) {
  const auto move = std::ranges::find(kMoveKeys, event->key(), &MoveKey::Key);
  if (move != kMoveKeys.end()) {
    Move(move->Move, event->modifiers());
  } else if (event->isAutoRepeat() || !(AskForPopup(*event) || ActOnSelected(*event))) {
    CPaintedWindow::keyPressEvent(event);
  }
}

// Selecting several stays on the page, as a drag does.
void CContactListCtrl::Move(KeyMove move, Qt::KeyboardModifiers modifiers) {
  if (!modifiers.testFlag(Qt::ShiftModifier)) {
    if (MoveAsked) MoveAsked(move);
    return;
  }
  ExtendSelection(g_list, move);
  ShowPage();
}

// Without a selected row under it the key goes on to the screen.
bool CContactListCtrl::AskForPopup(const QKeyEvent& event) {
  const int row = g_list.CurrentRow;
  if (!IsMenuKey(event) || !IsSelectableRow(g_list, row) ||
      !IsKeySelected(g_list, KeyOfRow(g_list, row))) {
    return false;
  }
  Ask({.Action = TapAction::ShowPopup, .Row = row, .At = PopupPlace(row)});
  return true;
}

// Without a row that is selected alone these keys go on, too.
bool CContactListCtrl::ActOnSelected(const QKeyEvent& event) {
  const int row = SingleSelectedRow(g_list);
  if (row < 0) return false;
  if (IsOpenKey(event)) {
    Ask({.Action = TapAction::Open, .Row = row});
  } else if (event.key() == Qt::Key_Right && g_list.Mode != ViewMode::ByMemo) {
    Ask({.Action = TapAction::ShowCard,
         .Row = row,
         .At = {kListWidth, row * kListRowHeight + kCardMiddle}});
  } else {
    return false;
  }
  return true;
}

void CContactListCtrl::wheelEvent(QWheelEvent* event) {
  m_wheelRest += event->angleDelta().y();
  const int lines = m_wheelRest / kWheelLine;
  m_wheelRest -= lines * kWheelLine;
  for (int i = 0; i < std::abs(lines); ++i)
    if (ScrollAsked) ScrollAsked(lines > 0 ? ScrollRequest::LineUp : ScrollRequest::LineDown);
  event->accept();
}

}  // namespace quill
