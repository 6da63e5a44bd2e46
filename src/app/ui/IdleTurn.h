// Waits until the window is idle: no other window and no menu open, no pen down. What asks the user
// by itself must not come between.
#pragma once

#include <functional>

#include "platform/Timers.h"

namespace quill {

class CScreen;

class IdleTurn : private TimerTarget {
 public:
  // Both outlive this.
  IdleTurn(const CScreen& screen, Timers& timers) : m_screen(screen), m_timers(timers) {}
  ~IdleTurn() override;
  IdleTurn(const IdleTurn&) = delete;
  IdleTurn& operator=(const IdleTurn&) = delete;

  // Calls once, at once when it is idle now. One call waits at a time: a later one takes its place.
  void Await(std::function<void()> call);
  // The call that waits does not come.
  void Cancel();

 private:
  void OnTimer(int id) override;

  const CScreen& m_screen;
  Timers& m_timers;
  std::function<void()> m_call;
};

}  // namespace quill
