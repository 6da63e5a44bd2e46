// OBEX over TCP: there wherever there is a network, if only within the machine. Receivers are
// typed, not found.
#pragma once

#include "infrared/InfraredSettings.h"
#include "infrared/ObexTcpInbox.h"
#include "infrared/ObexTcpSender.h"
#include "infrared/ObexTransport.h"

namespace quill {

class ObexTcpTransport : public ObexTransport {
 public:
  // Both outlive this. The settings count as they are when it begins to listen.
  ObexTcpTransport(const InfraredSettings& settings, Timers& timers)
      : m_settings(settings), m_sender(timers), m_inbox(timers) {}

  bool IsPresent() const override { return true; }
  ObexCarrier Carrier() const override { return ObexCarrier::Network; }
  void Find(const ObexFound&) override {}
  void StopFinding() override {}
  void Send(const ObexReceiver& receiver, std::vector<ObexSending> cards,
            const ObexSent& sent) override;
  bool Listen(ObexHost& host) override;
  void StopLettingIn() override { m_inbox.StopLettingIn(); }
  void StopListening() override { m_inbox.Stop(); }
  // A peer is asked about once all has come.
  bool IsBusy() const override { return false; }

  // On which it listens; 0 while it does not.
  quint16 Port() const { return m_inbox.Port(); }

 private:
  const InfraredSettings& m_settings;
  ObexTcpSender m_sender;
  ObexTcpInbox m_inbox;
};

}  // namespace quill
