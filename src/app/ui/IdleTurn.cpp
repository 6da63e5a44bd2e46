#include "app/ui/IdleTurn.h"

#include <utility>

#include "platform/ui/Screen.h"

namespace quill {

namespace {

constexpr int kLookTimer = 1;
constexpr int kLookInterval = 100;  // milliseconds

}  // namespace

IdleTurn::~IdleTurn() { m_timers.KillAll(*this); }

void IdleTurn::Await(std::function<void()> call) {
  m_call = std::move(call);
  m_timers.Set(*this, kLookTimer, kLookInterval);
  OnTimer(kLookTimer);
}

void IdleTurn::Cancel() {
  m_timers.KillAll(*this);
  m_call = nullptr;
}

void IdleTurn::OnTimer(int) {
  if (!m_screen.IsUndisturbed()) return;
  m_timers.KillAll(*this);
  if (const auto call = std::exchange(m_call, nullptr)) call();
}

}  // namespace quill
