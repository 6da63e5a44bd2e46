// The side of OBEX that pushes, for one connection: bytes in, bytes out. All objects go in one
// session, one after the other; one that the peer refuses does not keep the others back.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

#include "exchange/ObexPacket.h"
#include "exchange/ObexPacketStream.h"

namespace quill {

struct ObexSending {
  QString Name;     // as the peer shows it; its beginning, when it is long
  QByteArray Card;  // up to 4 GiB
};

enum class ObexOutcome {
  Done,
  Refused,
  Broken,  // the peer has not said: the session ended before, or made no sense
};

class ObexClient {
 public:
  // The limit is of the packets that come back. How long those are that go out, the peer says.
  explicit ObexClient(std::vector<ObexSending> objects, quint16 longestPacket = kObexLongestLimit);

  // Begins the session; once.
  void Start();
  // What the peer sent. Ignored once it is over.
  void Take(QByteArrayView bytes);
  // What is to be sent to the peer, once.
  QByteArray TakeOutput() { return std::exchange(m_output, {}); }

  // Send the output, then close the connection.
  bool IsOver() const { return m_step == Step::Over; }
  // One for each object, in their order; Broken until the peer has said.
  const std::vector<ObexOutcome>& Outcomes() const { return m_outcomes; }

 private:
  enum class Step { Connecting, Putting, Disconnecting, Over };

  void Handle(const QByteArray& bytes);
  void Connected(const QByteArray& bytes);
  void Answered(ObexResponse response);
  void Finish(ObexOutcome outcome);
  void Continue();
  void PutMore();
  std::vector<ObexHeader> PutHeaders() const;
  const ObexSending& Object() const { return m_objects[m_current]; }
  void Send(ObexRequest request, std::vector<ObexHeader> headers, const QByteArray& fixed = {});

  std::vector<ObexSending> m_objects;
  std::vector<ObexOutcome> m_outcomes;
  quint16 m_longestAnswer;
  ObexPacketStream m_stream;
  QByteArray m_output;
  Step m_step = Step::Connecting;
  qsizetype m_longestPacket = kObexShortestLimit;  // that the peer takes
  std::optional<ObexHeader> m_connectionId;        // when the peer gave one
  std::size_t m_current = 0;                       // the object being sent
  qsizetype m_sent = 0;                            // bytes of it
};

}  // namespace quill
