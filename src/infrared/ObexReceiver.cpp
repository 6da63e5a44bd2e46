#include "infrared/ObexReceiver.h"

#include <QRegularExpression>

#include "infrared/InfraredSettings.h"

namespace quill {
namespace {

constexpr qsizetype kLongestHost = 255;

bool Matches(const char* pattern, const QString& text) {
  const QRegularExpression expression(
      QRegularExpression::anchoredPattern(QString::fromLatin1(pattern)),
      QRegularExpression::UseUnicodePropertiesOption);
  return expression.match(text).hasMatch();
}

std::optional<quint16> PortOf(const QString& text) {
  bool isNumber = false;
  const quint16 port = text.toUShort(&isNumber);
  if (!isNumber || port == 0) return std::nullopt;
  return port;
}

std::optional<ObexReceiver> Host(const QString& host, const std::optional<quint16>& port) {
  if (!port || host.size() > kLongestHost) return std::nullopt;
  if (!Matches("[\\w.-]+|[0-9A-Fa-f:.]+(%[\\w.-]+)?", host)) return std::nullopt;
  return ObexReceiver{ObexCarrier::Network, host, *port};
}

}  // namespace

std::optional<ObexReceiver> ParseReceiver(const QString& text) {
  const QString typed = text.trimmed();
  if (Matches("([0-9A-Fa-f]{2}:){5}[0-9A-Fa-f]{2}", typed)) {
    return ObexReceiver{ObexCarrier::Bluetooth, typed.toUpper()};
  }
  if (typed.startsWith(u'[')) {
    const qsizetype end = typed.indexOf(u']');
    const QString host = typed.mid(1, end - 1);
    const QString behind = typed.mid(end + 1);
    if (end < 0 || !host.contains(u':')) return std::nullopt;
    if (behind.isEmpty()) return Host(host, kDefaultObexPort);
    return behind.startsWith(u':') ? Host(host, PortOf(behind.mid(1))) : std::nullopt;
  }
  // With more than one colon it is an address of the newer kind, and has no port.
  if (typed.count(u':') != 1) return Host(typed, kDefaultObexPort);
  const qsizetype colon = typed.indexOf(u':');
  const QString host = typed.left(colon);
  return host.isEmpty() ? std::nullopt : Host(host, PortOf(typed.mid(colon + 1)));
}

QString ReceiverText(const ObexReceiver& receiver) {
  if (receiver.Carrier == ObexCarrier::Bluetooth) return receiver.Address;
  const bool needsBrackets = receiver.Address.contains(u':');
  const QString host =
      needsBrackets ? QStringLiteral("[%1]").arg(receiver.Address) : receiver.Address;
  return QStringLiteral("%1:%2").arg(host).arg(receiver.Port);
}

}  // namespace quill
