#include "infrared/ObexReceiving.h"

#include <algorithm>

namespace quill {
namespace {

constexpr int kEndTimer = 1;

}  // namespace

ObexReceiving::ObexReceiving(const ObexTransports& transports, ObexReception& reception,
                             Timers& timers)
    : m_transports(transports), m_reception(reception), m_timers(timers) {
  m_reception.Answered = [this] {
    if (m_isEnding && !IsBusy()) Stop();
  };
}

ObexReceiving::~ObexReceiving() {
  Changed = nullptr;
  Stop();
  m_reception.Answered = nullptr;
}

bool ObexReceiving::Begin() {
  if (!m_isOn || m_isEnding) {
    m_reception.Begin();
    if (!Listen()) {
      Stop();
      return false;
    }
  }
  m_isEnding = false;
  m_timers.Set(*this, kEndTimer, kDuration);
  SetOn(true);
  return true;
}

bool ObexReceiving::Listen() {
  bool isHeard = false;
  for (const auto& transport : m_transports) {
    if (transport->IsPresent() && transport->Listen(m_reception)) isHeard = true;
  }
  return isHeard;
}

bool ObexReceiving::IsBusy() const {
  return m_reception.IsAsking() ||
         std::any_of(m_transports.begin(), m_transports.end(),
                     [](const auto& transport) { return transport->IsBusy(); });
}

void ObexReceiving::OnTimer(int) {
  if (m_isEnding || !IsBusy()) return Stop();
  m_isEnding = true;
  for (const auto& transport : m_transports) transport->StopLettingIn();
}

void ObexReceiving::Stop() {
  m_timers.KillAll(*this);
  m_isEnding = false;
  for (const auto& transport : m_transports) transport->StopListening();
  SetOn(false);
}

void ObexReceiving::SetOn(bool isOn) {
  if (m_isOn == isOn) return;
  m_isOn = isOn;
  if (Changed) Changed();
}

}  // namespace quill
