// One receive: for two minutes peers may push by every transport there is.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "infrared/ObexReception.h"
#include "infrared/ObexTransport.h"
#include "platform/Timers.h"

namespace quill {

using ObexTransports = std::vector<std::unique_ptr<ObexTransport>>;

class ObexReceiving : private TimerTarget {
 public:
  static constexpr int kDuration = 120'000;  // ms

  // All outlive this. Takes the reception's Answered for itself.
  ObexReceiving(const ObexTransports& transports, ObexReception& reception, Timers& timers);
  ~ObexReceiving() override;
  ObexReceiving(const ObexReceiving&) = delete;
  ObexReceiving& operator=(const ObexReceiving&) = delete;

  // While it is on, the two minutes begin anew. False when no transport can listen.
  bool Begin();
  void Stop();
  // Also behind the two minutes, and for two more at most, while the user is asked about what came
  // in them or it is still coming.
  bool IsOn() const { return m_isOn; }

  // Called when it goes on or off.
  std::function<void()> Changed;

 private:
  void OnTimer(int id) override;
  bool Listen();
  bool IsBusy() const;
  void SetOn(bool isOn);

  const ObexTransports& m_transports;
  ObexReception& m_reception;
  Timers& m_timers;
  bool m_isOn = false;
  bool m_isEnding = false;  // nobody new is let in, the last questions are waited for
};

}  // namespace quill
