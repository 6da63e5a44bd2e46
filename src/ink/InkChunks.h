// The frame of a note's bytes: a signature, then chunks of a length, a type of four letters, a
// payload and a check sum. What is in a payload is no matter here.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace quill {

inline constexpr qsizetype kMostPayload = 1 << 26;  // bytes

namespace InkChunkType {
inline constexpr QByteArrayView kHead = "HEAD";
inline constexpr QByteArrayView kPens = "PENS";
inline constexpr QByteArrayView kText = "TEXT";
inline constexpr QByteArrayView kStrokes = "STRK";
inline constexpr QByteArrayView kEnd = "ENDF";
}  // namespace InkChunkType

QByteArrayView InkSignature();
// CRC-32 as in zip and PNG.
quint32 InkCheckSum(QByteArrayView bytes);

struct InkChunk {
  QByteArrayView Type = {};
  QByteArrayView Payload = {};
  bool IsSound = false;  // the check sum is right, and the type is letters
  qsizetype Start = 0;   // where it begins in the bytes
};

// A capital: who does not know this chunk has not understood the note.
bool IsNeeded(const InkChunk& chunk);
// It may be kept when strokes or text changed.
bool IsKeptThroughEdits(const InkChunk& chunk);

// Goes through the chunks of bytes that outlive it.
class InkChunkWalk {
 public:
  explicit InkChunkWalk(QByteArrayView bytes) : m_bytes(bytes), m_at(InkSignature().size()) {}

  bool HasSignature() const { return m_bytes.startsWith(InkSignature()); }
  // Nothing at the end, and where a chunk is cut or longer than a chunk can be.
  std::optional<InkChunk> Next();

 private:
  QByteArrayView m_bytes;
  qsizetype m_at;
};

void AppendInkChunk(QByteArray& bytes, QByteArrayView type, QByteArrayView payload);

}  // namespace quill
