#include "infrared/PeerAddress.h"

#include <QHostAddress>

#include "infrared/ObexReceiver.h"

namespace quill {

QString PeerAddress(const QHostAddress& address) {
  bool isOlderKind = false;
  const quint32 older = address.toIPv4Address(&isOlderKind);
  return isOlderKind ? QHostAddress(older).toString() : address.toString();
}

QString PeerAddress(const QString& typed) {
  const auto receiver = ParseReceiver(typed);
  if (receiver && receiver->Carrier == ObexCarrier::Bluetooth) return receiver->Address;
  return PeerAddress(QHostAddress(typed.trimmed()));
}

}  // namespace quill
