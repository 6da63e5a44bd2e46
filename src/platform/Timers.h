// Numbered timers of windows, as the handheld's shell had them: Set with an id that already runs
// starts it anew; a timer repeats until it is killed.
#pragma once

namespace quill {

class TimerTarget {
 public:
  virtual ~TimerTarget() = default;
  virtual void OnTimer(int id) = 0;
};

// Does not own the targets: a target kills its timers before it goes.
class Timers {
 public:
  virtual ~Timers() = default;
  virtual void Set(TimerTarget& target, int id, int milliseconds) = 0;
  virtual void Kill(TimerTarget& target, int id) = 0;
  virtual void KillAll(TimerTarget& target) = 0;
};

}  // namespace quill
