// One peer that pushes over TCP.
#pragma once

#include <QTcpSocket>

#include <memory>

#include "exchange/ObexInbox.h"
#include "infrared/ObexIncoming.h"
#include "platform/Timers.h"

namespace quill {

class ObexTcpPeer : public ObexIncoming, private TimerTarget {
 public:
  // A peer that says nothing for so long is hung up on, unless it is waiting for an answer itself.
  static constexpr int kPatience = 30'000;  // ms

  // The connection is open. Host and timers outlive this.
  ObexTcpPeer(std::unique_ptr<QTcpSocket> socket, ObexHost& host, Timers& timers);
  ~ObexTcpPeer() override;
  ObexTcpPeer(const ObexTcpPeer&) = delete;
  ObexTcpPeer& operator=(const ObexTcpPeer&) = delete;

  // Takes what has come already.
  void Begin();
  // Hangs up. Nothing is called from then on.
  void Close();
  bool IsAsking() const { return m_asked != 0; }

  void Want() override;
  void Refuse() override;

 private:
  void OnTimer(int id) override;
  void Read();
  void Answer(ObexVerdict verdict);
  void Proceed();
  void LookAtOffer();
  void AskHost();
  void End();

  std::unique_ptr<QTcpSocket> m_socket;
  Timers& m_timers;
  ObexInbox m_inbox;
  int m_asked = 0;  // which of the inbox's offers the host was asked about; 0: none
  bool m_isClosed = false;
};

}  // namespace quill
