#include "infrared/ObexTcpPeer.h"

#include <QHostAddress>

#include <utility>

#include "infrared/PeerAddress.h"

namespace quill {
namespace {

constexpr int kSilenceTimer = 1;
constexpr qint64 kReadAtOnce = 64 * 1024;
// A peer that does not read the answers gets no more of them.
constexpr qint64 kMostUnread = 64 * 1024;

}  // namespace

ObexTcpPeer::ObexTcpPeer(std::unique_ptr<QTcpSocket> socket, ObexHost& host, Timers& timers)
    : ObexIncoming(host),
      m_socket(std::move(socket)),
      m_timers(timers),
      m_inbox({.Cards = host.Room()}) {
  m_offer.Peer = PeerAddress(m_socket->peerAddress());
  m_socket->setReadBufferSize(kReadAtOnce);
  QTcpSocket* context = m_socket.get();
  QObject::connect(context, &QTcpSocket::readyRead, context, [this] { Read(); });
  QObject::connect(context, &QTcpSocket::disconnected, context, [this] { End(); });
}

ObexTcpPeer::~ObexTcpPeer() { Close(); }

void ObexTcpPeer::Begin() {
  m_timers.Set(*this, kSilenceTimer, kPatience);
  Read();
  if (m_socket->state() == QTcpSocket::UnconnectedState) End();
}

void ObexTcpPeer::Close() {
  if (std::exchange(m_isClosed, true)) return;
  m_timers.KillAll(*this);
  QObject::disconnect(m_socket.get(), nullptr, m_socket.get(), nullptr);
  m_socket->abort();
  if (std::exchange(m_asked, 0) != 0) m_host.TakeBack(*this);
}

void ObexTcpPeer::End() {
  if (m_isClosed) return;
  Close();
  if (Ended) Ended();
}

void ObexTcpPeer::OnTimer(int) { End(); }

void ObexTcpPeer::Read() {
  if (m_isClosed) return;
  const QByteArray bytes = m_socket->readAll();
  if (bytes.isEmpty()) return;
  if (!IsAsking()) m_timers.Set(*this, kSilenceTimer, kPatience);
  m_inbox.Take(bytes);
  Proceed();
}

void ObexTcpPeer::Want() {
  const ObexObject object = *m_inbox.Offered();
  Answer(m_host.Store(object) ? ObexVerdict::Taken : ObexVerdict::Failed);
}

void ObexTcpPeer::Refuse() { Answer(ObexVerdict::Refused); }

void ObexTcpPeer::Answer(ObexVerdict verdict) {
  m_asked = 0;
  m_timers.Set(*this, kSilenceTimer, kPatience);
  m_inbox.Answer(verdict);
  Proceed();
}

void ObexTcpPeer::Proceed() {
  m_socket->write(m_inbox.TakeOutput());
  // The one who gave the answer may hang up with it.
  m_socket->flush();
  if (m_socket->bytesToWrite() > kMostUnread) return End();
  // What was written goes out before the connection is closed.
  if (m_inbox.IsOver()) m_socket->disconnectFromHost();
  LookAtOffer();
}

// The peer may have taken an offer back, and made another in the same breath.
void ObexTcpPeer::LookAtOffer() {
  if (m_isClosed) return;
  const int offered = m_inbox.Offered() ? m_inbox.Offers() : 0;
  if (offered == m_asked) return;
  if (std::exchange(m_asked, offered) != 0) m_host.TakeBack(*this);
  if (offered != 0) AskHost();
}

void ObexTcpPeer::AskHost() {
  const ObexObject& object = *m_inbox.Offered();
  m_offer.Label = object.Label;
  m_offer.Person = object.Person;
  m_offer.Cards = object.Cards;
  m_timers.Kill(*this, kSilenceTimer);
  m_host.Ask(*this);
}

}  // namespace quill
