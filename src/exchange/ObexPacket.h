// Packets of OBEX, by which objects are pushed from device to device over infrared, Bluetooth and
// TCP: a code, the packet's length, fixed bytes with some codes, then headers. Numbers stand with
// their high byte first.
//
// Whatever bytes come, reading ends, and what is read is as large as the bytes.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>
#include <vector>

namespace quill {

enum class ObexRequest : quint8 {
  Connect = 0x80,
  Disconnect = 0x81,
  Put = 0x02,       // more follows
  PutFinal = 0x82,  // the object ends with it
  Get = 0x03,
  GetFinal = 0x83,
  SetPath = 0x85,
  Abort = 0xFF,
};

enum class ObexResponse : quint8 {
  Continue = 0x90,
  Success = 0xA0,
  BadRequest = 0xC0,
  Forbidden = 0xC3,
  NotFound = 0xC4,
  TooLarge = 0xCD,
  UnsupportedType = 0xCF,
  Failed = 0xD0,
  NotImplemented = 0xD1,
};

// The two highest bits say what a header holds: text, bytes, one byte or four.
enum class ObexHeaderId : quint8 {
  Name = 0x01,
  Type = 0x42,
  Target = 0x46,
  Body = 0x48,
  EndOfBody = 0x49,
  Who = 0x4A,
  Length = 0xC3,
  ConnectionId = 0xCB,
};

struct ObexHeader {
  quint8 Id = 0;
  quint32 Number = 0;     // of ids that hold one or four bytes
  QByteArray Bytes = {};  // of the others; text is UTF-16 with its terminator, as it came

  bool operator==(const ObexHeader&) const = default;
};

struct ObexPacket {
  quint8 Code = 0;        // of a request or a response
  QByteArray Fixed = {};  // between the length and the headers
  std::vector<ObexHeader> Headers = {};

  bool operator==(const ObexPacket&) const = default;
};

inline constexpr qsizetype kObexPrefix = 3;           // code and length
inline constexpr qsizetype kObexHeaderPrefix = 3;     // id and length, of text and bytes
inline constexpr qsizetype kObexConnectFixed = 4;     // version, flags, longest packet
inline constexpr quint16 kObexShortestLimit = 255;    // every peer takes packets as long as this
inline constexpr quint16 kObexLongestLimit = 0xFFFF;  // the length has two bytes

// A whole packet, of whose kind it is known how many fixed bytes there are. Nothing when its
// headers do not fill it exactly.
std::optional<ObexPacket> ReadObexPacket(QByteArrayView bytes, qsizetype fixedBytes);
// The packet is no longer than kObexLongestLimit.
QByteArray WriteObexPacket(const ObexPacket& packet);
// As it is written.
qsizetype ObexSize(const ObexHeader& header);

ObexHeader ObexText(ObexHeaderId id, const QString& text);
ObexHeader ObexBytes(ObexHeaderId id, const QByteArray& bytes);
ObexHeader ObexNumber(ObexHeaderId id, quint32 number);

// The first of this id; null when there is none.
const ObexHeader* FindHeader(const ObexPacket& packet, ObexHeaderId id);
// Without the terminator.
QString ObexTextOf(const ObexHeader& header);

// The fixed bytes of a CONNECT and of its answer, with the longest packet that their writer takes.
QByteArray ObexConnectFields(quint16 longestPacket);
// What they say; no less than every peer has to take.
quint16 ObexLongestPacket(QByteArrayView connectFields);

}  // namespace quill
