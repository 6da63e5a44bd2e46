// Numbered timers over Qt's. Needs a running event loop; lives as long as one QApplication.
//
// A timer whose handler runs a nested event loop rests until the handler returns.
#pragma once

#include <QObject>

#include <map>

#include "platform/Timers.h"

namespace quill {

class QtTimers : public QObject, public Timers {
 public:
  void Set(TimerTarget& target, int id, int milliseconds) override;
  void Kill(TimerTarget& target, int id) override;
  void KillAll(TimerTarget& target) override;

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  struct Entry {
    TimerTarget* Target;
    int Id;
  };
  std::map<int, Entry> m_entries;  // by Qt's number of the timer
};

}  // namespace quill
