// Whatever bytes come: reading them ends, and a note that is whole is read again as it was when it
// is written. Changed bytes hardly ever have the right check sums, so each input is also tried with
// its sums put right: only then are the payloads looked at.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "FuzzTarget.h"
#include "ink/InkByteWriter.h"
#include "ink/InkChunks.h"
#include "ink/InkFormat.h"
#include "ink/InkSamples.h"

namespace quill::test {
namespace {

void Demand(bool isSo, const char* what) {
  if (isSo) return;
  std::fprintf(stderr, "not so: %s\n", what);
  std::abort();
}

void DemandLimits(const InkNote& note) {
  for (const InkStrokePtr& stroke : note.Strokes) {
    Demand(!stroke->Points.empty(), "a stroke has a point");
    Demand(stroke->Pen < note.Pens.size(), "a stroke has a pen");
  }
  qsizetype length = 0;
  for (const InkTextRun& run : note.Text.Runs) length += run.Length;
  Demand(length == note.Text.Text.size(), "runs sum to the text");
  Demand(std::ranges::is_sorted(note.Text.SoftBreaks), "breaks ascend");
}

void LookAt(const QByteArray& bytes) {
  const InkContent content = ReadInk(bytes);
  DemandLimits(content.Note);
  if (content.Reading == InkReading::Foreign) Demand(content.Note.IsEmpty(), "foreign is empty");
  if (content.Reading != InkReading::Whole) return;
  const QByteArray written = WriteInk(content.Note);
  Demand(written.isEmpty() == content.Note.IsEmpty(), "only an empty page is no bytes");
  if (written.isEmpty()) return;
  const InkContent again = ReadInk(written);
  Demand(again.Reading == InkReading::Whole, "what is written is whole");
  Demand(SameInk(again.Note, content.Note), "what is written is what was read");
}

QByteArray WithRightSums(const QByteArray& bytes) {
  std::vector<Piece> pieces;
  InkChunkWalk walk(bytes);
  while (const auto chunk = walk.Next()) {
    if (chunk->Type == InkChunkType::kEnd) continue;
    pieces.push_back({chunk->Type.toByteArray(), chunk->Payload.toByteArray()});
  }
  return Joined(pieces);
}

}  // namespace

const char* const kFuzzSuffix = ".pwi";

std::vector<QByteArray> FuzzWords() {
  std::vector<QByteArray> words{"HEAD",
                                "PENS",
                                "TEXT",
                                "STRK",
                                "ENDF",
                                "neXT",
                                "NEXT",
                                "\xEA\xB0\x80",
                                "\xF0\x9F\x98\x80",
                                QByteArray(4, '\0')};
  for (const char* hex : {"00", "01", "02", "07", "40", "7f", "8001", "c0843d", "8080808008",
                          "ffffffff07", "ffffffffffffffffff01", "00000000"}) {
    words.push_back(QByteArray::fromHex(hex));
  }
  return words;
}

}  // namespace quill::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quill::test;
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  LookAt(bytes);
  LookAt(WithRightSums(bytes));
  return 0;
}
