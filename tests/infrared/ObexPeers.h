// The others around a transport of OBEX: whoever is asked, whoever pushes, and time.
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QStringList>
#include <QTcpSocket>
#include <QTimer>

#include <functional>
#include <vector>

#include "infrared/ObexTransport.h"

namespace quill::test {

// Lets events run until something is so; false when it has not become so for ten seconds.
template <typename Condition>
bool Until(Condition condition) {
  bool isLate = false;
  QTimer limit;
  limit.setSingleShot(true);
  QObject::connect(&limit, &QTimer::timeout, &limit, [&isLate] { isLate = true; });
  limit.start(10'000);
  while (!condition() && !isLate) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  return condition();
}

// A host that remembers and does nothing by itself.
class RecordingHost : public ObexHost {
 public:
  void Ask(ObexPusher& pusher) override {
    Asked.push_back(&pusher);
    Offers.push_back(pusher.Offer());
    if (WhenAsked) WhenAsked(pusher);
  }
  void TakeBack(ObexPusher& pusher) override {
    std::erase(Asked, &pusher);
    ++TakenBack;
  }
  bool Store(const ObexObject& object) override {
    Stored += object.Bytes;
    return Stores;
  }
  int Room() const override { return Cards; }

  // Answers the one that was asked first.
  void Want() { Pop()->Want(); }
  void Refuse() { Pop()->Refuse(); }

  std::function<void(ObexPusher& pusher)> WhenAsked;
  std::vector<ObexPusher*> Asked;  // and neither answered nor taken back
  std::vector<ObexOffer> Offers;
  QList<QByteArray> Stored;
  int TakenBack = 0;
  int Cards = kObexMostCards;
  bool Stores = true;

 private:
  ObexPusher* Pop() {
    ObexPusher* pusher = Asked.front();
    Asked.erase(Asked.begin());
    return pusher;
  }
};

// A peer over TCP that says what it is told to.
class PlainPeer {
 public:
  explicit PlainPeer(quint16 port, const QString& host = QStringLiteral("127.0.0.1")) {
    m_socket.connectToHost(host, port);
  }

  bool Connect() {
    return Until([this] { return m_socket.state() == QTcpSocket::ConnectedState; });
  }
  // Sends, and waits for so many bytes more.
  QByteArray Ask(const QByteArray& bytes, qsizetype answer) {
    m_socket.write(bytes);
    Until([&] { return m_socket.bytesAvailable() >= answer || IsHungUp(); });
    return m_socket.readAll();
  }
  void Send(const QByteArray& bytes) {
    m_socket.write(bytes);
    m_socket.flush();
  }
  bool IsHungUp() const { return m_socket.state() == QTcpSocket::UnconnectedState; }
  bool WaitForHangUp() {
    return Until([this] { return IsHungUp(); });
  }
  QTcpSocket& Socket() { return m_socket; }

 private:
  QTcpSocket m_socket;
};

}  // namespace quill::test
