#include "ink/InkFormat.h"

#include <gtest/gtest.h>

#include "ink/InkChunks.h"
#include "ink/InkSamples.h"

namespace quill::test {
namespace {

// Three chunks of strokes, one after the other down the page.
InkNote NoteOfManyStrokes() {
  InkNote note;
  note.Pens = {InkPen{}};
  for (int i = 0; i < 150; ++i) {
    note.Strokes.push_back(SealInkStroke({.Parts = kInkHasTime,
                                          .Start = 400 * i,
                                          .Points = {{.X = 20, .Y = 30 * i},
                                                     {.X = 25, .Y = 30 * i + 7, .Time = 8},
                                                     {.X = 31, .Y = 30 * i, .Time = 16}}}));
  }
  return note;
}

TEST(InkFormat, TheSampleIsWrittenByteByByte) {
  ASSERT_EQ(SampleNoteBytes().size(), 170);
  EXPECT_EQ(WriteInk(SampleNote(), InkCodec::Raw).toHex(), SampleNoteBytes().toHex());
}

TEST(InkFormat, TheSampleIsRead) {
  const InkContent content = ReadInk(SampleNoteBytes());
  EXPECT_EQ(content.Reading, InkReading::Whole);
  EXPECT_EQ(content.SkippedChunks, 0);
  EXPECT_FALSE(content.Incomplete);
  EXPECT_TRUE(SameInk(content.Note, SampleNote()));
}

TEST(InkFormat, APageWithNothingOnItIsNoBytes) {
  InkNote note = SampleNote();
  note.Strokes.clear();
  note.Text.Text.clear();
  EXPECT_EQ(WriteInk(note).size(), 0);
  EXPECT_EQ(ReadInk({}).Reading, InkReading::Empty);
  EXPECT_TRUE(ReadInk({}).Note.IsEmpty());
}

class InkRoundTrip : public testing::TestWithParam<unsigned> {};

TEST_P(InkRoundTrip, EveryNoteIsReadAsItWasWritten) {
  const InkNote note = RandomNote(GetParam());
  for (const InkCodec codec : {InkCodec::Raw, InkCodec::Shorter}) {
    const InkContent content = ReadInk(WriteInk(note, codec));
    EXPECT_EQ(content.Reading, InkReading::Whole);
    EXPECT_TRUE(SameInk(content.Note, note));
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, InkRoundTrip, testing::Range(1U, 60U));

// Strokes of all chunks that end before the cut.
std::size_t WholeStrokesBefore(const QByteArray& bytes) {
  std::size_t strokes = 0;
  InkChunkWalk walk(bytes);
  while (const auto chunk = walk.Next()) {
    if (chunk->Type == InkChunkType::kStrokes) strokes += static_cast<uchar>(chunk->Payload[1]);
  }
  return strokes;
}

class InkDamage : public testing::TestWithParam<QByteArray> {};

TEST_P(InkDamage, CutAnywhereItShowsEveryWholeChunkBefore) {
  const QByteArray whole = GetParam();
  const InkNote note = ReadInk(whole).Note;
  for (qsizetype size = 1; size < whole.size(); ++size) {
    const QByteArray cut = whole.left(size);
    const InkContent content = ReadInk(cut);
    const bool hasSignature = size >= InkSignature().size();
    ASSERT_EQ(content.Reading, hasSignature ? InkReading::Damaged : InkReading::Foreign) << size;
    ASSERT_EQ(content.Incomplete, hasSignature) << size;
    ASSERT_EQ(content.Note.Strokes.size(), hasSignature ? WholeStrokesBefore(cut) : 0U) << size;
    for (std::size_t i = 0; i < content.Note.Strokes.size(); ++i) {
      ASSERT_EQ(*content.Note.Strokes[i], *note.Strokes[i]) << size;
    }
  }
}

TEST_P(InkDamage, EveryFlippedBitIsFound) {
  const QByteArray whole = GetParam();
  ASSERT_EQ(ReadInk(whole).Reading, InkReading::Whole);
  for (qsizetype bit = 0; bit < 8 * whole.size(); ++bit) {
    QByteArray flipped = whole;
    flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
    const InkReading expected =
        bit / 8 < InkSignature().size() ? InkReading::Foreign : InkReading::Damaged;
    ASSERT_EQ(ReadInk(flipped).Reading, expected) << bit;
  }
}

INSTANTIATE_TEST_SUITE_P(Notes, InkDamage,
                         testing::Values(SampleNoteBytes(),
                                         WriteInk(NoteOfManyStrokes(), InkCodec::Raw)),
                         [](const auto& note) {
                           return "NoteOf" + std::to_string(note.param.size()) + "Bytes";
                         });

TEST(InkFormat, AnOpenNoteTakesMoreStrokesBehindIt) {
  const InkNote whole = NoteOfManyStrokes();
  InkNote begun = whole;
  begun.Strokes.resize(148);
  QByteArray bytes = WriteOpenInk(begun);
  bytes += WriteInkStroke(whole, whole.Strokes[148]);
  bytes += WriteInkStroke(whole, whole.Strokes[149]);
  const InkContent content = ReadInk(bytes);
  EXPECT_EQ(content.Reading, InkReading::Damaged);
  EXPECT_EQ(content.SkippedChunks, 0);
  EXPECT_TRUE(content.Incomplete);
  EXPECT_TRUE(SameInk(content.Note, whole));
}

TEST(InkFormat, AnOpenNoteWithNothingOnItHasItsPage) {
  InkNote note;
  note.Page.Created = 77;
  const QByteArray bytes = WriteOpenInk(note);
  EXPECT_EQ(ReadInk(bytes).Note.Page.Created, 77U);
}

}  // namespace
}  // namespace quill::test
