// Lets peers push over TCP, for as long as it is told to.
#pragma once

#include <QHostAddress>
#include <QTcpServer>

#include <memory>
#include <vector>

#include "infrared/ObexTcpPeer.h"

namespace quill {

// Whether an address is this machine's or lies in a network without names of its own, as homes and
// offices have: the internet does not lead to it.
bool IsNearby(const QHostAddress& address);

enum class ObexReach { ThisMachine, LocalNetwork };

class ObexTcpInbox {
 public:
  static constexpr std::size_t kMostPeers = 4;  // at once; others are hung up on

  // The timers outlive this.
  explicit ObexTcpInbox(Timers& timers);
  ~ObexTcpInbox();
  ObexTcpInbox(const ObexTcpInbox&) = delete;
  ObexTcpInbox& operator=(const ObexTcpInbox&) = delete;

  // Port 0 is any free one. The host outlives this. False when it cannot, and the log says why.
  bool Listen(ObexReach reach, quint16 port, ObexHost& host);
  // 0 while it does not listen.
  quint16 Port() const { return m_server.serverPort(); }

  // Peers that wait for an answer get it; all others are hung up on.
  void StopLettingIn();
  void Stop();

 private:
  void Accept();
  void Retire(const ObexTcpPeer& peer);

  Timers& m_timers;
  QTcpServer m_server;
  ObexHost* m_host = nullptr;
  std::vector<std::unique_ptr<ObexTcpPeer>> m_peers;
  std::vector<std::unique_ptr<ObexTcpPeer>> m_retired;  // until no call of theirs is going on
};

}  // namespace quill
