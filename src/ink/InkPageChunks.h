// The chunks HEAD and PENS: the page and what is written on it with.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <vector>

#include "ink/InkNote.h"
#include "ink/InkStrokeChunk.h"

namespace quill {

inline constexpr quint16 kInkMajor = 1;

struct InkHead {
  quint16 Major = kInkMajor;  // of another one nothing else is read
  InkPage Page = {};
  quint32 Strokes = 0;
};

InkPartFate ReadHeadChunk(QByteArrayView payload, InkHead& head);
QByteArray HeadChunkPayload(const InkHead& head);

// Tips that are not known become round.
InkPartFate ReadPensChunk(QByteArrayView payload, qint64 memory, std::vector<InkPen>& pens);
QByteArray PensChunkPayload(const std::vector<InkPen>& pens);

}  // namespace quill
