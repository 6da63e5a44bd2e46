// A clock that stands still until it is set.
#pragma once

#include <utility>

#include "platform/Clock.h"

namespace quill::test {

class FixedClock : public Clock {
 public:
  explicit FixedClock(QDateTime now) : m_now(std::move(now)) {}

  QDateTime Now() const override { return m_now; }
  void Set(const QDateTime& now) { m_now = now; }

 private:
  QDateTime m_now;
};

}  // namespace quill::test
