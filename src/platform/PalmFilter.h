// Tells a palm on the glass from a finger: touch counts only while no pen is about. Times are
// milliseconds of any clock that never goes back.
#pragma once

#include <QtGlobal>

namespace quill {

inline constexpr qint64 kPalmDelay = 500;

class PalmFilter {
 public:
  // The pen hovers or touches; it may be told any number of times.
  void PenNear() { m_presence = Presence::Near; }
  void PenAway(qint64 now);

  // False while the pen is near and for kPalmDelay after it went.
  bool AcceptsTouch(qint64 now) const;

 private:
  enum class Presence { None, Near, Gone };

  Presence m_presence = Presence::None;
  qint64 m_goneSince = 0;
};

}  // namespace quill
