#include "platform/QtTimers.h"

#include <QTimerEvent>

namespace quill {

void QtTimers::Set(TimerTarget& target, int id, int milliseconds) {
  Kill(target, id);
  m_entries[startTimer(milliseconds)] = {&target, id};
}

void QtTimers::Kill(TimerTarget& target, int id) {
  std::erase_if(m_entries, [&](const auto& timer) {
    if (timer.second.Target != &target || timer.second.Id != id) return false;
    killTimer(timer.first);
    return true;
  });
}

void QtTimers::KillAll(TimerTarget& target) {
  std::erase_if(m_entries, [&](const auto& timer) {
    if (timer.second.Target != &target) return false;
    killTimer(timer.first);
    return true;
  });
}

void QtTimers::timerEvent(QTimerEvent* event) {
  const auto timer = m_entries.find(event->timerId());
  if (timer == m_entries.end()) return;
  // The handler may kill this timer or end its target: hold no reference into the map.
  const Entry entry = timer->second;
  entry.Target->OnTimer(entry.Id);
}

}  // namespace quill
