// A clock that stands still at a set time, or goes with the system's while none is set.
#pragma once

#include <optional>

#include "platform/Clock.h"

namespace quill::driver {

class SettableClock : public Clock {
 public:
  QDateTime Now() const override { return m_frozen ? *m_frozen : m_system.Now(); }
  void Set(std::optional<QDateTime> frozen) { m_frozen = std::move(frozen); }

 private:
  SystemClock m_system;
  std::optional<QDateTime> m_frozen;
};

}  // namespace quill::driver
