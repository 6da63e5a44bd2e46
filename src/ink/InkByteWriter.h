// Numbers into bytes, as InkByteReader reads them.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <string>

namespace quill {

class InkByteWriter {
 public:
  void U8(quint8 value) { m_bytes.push_back(static_cast<char>(value)); }
  void U16(quint16 value) { Little(value, 2); }
  void U32(quint32 value) { Little(value, 4); }
  void U64(quint64 value) { Little(value, 8); }

  void VarInt(quint64 value) {
    for (; value >= 0x80; value >>= 7) U8(static_cast<quint8>(value | 0x80));
    U8(static_cast<quint8>(value));
  }
  void Signed(qint64 value) {
    VarInt((static_cast<quint64>(value) << 1) ^ static_cast<quint64>(value >> 63));
  }
  void Bytes(QByteArrayView bytes) {
    m_bytes.append(bytes.data(), static_cast<std::size_t>(bytes.size()));
  }

  qsizetype Size() const { return static_cast<qsizetype>(m_bytes.size()); }
  // As long as this lives and nothing more is written.
  QByteArrayView Written() const { return {m_bytes.data(), Size()}; }

 private:
  void Little(quint64 value, int bytes) {
    for (int i = 0; i < bytes; ++i) U8(static_cast<quint8>(value >> (8 * i)));
  }

  std::string m_bytes;
};

}  // namespace quill
