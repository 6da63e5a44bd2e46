#include "exchange/ObexPacket.h"

#include <QStringDecoder>
#include <QStringEncoder>
#include <QtEndian>

#include <algorithm>

namespace quill {

namespace {

constexpr quint8 kVersion = 0x10;  // 1.0 of the packets' format
constexpr quint8 kNoFlags = 0;

enum class HeaderKind : quint8 { Text = 0, Bytes = 1, OneByte = 2, FourBytes = 3 };

HeaderKind KindOf(quint8 id) { return static_cast<HeaderKind>(id >> 6); }

template <typename Number>
Number NumberAt(QByteArrayView bytes, qsizetype at) {
  return qFromBigEndian<Number>(bytes.data() + at);
}

template <typename Number>
void Append(QByteArray& bytes, Number number) {
  char written[sizeof number];
  qToBigEndian(number, written);
  bytes.append(written, sizeof number);
}

// Takes a header off the front; false when it does not fit into the bytes.
bool TakeNumber(QByteArrayView& rest, ObexHeader& header) {
  const qsizetype size = KindOf(header.Id) == HeaderKind::OneByte ? 2 : 5;
  if (rest.size() < size) return false;
  header.Number = size == 2 ? NumberAt<quint8>(rest, 1) : NumberAt<quint32>(rest, 1);
  rest = rest.sliced(size);
  return true;
}

bool TakeBytes(QByteArrayView& rest, ObexHeader& header) {
  if (rest.size() < kObexHeaderPrefix) return false;
  const qsizetype size = NumberAt<quint16>(rest, 1);
  if (size < kObexHeaderPrefix || size > rest.size()) return false;
  header.Bytes = rest.first(size).sliced(kObexHeaderPrefix).toByteArray();
  rest = rest.sliced(size);
  return true;
}

bool TakeHeader(QByteArrayView& rest, ObexHeader& header) {
  header.Id = static_cast<quint8>(rest.front());
  const HeaderKind kind = KindOf(header.Id);
  const bool isNumber = kind == HeaderKind::OneByte || kind == HeaderKind::FourBytes;
  return isNumber ? TakeNumber(rest, header) : TakeBytes(rest, header);
}

void AppendHeader(QByteArray& bytes, const ObexHeader& header) {
  bytes += static_cast<char>(header.Id);
  switch (KindOf(header.Id)) {
    case HeaderKind::OneByte:
      return Append(bytes, static_cast<quint8>(header.Number));
    case HeaderKind::FourBytes:
      return Append(bytes, header.Number);
    case HeaderKind::Text:
    case HeaderKind::Bytes:
      Append(bytes, static_cast<quint16>(ObexSize(header)));
      bytes += header.Bytes;
  }
}

}  // namespace

std::optional<ObexPacket> ReadObexPacket(QByteArrayView bytes, qsizetype fixedBytes) {
  if (bytes.size() < kObexPrefix + fixedBytes) return std::nullopt;
  if (NumberAt<quint16>(bytes, 1) != bytes.size()) return std::nullopt;
  ObexPacket packet{static_cast<quint8>(bytes.front()),
                    bytes.sliced(kObexPrefix, fixedBytes).toByteArray()};
  QByteArrayView rest = bytes.sliced(kObexPrefix + fixedBytes);
  while (!rest.isEmpty()) {
    ObexHeader header;
    if (!TakeHeader(rest, header)) return std::nullopt;
    packet.Headers.push_back(std::move(header));
  }
  return packet;
}

QByteArray WriteObexPacket(const ObexPacket& packet) {
  qsizetype size = kObexPrefix + packet.Fixed.size();
  for (const ObexHeader& header : packet.Headers) size += ObexSize(header);
  QByteArray bytes;
  bytes.reserve(size);
  bytes += static_cast<char>(packet.Code);
  Append(bytes, static_cast<quint16>(size));
  bytes += packet.Fixed;
  for (const ObexHeader& header : packet.Headers) AppendHeader(bytes, header);
  return bytes;
}

qsizetype ObexSize(const ObexHeader& header) {
  switch (KindOf(header.Id)) {
    case HeaderKind::OneByte:
      return 2;
    case HeaderKind::FourBytes:
      return 5;
    case HeaderKind::Text:
    case HeaderKind::Bytes:
      break;
  }
  return kObexHeaderPrefix + header.Bytes.size();
}

ObexHeader ObexText(ObexHeaderId id, const QString& text) {
  QStringEncoder encode(QStringEncoder::Utf16BE);
  QByteArray bytes = encode(text);
  // No text at all is a header without bytes, not even a terminator.
  if (!bytes.isEmpty()) bytes.append(2, '\0');
  return {static_cast<quint8>(id), 0, bytes};
}

ObexHeader ObexBytes(ObexHeaderId id, const QByteArray& bytes) {
  return {static_cast<quint8>(id), 0, bytes};
}

ObexHeader ObexNumber(ObexHeaderId id, quint32 number) {
  return {static_cast<quint8>(id), number, {}};
}

const ObexHeader* FindHeader(const ObexPacket& packet, ObexHeaderId id) {
  const auto found =
      std::find_if(packet.Headers.begin(), packet.Headers.end(),
                   [id](const ObexHeader& header) { return header.Id == static_cast<quint8>(id); });
  return found == packet.Headers.end() ? nullptr : &*found;
}

QString ObexTextOf(const ObexHeader& header) {
  QStringDecoder decode(QStringDecoder::Utf16BE);
  // Half a character at the end is left out.
  QString text = decode(QByteArrayView(header.Bytes).first(header.Bytes.size() / 2 * 2));
  if (text.endsWith(QChar::Null)) text.chop(1);
  return text;
}

QByteArray ObexConnectFields(quint16 longestPacket) {
  QByteArray fields;
  Append(fields, kVersion);
  Append(fields, kNoFlags);
  Append(fields, longestPacket);
  return fields;
}

quint16 ObexLongestPacket(QByteArrayView connectFields) {
  return std::max(NumberAt<quint16>(connectFields, 2), kObexShortestLimit);
}

}  // namespace quill
