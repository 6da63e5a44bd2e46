#include "infrared/ObexTcpSender.h"

#include <QNetworkProxy>

#include <utility>

namespace quill {
namespace {

constexpr int kSilenceTimer = 1;
constexpr qint64 kReadAtOnce = 64 * 1024;

}  // namespace

ObexTcpSender::ObexTcpSender(Timers& timers) : m_timers(timers) {
  m_socket.setProxy(QNetworkProxy::NoProxy);
  m_socket.setReadBufferSize(kReadAtOnce);
  QObject::connect(&m_socket, &QTcpSocket::connected, &m_socket, [this] { Connected(); });
  QObject::connect(&m_socket, &QTcpSocket::readyRead, &m_socket, [this] { Read(); });
  QObject::connect(&m_socket, &QTcpSocket::errorOccurred, &m_socket, [this] { Finish(); });
  QObject::connect(&m_socket, &QTcpSocket::disconnected, &m_socket, [this] { Finish(); });
}

ObexTcpSender::~ObexTcpSender() { Drop(); }

void ObexTcpSender::Send(const QString& host, quint16 port, std::vector<ObexSending> cards,
                         const ObexSent& sent) {
  Drop();
  m_client.emplace(std::move(cards));
  m_sent = sent;
  m_timers.Set(*this, kSilenceTimer, kConnectPatience);
  m_socket.connectToHost(host, port);
}

void ObexTcpSender::Connected() {
  if (!m_client) return;
  m_client->Start();
  Proceed();
}

void ObexTcpSender::Read() {
  const QByteArray bytes = m_socket.readAll();
  if (!m_client || bytes.isEmpty()) return;
  m_client->Take(bytes);
  Proceed();
}

void ObexTcpSender::Proceed() {
  m_timers.Set(*this, kSilenceTimer, kAnswerPatience);
  m_socket.write(m_client->TakeOutput());
  if (m_client->IsOver()) Finish();
}

void ObexTcpSender::OnTimer(int) { Finish(); }

void ObexTcpSender::Finish() {
  if (!m_client) return;
  const std::vector<ObexOutcome> outcomes = m_client->Outcomes();
  const ObexSent sent = std::exchange(m_sent, nullptr);
  Drop();
  if (sent) sent(outcomes);
}

void ObexTcpSender::Drop() {
  m_timers.KillAll(*this);
  m_client.reset();
  m_socket.abort();
}

}  // namespace quill
