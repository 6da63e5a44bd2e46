#include "list/TapMachine.h"

#include "list/ListLayout.h"
#include "list/Selection.h"

namespace quill {

namespace {

constexpr int kDeadBottom = 10;  // the lowest pixels of the list drag no further

// A tap that ends here shows the card.
constexpr int kCardLeft = 196;
constexpr int kCardRight = 219;

bool IsInMoveBand(int y, int listHeight) { return y > 0 && y < listHeight - kDeadBottom; }

TapAction ActionOfTap(const ListState& list, int x) {
  const bool onCard = x >= kCardLeft && x <= kCardRight;
  return onCard && list.Mode != ViewMode::ByMemo ? TapAction::ShowCard : TapAction::Open;
}

}  // namespace

TapIntention TapMachine::Press(const ListState& list, QPoint at) {
  const int row = ListRowAt(at.y());
  m_phase = Phase::Idle;
  if (!IsSelectableRow(list, row)) return {.Action = TapAction::Clear, .Timer = TapTimer::Stop};
  m_phase = Phase::Pressed;
  m_anchor = m_current = row;
  m_anchorKey = KeyOfRow(list, row);
  m_pressedAt = at;
  return {.Action = TapAction::Select, .Timer = TapTimer::Start, .Row = row};
}

bool TapMachine::KeepsItem(const ListState& list) const {
  return IsSelectableRow(list, m_anchor) && KeyOfRow(list, m_anchor) == m_anchorKey;
}

TapIntention TapMachine::Move(const ListState& list, QPoint at, int listHeight) {
  if (!IsDown() || (m_phase == Phase::Pressed && at == m_pressedAt)) return {};
  if (!KeepsItem(list)) return Cancel();
  if (IsInMoveBand(at.y(), listHeight)) return DragTo(list, ListRowAt(at.y()));
  m_phase = Phase::Dragging;
  return {.Timer = TapTimer::Stop};
}

TapIntention TapMachine::DragTo(const ListState& list, int row) {
  TapIntention intention;
  if (row != m_anchor) {
    m_phase = Phase::Dragging;
    intention.Timer = TapTimer::Stop;
  }
  if (row == m_current || !IsSelectableRow(list, row)) return intention;
  m_current = row;
  intention.Action = TapAction::SelectRun;
  intention.Row = row;
  intention.Anchor = m_anchor;
  return intention;
}

TapIntention TapMachine::Release(const ListState& list, QPoint at) {
  const bool acts = IsDown() && KeepsItem(list);
  m_phase = Phase::Idle;
  TapIntention intention{.Timer = TapTimer::Stop};
  if (!acts) return intention;
  intention.Action = m_current == m_anchor ? ActionOfTap(list, at.x()) : TapAction::EndRun;
  intention.Row = m_anchor;
  intention.At = at;
  if (intention.Action != TapAction::EndRun) m_phase = Phase::Opened;
  return intention;
}

TapIntention TapMachine::Hold(const ListState& list) {
  if (m_phase != Phase::Pressed) return {.Timer = TapTimer::Stop};
  if (!KeepsItem(list)) return Cancel();
  m_phase = Phase::Held;
  return {
      .Action = TapAction::ShowPopup, .Timer = TapTimer::Stop, .Row = m_anchor, .At = m_pressedAt};
}

TapIntention TapMachine::DoublePress(const ListState& list, QPoint at) {
  const int row = ListRowAt(at.y());
  const bool opens = m_phase == Phase::Idle && row >= 0 && row == SingleSelectedRow(list);
  if (!opens) return Press(list, at);
  m_phase = Phase::Held;
  return {.Action = TapAction::Open, .Timer = TapTimer::Stop, .Row = row, .At = at};
}

TapIntention TapMachine::Cancel() {
  m_phase = Phase::Idle;
  return {.Timer = TapTimer::Stop};
}

void ApplyTap(ListState& list, const TapIntention& intention) {
  switch (intention.Action) {
    case TapAction::Clear:
      return ClearSelectedKeys(list);
    case TapAction::Select:
    case TapAction::Open:
    case TapAction::ShowCard:
      return SelectRow(list, intention.Row);
    case TapAction::SelectRun:
      return SelectRun(list, intention.Anchor, intention.Row);
    case TapAction::EndRun:
      list.CurrentRow = intention.Row;
      return;
    case TapAction::ShowPopup:
    case TapAction::None:
      return;
  }
}

}  // namespace quill
