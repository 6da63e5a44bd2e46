#include "platform/PalmFilter.h"

namespace quill {

void PalmFilter::PenAway(qint64 now) {
  // A second notice must not lengthen the delay.
  if (m_presence != Presence::Near) return;
  m_presence = Presence::Gone;
  m_goneSince = now;
}

bool PalmFilter::AcceptsTouch(qint64 now) const {
  switch (m_presence) {
    case Presence::None:
      return true;
    case Presence::Near:
      return false;
    case Presence::Gone:
      return now - m_goneSince >= kPalmDelay;
  }
  return true;
}

}  // namespace quill
