#include "infrared/ObexTcpInbox.h"

#include <QLoggingCategory>
#include <QNetworkProxy>

#include <algorithm>
#include <array>
#include <utility>

namespace quill {
namespace {

Q_LOGGING_CATEGORY(logInbox, "quill.infrared")

constexpr std::array kNearby{"127.0.0.0/8",    "10.0.0.0/8", "172.16.0.0/12", "192.168.0.0/16",
                             "169.254.0.0/16", "::1/128",    "fe80::/10",     "fc00::/7"};

}  // namespace

bool IsNearby(const QHostAddress& address) {
  bool isOlderKind = false;
  const quint32 older = address.toIPv4Address(&isOlderKind);
  const QHostAddress plain = isOlderKind ? QHostAddress(older) : address;
  return std::any_of(kNearby.begin(), kNearby.end(), [&plain](const char* network) {
    return plain.isInSubnet(QHostAddress::parseSubnet(QString::fromLatin1(network)));
  });
}

ObexTcpInbox::ObexTcpInbox(Timers& timers) : m_timers(timers) {
  m_server.setProxy(QNetworkProxy::NoProxy);
  QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] { Accept(); });
}

ObexTcpInbox::~ObexTcpInbox() { Stop(); }

bool ObexTcpInbox::Listen(ObexReach reach, quint16 port, ObexHost& host) {
  Stop();
  m_host = &host;
  const auto address =
      reach == ObexReach::LocalNetwork ? QHostAddress::Any : QHostAddress::LocalHost;
  if (m_server.listen(address, port)) return true;
  qCWarning(logInbox) << "cannot listen on port" << port << m_server.errorString();
  return false;
}

void ObexTcpInbox::Accept() {
  while (QTcpSocket* connection = m_server.nextPendingConnection()) {
    std::unique_ptr<QTcpSocket> socket(connection);
    socket->setParent(nullptr);
    if (m_peers.size() >= kMostPeers || !IsNearby(socket->peerAddress())) {
      qCInfo(logInbox) << "not let in:" << socket->peerAddress().toString();
      continue;
    }
    m_peers.push_back(std::make_unique<ObexTcpPeer>(std::move(socket), *m_host, m_timers));
    ObexTcpPeer& peer = *m_peers.back();
    peer.Ended = [this, &peer] { Retire(peer); };
    peer.Begin();
  }
}

void ObexTcpInbox::Retire(const ObexTcpPeer& peer) {
  const auto found = std::find_if(m_peers.begin(), m_peers.end(),
                                  [&peer](const auto& each) { return each.get() == &peer; });
  if (found == m_peers.end()) return;
  m_retired.push_back(std::move(*found));
  m_peers.erase(found);
  QMetaObject::invokeMethod(
      &m_server, [this] { m_retired.clear(); }, Qt::QueuedConnection);
}

void ObexTcpInbox::StopLettingIn() {
  m_server.close();
  std::vector<ObexTcpPeer*> leaving;
  for (const auto& peer : m_peers) {
    if (!peer->IsAsking()) leaving.push_back(peer.get());
  }
  for (ObexTcpPeer* peer : leaving) {
    peer->Close();
    Retire(*peer);
  }
}

void ObexTcpInbox::Stop() {
  StopLettingIn();
  while (!m_peers.empty()) {
    m_peers.back()->Close();
    Retire(*m_peers.back());
  }
}

}  // namespace quill
