#include "ink/InkByteReader.h"

namespace quill {

void InkByteReader::Fail() {
  m_failed = true;
  m_at = m_end;
}

quint64 InkByteReader::Little(int bytes) {
  if (Left() < bytes) return Refused();
  quint64 value = 0;
  for (int i = 0; i < bytes; ++i) value |= quint64{*m_at++} << (8 * i);
  return value;
}

quint64 InkByteReader::LongVarInt() {
  quint64 value = 0;
  for (int shift = 0; shift < 64; shift += 7) {
    if (m_at == m_end) return Refused();
    const quint64 part = *m_at++;
    // Of the tenth byte one bit is left.
    if (shift == 63 && part > 1) return Refused();
    value |= (part & 0x7F) << shift;
    if (part < 0x80) return value;
  }
  return Refused();
}

QByteArrayView InkByteReader::Bytes(quint64 count) {
  if (count > static_cast<quint64>(Left())) Fail();
  if (m_failed) return {};
  const QByteArrayView bytes(m_at, static_cast<qsizetype>(count));
  m_at += count;
  return bytes;
}

}  // namespace quill
