// What the pen on the list means: a state machine fed with press, moves, release, the hold timer
// and the second press of a double tap, that answers with an intention. It changes no list; points
// are logical pixels of the list control.
//
// A gesture belongs to the item under its press. When the page is filled anew under the pen and
// another item stands there, the gesture is over and acts on nothing.
#pragma once

#include <QPoint>

#include "list/ListState.h"

namespace quill {

inline constexpr int kListHoldTimer = 6;

enum class TapAction {
  None,
  Clear,      // select nothing
  Select,     // Row alone
  SelectRun,  // from Anchor to Row
  EndRun,     // the run stays selected; Row, where it began, becomes the current one
  Open,       // and select Row alone
  ShowCard,   // the same
  ShowPopup,
};

enum class TapTimer { Keep, Start, Stop };  // of kListHoldMilliseconds

struct TapIntention {
  TapAction Action = TapAction::None;
  TapTimer Timer = TapTimer::Keep;
  int Row = -1;
  int Anchor = -1;
  QPoint At = {};  // where the card or the popup belongs

  bool operator==(const TapIntention&) const = default;
};

class TapMachine {
 public:
  TapIntention Press(const ListState& list, QPoint at);
  // listHeight: of the control. Moves near its lower end and above it drag no further. A pen that
  // tells of another pressure at the same point has not moved.
  TapIntention Move(const ListState& list, QPoint at, int listHeight);
  TapIntention Release(const ListState& list, QPoint at);
  TapIntention Hold(const ListState& list);
  // Opens the one selected row under it, unless the first tap has opened it already.
  TapIntention DoublePress(const ListState& list, QPoint at);
  // The system took the pen away.
  TapIntention Cancel();

 private:
  enum class Phase {
    Idle,
    Pressed,   // the hold timer runs
    Dragging,  // it was stopped, for good
    Held,      // the timer fired or a double tap opened: the release does nothing
    Opened,    // idle; the last tap opened the contact or its card
  };

  bool IsDown() const { return m_phase == Phase::Pressed || m_phase == Phase::Dragging; }
  bool KeepsItem(const ListState& list) const;
  TapIntention DragTo(const ListState& list, int row);

  Phase m_phase = Phase::Idle;
  int m_anchor = -1;  // row of the press
  int m_anchorKey = 0;
  int m_current = -1;  // row under the pen
  QPoint m_pressedAt;
};

// Carries out what the intention says of the selection.
void ApplyTap(ListState& list, const TapIntention& intention);

}  // namespace quill
