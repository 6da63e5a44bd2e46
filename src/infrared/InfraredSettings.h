// How contacts are sent to other devices and taken from them.
#pragma once

#include <QString>
#include <QStringList>

#include "platform/RegistryStore.h"

namespace quill {

inline constexpr quint16 kDefaultObexPort = 26'500;

struct InfraredSettings {
  quint16 Port = kDefaultObexPort;  // that is listened on; 0: any that is free
  bool LocalNetwork = false;        // peers on other machines may push as well
  QStringList TrustedPeers = {};    // addresses whose cards are taken without a question
  QString LastReceiver = {};        // as it was typed (ParseReceiver); empty before

  bool operator==(const InfraredSettings&) const = default;
};

// What is missing or makes no sense counts as its default.
InfraredSettings ReadInfraredSettings(const RegistryStore& registry);

// False when a value could not be stored.
bool WriteInfraredSettings(RegistryStore& registry, const InfraredSettings& settings);

// Each changes one thing and leaves the others as they are. False when it could not be stored.
bool TrustPeer(RegistryStore& registry, const QString& peer);
bool RememberReceiver(RegistryStore& registry, const QString& receiver);

}  // namespace quill
