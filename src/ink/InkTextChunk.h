// The chunk TEXT: typed text in UTF-8 with its looks, never packed, so that a plain search finds
// it.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include "ink/InkNote.h"
#include "ink/InkStrokeChunk.h"

namespace quill {

// What it takes of kMostInkMemory.
qint64 InkMemory(const InkText& text);

// Takes all of the payload's first block or nothing; a text of no length is none.
InkPartFate ReadTextChunk(QByteArrayView payload, qint64 memory, InkText& text);

// Runs are cut or added to so that they sum to the text's length; half of a surrogate pair becomes
// the replacement character.
QByteArray TextChunkPayload(const InkText& text);

}  // namespace quill
