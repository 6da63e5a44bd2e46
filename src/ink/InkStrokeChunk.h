// The chunk STRK: up to 64 strokes, each coordinate as the change of its change.
#pragma once

#include <vector>

#include "ink/InkByteWriter.h"
#include "ink/InkFormat.h"

namespace quill {

// What became of a payload.
enum class InkPartFate {
  Read,
  Refused,  // it cannot be; nothing of it was taken
  Newer,    // has something that version 1 does not know; what could be was taken
};

// What strokes are read against.
struct InkStrokeLimits {
  quint64 Pens = 0;                // how many there are
  qint64 Created = 0;              // of the note; a chunk's first stroke counts from it
  qint64 Memory = kMostInkMemory;  // that may still be taken
};

// Puts the strokes behind those that are there: all of the chunk's or none.
InkPartFate ReadStrokeChunk(QByteArrayView payload, const InkStrokeLimits& limits,
                            std::vector<InkStrokePtr>& strokes);

// Makes a payload.
class InkStrokeChunkWriter {
 public:
  // Strokes with a pen beyond the last are written with the last; there is one at least.
  InkStrokeChunkWriter(quint64 created, std::size_t pens);

  // Needs a point, and at most kMostStrokePoints.
  void Add(const InkStroke& stroke);
  bool IsEmpty() const { return m_count == 0; }
  // The next stroke belongs into another chunk.
  bool IsFull() const;
  QByteArray Payload(InkCodec codec) const;

 private:
  InkByteWriter m_strokes;
  quint64 m_count = 0;
  quint64 m_pens;
  qint64 m_lastStart;
  qint64 m_lastX = 0;
  qint64 m_lastY = 0;
};

}  // namespace quill
