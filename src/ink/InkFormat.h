// Notes as bytes: the layout of docs/ink-format.md, version 1. A file, a field of the store and the
// clipboard hold the same.
//
// Nothing here throws, whatever the bytes: what cannot be read is left out, and the answer says so.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include "ink/InkNote.h"

namespace quill {

// What a reader refuses, so that no bytes can ask for more than a program has.
inline constexpr int kMostStrokePoints = 1'000'000;
inline constexpr int kMostChunkStrokes = 64;
inline constexpr qint64 kFarthestInk = 1 << 30;         // of a coordinate or length from 0
inline constexpr quint32 kThickestInk = 1 << 16;        // pens and fonts
inline constexpr int kSteepestTilt = 90;                // degrees
inline constexpr qint64 kLatestInk = 1LL << 53;         // milliseconds from 1970
inline constexpr qint64 kMostInkMemory = 64 << 20;      // bytes, see InkMemory
inline constexpr qint64 kMostUnpackedBytes = 64 << 20;  // of one chunk

inline constexpr int kLongestInkText = 100'000;  // UTF-16 units

// What a stroke of so many points takes of kMostInkMemory: some four million points fit in a note,
// fewer when the strokes are short.
constexpr qint64 InkMemory(quint64 points) {
  return static_cast<qint64>(sizeof(InkStroke) + 64 + points * sizeof(InkPoint));
}

enum class InkReading {
  Empty,    // no bytes: a page with nothing on it
  Whole,    // all of it is in the note
  Damaged,  // cut, or parts were refused; the rest is in the note
  Foreign,  // something else, or another major version: the note is empty
  Newer,    // has needed parts that this version does not know; the rest is in the note
};

struct InkContent {
  InkReading Reading = InkReading::Empty;
  InkNote Note = {};
  int SkippedChunks = 0;    // their check sum is wrong, or what is in them cannot be
  bool Incomplete = false;  // begins or ends otherwise than a whole note does
};

InkContent ReadInk(QByteArrayView bytes);

enum class InkCodec {
  Raw,
  Shorter,  // strokes are packed where that makes them shorter
};

// A page without strokes and text is no bytes. What lies beyond the limits is brought within them,
// so that all of it is read again; only kMostInkMemory is the caller's to keep.
QByteArray WriteInk(const InkNote& note, InkCodec codec = InkCodec::Shorter);

// The same without its end, and never no bytes: more strokes can be written behind it. Reads as
// damaged, with all that is in it.
QByteArray WriteOpenInk(const InkNote& note);
// One stroke as it is put behind an open note, for which all its pens were known.
QByteArray WriteInkStroke(const InkNote& note, const InkStrokePtr& stroke);

}  // namespace quill
