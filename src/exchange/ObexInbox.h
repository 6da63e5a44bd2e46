// The side of OBEX that is pushed to, for one connection: bytes in, bytes out. It takes cards and
// nothing else, gives nothing away and knows no folders; whoever connects, whatever they ask for,
// meets the same inbox.
//
// A card that has come whole is offered and the peer waits: it hears of success only after Answer.
// Holds no more than one object, one packet, and what came while a card was offered.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>
#include <utility>

#include "exchange/ObexObject.h"
#include "exchange/ObexPacket.h"
#include "exchange/ObexPacketStream.h"

namespace quill {

struct ObexInboxLimits {
  quint16 Packet = kObexLongestLimit;  // bytes; at least kObexShortestLimit
  qsizetype Object = kObexLargestObject;
  int Cards = kObexMostCards;  // in all objects of the connection
};

enum class ObexVerdict {
  Taken,
  Refused,  // the user does not want it
  Failed,   // it could not be stored
};

class ObexInbox {
 public:
  explicit ObexInbox(const ObexInboxLimits& limits = {})
      : m_limits(limits), m_stream(limits.Packet) {}

  // What the peer sent. Ignored once it is over.
  void Take(QByteArrayView bytes);
  // What is to be sent to the peer, once.
  QByteArray TakeOutput() { return std::exchange(m_output, {}); }

  // The object that waits for an answer; null when there is none, also when the peer took it back.
  const ObexObject* Offered() const { return m_offered ? &*m_offered : nullptr; }
  // How many there were so far, by which a new one is told from the one before.
  int Offers() const { return m_offers; }
  // May bring up the next one, which came meanwhile. Ignored when there is none.
  void Answer(ObexVerdict verdict);

  // Send the output, then close the connection: the peer has disconnected, or what it sends makes
  // no sense.
  bool IsOver() const { return m_isOver; }

 private:
  // An object of which not all has come.
  struct Incoming {
    QString Name;
    QByteArray Body;
    bool HasBody = false;
  };

  void Run();
  bool IsTakenBack() const;
  bool MakesNoSense() const;
  void Handle(const QByteArray& bytes);
  void Connect(const QByteArray& bytes);
  void Put(const QByteArray& bytes);
  bool Collect(const ObexPacket& packet);
  void Offer();
  void End(ObexResponse response);
  // Of what was incoming nothing is left.
  void Forget(ObexResponse response);
  void Send(const ObexPacket& packet) { m_output += WriteObexPacket(packet); }
  void Send(ObexResponse response) { Send(ObexPacket{static_cast<quint8>(response)}); }

  ObexInboxLimits m_limits;
  ObexPacketStream m_stream;
  QByteArray m_output;
  Incoming m_incoming;
  std::optional<ObexObject> m_offered;
  int m_offers = 0;
  bool m_isOver = false;
};

}  // namespace quill
