// How an address of a peer is spelled: in what it offers, and among the trusted ones.
#pragma once

#include <QString>

class QHostAddress;

namespace quill {

// The older kind's spelling wherever there is one: "127.0.0.1", not "::ffff:127.0.0.1".
QString PeerAddress(const QHostAddress& address);

// From what a person types: a network address or a Bluetooth one, not the name of a host. Empty
// when it is neither.
QString PeerAddress(const QString& typed);

}  // namespace quill
