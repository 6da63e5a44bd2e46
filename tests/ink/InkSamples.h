// Notes to read and write, and their bytes taken apart.
#pragma once

#include <QByteArray>

#include <vector>

#include "ink/InkNote.h"

namespace quill::test {

// A note with one pen, one stroke and a text, and its bytes as another program wrote them.
InkNote SampleNote();
QByteArray SampleNoteBytes();

// A note of any content that a note can have, the same from the same seed.
InkNote RandomNote(unsigned seed);

// What a page shows and holds is the same.
bool SameInk(const InkNote& left, const InkNote& right);

struct Piece {
  QByteArray Type;
  QByteArray Payload;

  bool operator==(const Piece&) const = default;
};
// Chunks in their order, without the end.
std::vector<Piece> PiecesOf(const QByteArray& note);
// With the right sums and end.
QByteArray Joined(const std::vector<Piece>& pieces);

}  // namespace quill::test
