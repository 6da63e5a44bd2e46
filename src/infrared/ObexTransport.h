// What carries cards to other devices and back, and what it needs of the one who uses it. One
// transport for each carrier; all run on the event loop and never wait.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <vector>

#include "exchange/ObexClient.h"
#include "exchange/ObexObject.h"
#include "infrared/ObexReceiver.h"

namespace quill {

// What a peer would hand over. Its texts are the peer's, made fit to be shown; any may be empty.
struct ObexOffer {
  QString Peer;      // its address, by which it may be trusted
  QString PeerName;  // as it calls itself
  QString Label;     // the object's name
  QString Person;    // whose card it is, when that is known yet
  int Cards = 0;     // 0: not known yet
};

// One peer that waits to hear whether its offer is wanted.
class ObexPusher {
 public:
  virtual ~ObexPusher() = default;
  virtual const ObexOffer& Offer() const = 0;
  virtual void Want() = 0;
  virtual void Refuse() = 0;
};

// Who decides about offers and stores what is wanted.
class ObexHost {
 public:
  virtual ~ObexHost() = default;
  // Answered once, at once or later, unless it is taken back before.
  virtual void Ask(ObexPusher& pusher) = 0;
  // The pusher is gone, or has no offer any more.
  virtual void TakeBack(ObexPusher& pusher) = 0;
  // Of an offer that is wanted. False when nothing of it could be stored.
  virtual bool Store(const ObexObject& object) = 0;
  // How many more cards may be stored; it goes down with each.
  virtual int Room() const = 0;
};

// Called once, with one outcome for each card in their order.
using ObexSent = std::function<void(const std::vector<ObexOutcome>& outcomes)>;
using ObexFound = std::function<void(const ObexReceiver& receiver)>;

class ObexTransport {
 public:
  virtual ~ObexTransport() = default;

  // Whether this device has it at all.
  virtual bool IsPresent() const = 0;
  virtual ObexCarrier Carrier() const = 0;

  // Tells of every receiver that is found, at once or later, until StopFinding.
  virtual void Find(const ObexFound& found) = 0;
  virtual void StopFinding() = 0;

  // Ends what was being sent before, without a call.
  virtual void Send(const ObexReceiver& receiver, std::vector<ObexSending> cards,
                    const ObexSent& sent) = 0;

  // From now on peers may push, until StopListening. The host outlives that. False when nobody can
  // reach this device.
  virtual bool Listen(ObexHost& host) = 0;
  // Nobody new is let in; who is being asked about stays until the answer.
  virtual void StopLettingIn() = 0;
  virtual void StopListening() = 0;
  // Whether something is still coming that is wanted.
  virtual bool IsBusy() const = 0;
};

}  // namespace quill
