// Numbers out of bytes, little-endian. Reads nothing beyond the end: once something did not fit or
// cannot be, every further answer is 0 and Failed() stays true.
#pragma once

#include <QByteArrayView>

namespace quill {

class InkByteReader {
 public:
  // The bytes outlive this.
  explicit InkByteReader(QByteArrayView bytes)
      : m_at(reinterpret_cast<const uchar*>(bytes.data())), m_end(m_at + bytes.size()) {}

  bool Failed() const { return m_failed; }
  void Fail();
  qsizetype Left() const { return m_end - m_at; }
  // All was read, and nothing failed.
  bool IsDone() const { return !m_failed && m_at == m_end; }

  quint8 U8() { return static_cast<quint8>(Little(1)); }
  quint16 U16() { return static_cast<quint16>(Little(2)); }
  quint32 U32() { return static_cast<quint32>(Little(4)); }
  quint64 U64() { return Little(8); }

  // LEB128, at most `most`.
  quint64 VarInt(quint64 most) {
    const quint64 value = m_at != m_end && *m_at < 0x80 ? *m_at++ : LongVarInt();
    return value <= most ? value : Refused();
  }
  // How many things come, each of at least `size` bytes that must be there.
  quint64 Count(qsizetype size) { return VarInt(static_cast<quint64>(Left() / size)); }
  // Zigzag, at most `most` from 0.
  qint64 Signed(qint64 most) {
    const quint64 value = VarInt(~quint64{0});
    const auto number = static_cast<qint64>((value >> 1) ^ (~(value & 1) + 1));
    return number <= most && number >= -most ? number : static_cast<qint64>(Refused());
  }

  QByteArrayView Bytes(quint64 count);
  QByteArrayView Rest() { return Bytes(static_cast<quint64>(Left())); }

 private:
  quint64 Little(int bytes);
  quint64 LongVarInt();
  quint64 Refused() {
    Fail();
    return 0;
  }

  const uchar* m_at;
  const uchar* m_end;
  bool m_failed = false;
};

}  // namespace quill
