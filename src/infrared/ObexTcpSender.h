// Pushes cards to one peer over TCP, in one session.
#pragma once

#include <QTcpSocket>

#include <optional>

#include "exchange/ObexClient.h"
#include "infrared/ObexTransport.h"
#include "platform/Timers.h"

namespace quill {

class ObexTcpSender : private TimerTarget {
 public:
  static constexpr int kConnectPatience = 15'000;  // ms
  // For one answer: the peer's user may be asked first.
  static constexpr int kAnswerPatience = 150'000;  // ms

  // The timers outlive this.
  explicit ObexTcpSender(Timers& timers);
  ~ObexTcpSender() override;
  ObexTcpSender(const ObexTcpSender&) = delete;
  ObexTcpSender& operator=(const ObexTcpSender&) = delete;

  // What was being sent before ends without a call.
  void Send(const QString& host, quint16 port, std::vector<ObexSending> cards,
            const ObexSent& sent);

 private:
  void OnTimer(int id) override;
  void Connected();
  void Read();
  void Proceed();
  void Finish();
  void Drop();

  Timers& m_timers;
  QTcpSocket m_socket;
  std::optional<ObexClient> m_client;  // while something is being sent
  ObexSent m_sent;
};

}  // namespace quill
