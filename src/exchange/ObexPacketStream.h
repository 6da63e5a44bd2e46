// Cuts the bytes that come from a peer into OBEX packets, in whatever pieces they come.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace quill {

class ObexPacketStream {
 public:
  // A longer packet than this breaks the stream.
  explicit ObexPacketStream(quint16 longestPacket) : m_longest(longestPacket) {}

  void Add(QByteArrayView bytes);

  // A whole packet; nothing before there is one. Its length is right, what is in it unread.
  std::optional<QByteArray> Next();
  // Its code, without taking it.
  std::optional<quint8> NextCode() const;

  // A packet has an impossible length, so where the next one begins is not known.
  bool IsBroken() const;
  // Bytes that were added and not taken.
  qsizetype Waiting() const { return m_bytes.size() - m_position; }

 private:
  qsizetype NextLength() const;

  quint16 m_longest;
  QByteArray m_bytes;
  qsizetype m_position = 0;
};

}  // namespace quill
