#include "exchange/ObexPacketStream.h"

#include <QtEndian>

#include "exchange/ObexPacket.h"

namespace quill {

void ObexPacketStream::Add(QByteArrayView bytes) {
  m_bytes.remove(0, m_position);
  m_position = 0;
  m_bytes += bytes;
}

std::optional<QByteArray> ObexPacketStream::Next() {
  if (!NextCode()) return std::nullopt;
  const qsizetype length = NextLength();
  const QByteArray packet = m_bytes.mid(m_position, length);
  m_position += length;
  return packet;
}

std::optional<quint8> ObexPacketStream::NextCode() const {
  if (Waiting() < kObexPrefix || IsBroken() || Waiting() < NextLength()) return std::nullopt;
  return static_cast<quint8>(m_bytes.at(m_position));
}

bool ObexPacketStream::IsBroken() const {
  if (Waiting() < kObexPrefix) return false;
  const qsizetype length = NextLength();
  return length < kObexPrefix || length > m_longest;
}

qsizetype ObexPacketStream::NextLength() const {
  return qFromBigEndian<quint16>(m_bytes.constData() + m_position + 1);
}

}  // namespace quill
