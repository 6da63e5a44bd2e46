// Timers that run only when told to: Advance lets time pass and calls each OnTimer that falls due,
// in the order of their times (equal times: the one set first).
#pragma once

#include <QtGlobal>

#include <optional>
#include <vector>

#include "platform/Timers.h"

namespace quill::test {

class SteppedTimers : public Timers {
 public:
  void Set(TimerTarget& target, int id, int milliseconds) override;
  void Kill(TimerTarget& target, int id) override;
  void KillAll(TimerTarget& target) override;

  void Advance(int milliseconds);
  bool IsRunning(const TimerTarget& target, int id) const;

 private:
  struct Timer {
    TimerTarget* Target;
    int Id;
    int Interval;
    qint64 Due;
  };
  std::optional<Timer> TakeDue(qint64 until);

  std::vector<Timer> m_timers;  // in the order in which they were set or last fired
  qint64 m_now = 0;
};

}  // namespace quill::test
