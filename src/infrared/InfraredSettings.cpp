#include "infrared/InfraredSettings.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <limits>
#include <optional>

namespace quill {
namespace {

constexpr QChar kBetweenPeers = u',';
constexpr int kLongestText = 65'536;  // bytes

QString Key() { return QStringLiteral("\\Software\\Fennick\\Quill\\Infrared"); }
QString PortName() { return QStringLiteral("Port"); }
QString LocalNetworkName() { return QStringLiteral("LocalNetwork"); }
QString TrustedPeersName() { return QStringLiteral("TrustedPeers"); }
QString LastReceiverName() { return QStringLiteral("LastReceiver"); }

QString ReadText(const RegistryStore& registry, const QString& name) {
  const int size = registry.QueryText(Key(), name, {}).Size;
  if (size <= 0 || size > kLongestText) return {};
  QByteArray block(size, '\0');
  const std::span<char> room(block.data(), static_cast<std::size_t>(block.size()));
  if (registry.QueryText(Key(), name, room).Status != RegistryStatus::Done) return {};
  QStringDecoder decode(QStringDecoder::Utf16LE);
  const QString text = decode(block);
  return text.left(text.indexOf(QChar::Null));
}

QByteArray BlockOf(const QString& text) {
  QStringEncoder encode(QStringEncoder::Utf16LE);
  return encode(text + QChar::Null);
}

}  // namespace

InfraredSettings ReadInfraredSettings(const RegistryStore& registry) {
  InfraredSettings settings;
  const auto port = registry.QueryNumber(Key(), PortName());
  if (port && *port <= std::numeric_limits<quint16>::max()) {
    settings.Port = static_cast<quint16>(*port);
  }
  // Anything but a clear yes keeps the others out.
  settings.LocalNetwork = registry.QueryNumber(Key(), LocalNetworkName()) == 1U;
  settings.TrustedPeers =
      ReadText(registry, TrustedPeersName()).split(kBetweenPeers, Qt::SkipEmptyParts);
  settings.LastReceiver = ReadText(registry, LastReceiverName());
  return settings;
}

bool WriteInfraredSettings(RegistryStore& registry, const InfraredSettings& settings) {
  return registry.Put(Key(),
                      {{PortName(), quint32{settings.Port}},
                       {LocalNetworkName(), settings.LocalNetwork ? 1U : 0U},
                       {TrustedPeersName(), BlockOf(settings.TrustedPeers.join(kBetweenPeers))},
                       {LastReceiverName(), BlockOf(settings.LastReceiver)}});
}

bool TrustPeer(RegistryStore& registry, const QString& peer) {
  QStringList peers = ReadInfraredSettings(registry).TrustedPeers;
  if (peers.contains(peer)) return true;
  peers.append(peer);
  return registry.PutText(Key(), TrustedPeersName(), BlockOf(peers.join(kBetweenPeers)));
}

bool RememberReceiver(RegistryStore& registry, const QString& receiver) {
  return registry.PutText(Key(), LastReceiverName(), BlockOf(receiver));
}

}  // namespace quill
