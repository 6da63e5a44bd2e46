// Another device, as the one that contacts are sent to.
#pragma once

#include <QString>

#include <optional>

namespace quill {

enum class ObexCarrier { Network, Bluetooth };

struct ObexReceiver {
  ObexCarrier Carrier = ObexCarrier::Network;
  QString Address;    // a host's name or address, or a Bluetooth address
  quint16 Port = 0;   // of a host
  QString Name = {};  // as the device calls itself; empty when it was typed

  bool operator==(const ObexReceiver&) const = default;
};

// From what a person types: "host", "host:port", "[::1]:port" or "00:11:22:AA:BB:CC". Without a
// port it is the one that Quill listens on unless told. Nothing when it is none of these.
std::optional<ObexReceiver> ParseReceiver(const QString& text);

// As a person may type it.
QString ReceiverText(const ObexReceiver& receiver);

}  // namespace quill
