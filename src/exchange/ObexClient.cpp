#include "exchange/ObexClient.h"

#include <algorithm>

#include "platform/TextFitting.h"

namespace quill {

namespace {

// So that name, type and length leave room for the body in the shortest packet.
constexpr qsizetype kLongestName = 50;  // UTF-16 units

constexpr QByteArrayView kCardType("text/x-vcard\0", 13);

bool IsAnswer(quint8 code) { return code >= static_cast<quint8>(ObexResponse::Continue); }

}  // namespace

ObexClient::ObexClient(std::vector<ObexSending> objects, quint16 longestPacket)
    : m_objects(std::move(objects)),
      m_outcomes(m_objects.size(), ObexOutcome::Broken),
      m_longestAnswer(longestPacket),
      m_stream(longestPacket) {}

void ObexClient::Start() { Send(ObexRequest::Connect, {}, ObexConnectFields(m_longestAnswer)); }

void ObexClient::Take(QByteArrayView bytes) {
  if (IsOver()) return;
  m_stream.Add(bytes);
  while (!IsOver()) {
    const auto packet = m_stream.Next();
    if (!packet) break;
    Handle(*packet);
  }
  if (m_stream.IsBroken()) m_step = Step::Over;
}

void ObexClient::Handle(const QByteArray& bytes) {
  const auto code = static_cast<quint8>(bytes.front());
  if (!IsAnswer(code) || m_step == Step::Disconnecting) {
    m_step = Step::Over;
  } else if (m_step == Step::Connecting) {
    Connected(bytes);
  } else {
    Answered(static_cast<ObexResponse>(code));
  }
}

void ObexClient::Connected(const QByteArray& bytes) {
  m_step = Step::Over;
  if (static_cast<ObexResponse>(bytes.front()) != ObexResponse::Success) {
    std::fill(m_outcomes.begin(), m_outcomes.end(), ObexOutcome::Refused);
    return;
  }
  const auto packet = ReadObexPacket(bytes, kObexConnectFixed);
  if (!packet) return;
  m_longestPacket = ObexLongestPacket(packet->Fixed);
  if (const ObexHeader* id = FindHeader(*packet, ObexHeaderId::ConnectionId)) m_connectionId = *id;
  Continue();
}

void ObexClient::Answered(ObexResponse response) {
  const bool isSent = m_sent == Object().Card.size();
  if (response == ObexResponse::Continue && !isSent) {
    PutMore();
  } else if (response == ObexResponse::Continue) {
    m_step = Step::Over;  // it waits for more than there is
  } else {
    const bool isTaken = response == ObexResponse::Success && isSent;
    Finish(isTaken ? ObexOutcome::Done : ObexOutcome::Refused);
  }
}

void ObexClient::Finish(ObexOutcome outcome) {
  m_outcomes[m_current] = outcome;
  ++m_current;
  m_sent = 0;
  Continue();
}

void ObexClient::Continue() {
  if (m_current < m_objects.size()) {
    m_step = Step::Putting;
    PutMore();
  } else {
    m_step = Step::Disconnecting;
    Send(ObexRequest::Disconnect, {});
  }
}

void ObexClient::PutMore() {
  std::vector<ObexHeader> headers = PutHeaders();
  qsizetype room = m_longestPacket - kObexPrefix - kObexHeaderPrefix;
  if (m_connectionId) room -= ObexSize(*m_connectionId);
  for (const ObexHeader& header : headers) room -= ObexSize(header);
  const QByteArray piece = Object().Card.mid(m_sent, room);
  m_sent += piece.size();
  const bool isLast = m_sent == Object().Card.size();
  headers.push_back(ObexBytes(isLast ? ObexHeaderId::EndOfBody : ObexHeaderId::Body, piece));
  Send(isLast ? ObexRequest::PutFinal : ObexRequest::Put, std::move(headers));
}

std::vector<ObexHeader> ObexClient::PutHeaders() const {
  if (m_sent > 0) return {};
  return {ObexText(ObexHeaderId::Name, CutText(Object().Name, kLongestName)),
          ObexBytes(ObexHeaderId::Type, kCardType.toByteArray()),
          ObexNumber(ObexHeaderId::Length, static_cast<quint32>(Object().Card.size()))};
}

void ObexClient::Send(ObexRequest request, std::vector<ObexHeader> headers,
                      const QByteArray& fixed) {
  // It has to be the first.
  if (m_connectionId) headers.insert(headers.begin(), *m_connectionId);
  m_output += WriteObexPacket({static_cast<quint8>(request), fixed, std::move(headers)});
}

}  // namespace quill
