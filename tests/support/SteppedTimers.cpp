#include "support/SteppedTimers.h"

#include <algorithm>

namespace quill::test {

void SteppedTimers::Set(TimerTarget& target, int id, int milliseconds) {
  Kill(target, id);
  m_timers.push_back({&target, id, milliseconds, m_now + milliseconds});
}

void SteppedTimers::Kill(TimerTarget& target, int id) {
  std::erase_if(m_timers,
                [&](const Timer& timer) { return timer.Target == &target && timer.Id == id; });
}

void SteppedTimers::KillAll(TimerTarget& target) {
  std::erase_if(m_timers, [&](const Timer& timer) { return timer.Target == &target; });
}

// A timer of 0 ms would fall due for ever: it fires once in each millisecond.
void SteppedTimers::Advance(int milliseconds) {
  const qint64 until = m_now + milliseconds;
  while (const auto timer = TakeDue(until)) {
    m_now = std::max(m_now, timer->Due);
    timer->Target->OnTimer(timer->Id);
  }
  m_now = until;
}

bool SteppedTimers::IsRunning(const TimerTarget& target, int id) const {
  return std::ranges::any_of(
      m_timers, [&](const Timer& timer) { return timer.Target == &target && timer.Id == id; });
}

// Moves the timer on to its next time before it fires, so that its handler may kill or set it.
std::optional<SteppedTimers::Timer> SteppedTimers::TakeDue(qint64 until) {
  const auto first = std::ranges::min_element(m_timers, {}, &Timer::Due);
  if (first == m_timers.end() || first->Due > until) return std::nullopt;
  const Timer due = *first;
  m_timers.erase(first);
  m_timers.push_back({due.Target, due.Id, due.Interval, due.Due + std::max(due.Interval, 1)});
  return due;
}

}  // namespace quill::test
