// A transport that remembers what it is told and carries nothing.
#pragma once

#include <QStringList>

#include "infrared/ObexTransport.h"

namespace quill::test {

class RecordingTransport : public ObexTransport {
 public:
  explicit RecordingTransport(ObexCarrier carrier = ObexCarrier::Bluetooth) : m_carrier(carrier) {}

  bool IsPresent() const override { return Present; }
  ObexCarrier Carrier() const override { return m_carrier; }
  void Find(const ObexFound& found) override {
    Calls += QStringLiteral("find");
    Found = found;
  }
  void StopFinding() override { Calls += QStringLiteral("stop finding"); }
  void Send(const ObexReceiver& receiver, std::vector<ObexSending> cards,
            const ObexSent& sent) override {
    Calls += QStringLiteral("send %1 to %2").arg(cards.size()).arg(receiver.Address);
    Cards = std::move(cards);
    Sent = sent;
  }
  bool Listen(ObexHost& host) override {
    Calls += QStringLiteral("listen");
    Host = &host;
    return Listens;
  }
  void StopLettingIn() override { Calls += QStringLiteral("let nobody in"); }
  void StopListening() override { Calls += QStringLiteral("stop"); }
  bool IsBusy() const override { return Busy; }

  // What was called since the last time.
  QStringList Take() { return std::exchange(Calls, {}); }

  bool Present = true;
  bool Listens = true;
  bool Busy = false;
  QStringList Calls;
  ObexFound Found;
  std::vector<ObexSending> Cards;
  ObexSent Sent;
  ObexHost* Host = nullptr;

 private:
  ObexCarrier m_carrier;
};

}  // namespace quill::test
