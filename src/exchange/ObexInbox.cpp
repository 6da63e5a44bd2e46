#include "exchange/ObexInbox.h"

namespace quill {

namespace {

constexpr quint32 kConnectionId = 1;
// A service's name has 16 bytes. No peer gets an answer that is longer than it has to take.
constexpr qsizetype kLongestWho = 128;

}  // namespace

void ObexInbox::Take(QByteArrayView bytes) {
  if (m_isOver) return;
  m_stream.Add(bytes);
  Run();
}

void ObexInbox::Run() {
  while (!m_isOver) {
    if (m_offered && IsTakenBack()) m_offered.reset();
    if (m_offered) break;
    const auto packet = m_stream.Next();
    if (!packet) break;
    Handle(*packet);
  }
  if (!m_isOver && MakesNoSense()) End(ObexResponse::BadRequest);
}

// A peer whose user has lost patience does not wait for the answer.
bool ObexInbox::IsTakenBack() const {
  return m_stream.NextCode() == static_cast<quint8>(ObexRequest::Abort);
}

bool ObexInbox::MakesNoSense() const {
  return m_offered ? m_stream.Waiting() > kObexLongestLimit : m_stream.IsBroken();
}

void ObexInbox::Handle(const QByteArray& bytes) {
  switch (static_cast<ObexRequest>(bytes.front())) {
    case ObexRequest::Connect:
      return Connect(bytes);
    case ObexRequest::Put:
    case ObexRequest::PutFinal:
      return Put(bytes);
    case ObexRequest::Abort:
      return Forget(ObexResponse::Success);
    case ObexRequest::Disconnect:
      return End(ObexResponse::Success);
    case ObexRequest::SetPath:
      return Send(ObexResponse::Forbidden);
    case ObexRequest::Get:
    case ObexRequest::GetFinal:
      return Send(ObexResponse::NotFound);
  }
  Send(ObexResponse::NotImplemented);
}

void ObexInbox::Connect(const QByteArray& bytes) {
  const auto packet = ReadObexPacket(bytes, kObexConnectFixed);
  if (!packet) return Forget(ObexResponse::BadRequest);
  m_incoming = {};
  ObexPacket answer{static_cast<quint8>(ObexResponse::Success), ObexConnectFields(m_limits.Packet)};
  // Some peers name a service, and wait for ever when they are refused. They get the inbox.
  if (const ObexHeader* target = FindHeader(*packet, ObexHeaderId::Target)) {
    answer.Headers = {ObexNumber(ObexHeaderId::ConnectionId, kConnectionId),
                      ObexBytes(ObexHeaderId::Who, target->Bytes.left(kLongestWho))};
  }
  Send(answer);
}

void ObexInbox::Put(const QByteArray& bytes) {
  const auto packet = ReadObexPacket(bytes, 0);
  if (!packet) return Forget(ObexResponse::BadRequest);
  if (!Collect(*packet)) return Forget(ObexResponse::TooLarge);
  if (packet->Code == static_cast<quint8>(ObexRequest::Put)) return Send(ObexResponse::Continue);
  Offer();
}

bool ObexInbox::Collect(const ObexPacket& packet) {
  const auto limit = static_cast<quint32>(m_limits.Object);
  for (const ObexHeader& header : packet.Headers) {
    switch (static_cast<ObexHeaderId>(header.Id)) {
      case ObexHeaderId::Name:
        m_incoming.Name = ObexTextOf(header);
        break;
      case ObexHeaderId::Length:
        if (header.Number > limit) return false;
        break;
      case ObexHeaderId::Body:
      case ObexHeaderId::EndOfBody:
        if (m_incoming.Body.size() + header.Bytes.size() > m_limits.Object) return false;
        m_incoming.Body += header.Bytes;
        m_incoming.HasBody = true;
        break;
      default:
        break;  // the type too: some peers give none, others a wrong one
    }
  }
  return true;
}

void ObexInbox::Offer() {
  // An object without a body is one that the peer wants deleted.
  if (!m_incoming.HasBody) return Forget(ObexResponse::Forbidden);
  auto object = CardObject(m_incoming.Name, m_incoming.Body, m_limits.Cards);
  if (!object) return Forget(ObexResponse::UnsupportedType);
  if (object->Cards > m_limits.Cards) return Forget(ObexResponse::TooLarge);
  m_incoming = {};
  m_offered = std::move(object);
  ++m_offers;
}

void ObexInbox::Answer(ObexVerdict verdict) {
  if (!m_offered) return;
  if (verdict == ObexVerdict::Taken) m_limits.Cards -= m_offered->Cards;
  m_offered.reset();
  switch (verdict) {
    case ObexVerdict::Taken:
      Send(ObexResponse::Success);
      break;
    case ObexVerdict::Refused:
      Send(ObexResponse::Forbidden);
      break;
    case ObexVerdict::Failed:
      Send(ObexResponse::Failed);
      break;
  }
  Run();
}

void ObexInbox::End(ObexResponse response) {
  Forget(response);
  m_offered.reset();
  m_isOver = true;
}

void ObexInbox::Forget(ObexResponse response) {
  m_incoming = {};
  Send(response);
}

}  // namespace quill
