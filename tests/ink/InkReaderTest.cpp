// Which chunks make a note, and what becomes of it when some are wrong, missing or unknown.
#include <gtest/gtest.h>

#include <functional>

#include "ink/InkByteWriter.h"
#include "ink/InkChunks.h"
#include "ink/InkFormat.h"
#include "ink/InkSamples.h"

namespace quill::test {
namespace {

using Pieces = std::vector<Piece>;

// The sample's chunks by their places.
enum SamplePiece { Head, Pens, Text, Strokes };

struct ReaderRow {
  const char* Name;
  std::function<void(Pieces&)> Change;
  InkReading Reading;
  int Skipped = 0;
  std::size_t StrokeCount = 1;
  std::size_t PenCount = 1;
  bool HasText = true;
  std::size_t ExtraCount = 0;
};

std::function<void(Pieces&)> Added(const char* type, int place, const QByteArray& payload = "x") {
  return [=](Pieces& pieces) { pieces.insert(pieces.begin() + place, {type, payload}); };
}

std::function<void(Pieces&)> Removed(int place) {
  return [=](Pieces& pieces) { pieces.erase(pieces.begin() + place); };
}

std::function<void(Pieces&)> SetByte(int place, qsizetype at, char byte) {
  return [=](Pieces& pieces) { pieces[static_cast<std::size_t>(place)].Payload[at] = byte; };
}

void DoubleHead(Pieces& pieces) { pieces.insert(pieces.begin() + 1, pieces[Head]); }
void DoublePens(Pieces& pieces) { pieces.insert(pieces.begin() + 2, pieces[Pens]); }
void DoubleText(Pieces& pieces) { pieces.insert(pieces.begin() + 3, pieces[Text]); }
void PutPensBehindStrokes(Pieces& pieces) { std::swap(pieces[Pens], pieces[Strokes]); }
void PutTextBehindStrokes(Pieces& pieces) { std::swap(pieces[Text], pieces[Strokes]); }
void PutHeadBehindPens(Pieces& pieces) { std::swap(pieces[Head], pieces[Pens]); }

const std::vector<ReaderRow>& Rows() {
  using R = InkReading;
  static const std::vector<ReaderRow> rows{
      {"NothingChanged", [](Pieces&) {}, R::Whole},
      {"TextMayComeBehindStrokes", PutTextBehindStrokes, R::Whole},
      {"ANeededChunkThatIsNotKnown", Added("NEED", 1), R::Newer},
      {"ANeededChunkThatMayBeCopied", Added("Need", 4), R::Newer},
      {"ASmallChunkIsKept", Added("smLL", 2), R::Whole, 0, 1, 1, true, 1},
      {"ASmallChunkBeforeTheHead", Added("smLL", 0), R::Whole, 0, 1, 1, true, 1},
      {"ASmallChunkThatAnEditDrops", Added("sMaL", 2), R::Whole},
      {"WordsAreDropped", Added("wORD", 4), R::Whole},
      {"APreviewIsDropped", Added("pNGt", 1), R::Whole},
      {"ATypeWithADigit", Added("ab1d", 1), R::Damaged, 1},
      {"NoHead", Removed(Head), R::Damaged},
      {"TwoHeads", DoubleHead, R::Damaged, 1},
      {"AHeadThatIsNotFirst", PutHeadBehindPens, R::Damaged, 1},
      {"NoPens", Removed(Pens), R::Damaged},
      {"TwiceThePens", DoublePens, R::Damaged, 1},
      {"PensBehindStrokes", PutPensBehindStrokes, R::Damaged, 1},
      {"NoText", Removed(Text), R::Whole, 0, 1, 1, false},
      {"TwoTexts", DoubleText, R::Damaged, 1},
      {"NoStrokesWhereOneIsPromised", Removed(Strokes), R::Damaged, 0, 0},
      {"AnotherNumberOfStrokesThanPromised", SetByte(Head, 36, 2), R::Damaged},
      {"AHeadThatCannotBe", SetByte(Head, 11, 0x7F), R::Damaged, 1},
      {"PensThatCannotBe", SetByte(Pens, 0, 9), R::Damaged, 1},
      {"ATextThatCannotBe", SetByte(Text, 7, '\xFF'), R::Damaged, 1, 1, 1, false},
      {"StrokesThatCannotBe", SetByte(Strokes, 2, 7), R::Damaged, 1, 0},
      {"AnUnknownTip", SetByte(Pens, 6, 2), R::Newer},
      {"AnUnknownCodec", SetByte(Strokes, 0, 2), R::Newer, 0, 0},
      {"AnUnknownPartOfAStroke", SetByte(Strokes, 3, 8), R::Newer, 0, 0},
      {"TwoBlocksOfText", SetByte(Text, 0, 2), R::Newer},
      {"OtherUnits", SetByte(Head, 4, 33), R::Newer},
      {"ALaterMinorVersion", SetByte(Head, 2, 1), R::Whole},
      {"AnotherMajorVersion", SetByte(Head, 0, 2), R::Foreign, 0, 0, 0, false},
  };
  return rows;
}

class InkReaderRules : public testing::TestWithParam<ReaderRow> {};

TEST_P(InkReaderRules, SayWhatIsLeftOfTheNote) {
  const ReaderRow& row = GetParam();
  Pieces pieces = PiecesOf(SampleNoteBytes());
  row.Change(pieces);
  const InkContent content = ReadInk(Joined(pieces));
  EXPECT_EQ(content.Reading, row.Reading);
  EXPECT_EQ(content.SkippedChunks, row.Skipped);
  EXPECT_EQ(content.Note.Strokes.size(), row.StrokeCount);
  EXPECT_EQ(content.Note.Pens.size(), row.PenCount);
  EXPECT_EQ(!content.Note.Text.Text.isEmpty(), row.HasText);
  EXPECT_EQ(content.Note.Extras.size(), row.ExtraCount);
}

INSTANTIATE_TEST_SUITE_P(Rows, InkReaderRules, testing::ValuesIn(Rows()),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(InkReader, SomethingElseIsForeignAndTheNoteEmpty) {
  for (const QByteArray& bytes : {QByteArray("x"), QByteArray(200, '\0'), QByteArray("\x89INKX")}) {
    EXPECT_EQ(ReadInk(bytes).Reading, InkReading::Foreign);
    EXPECT_TRUE(ReadInk(bytes).Note.IsEmpty());
  }
}

TEST(InkReader, NewerOutweighsDamage) {
  Pieces pieces = PiecesOf(SampleNoteBytes());
  Added("NEED", 1)(pieces);
  const InkContent content = ReadInk(Joined(pieces).chopped(1));
  EXPECT_EQ(content.Reading, InkReading::Newer);
  EXPECT_TRUE(content.Incomplete);
}

TEST(InkReader, NothingIsReadBehindTheEnd) {
  QByteArray bytes = SampleNoteBytes();
  AppendInkChunk(bytes, "NEED", "x");
  EXPECT_EQ(ReadInk(bytes + "and more").Reading, InkReading::Whole);
}

class InkEnd : public testing::TestWithParam<const char*> {};

TEST_P(InkEnd, ThatIsWrongLeavesTheNoteIncomplete) {
  QByteArray bytes = SampleNoteBytes().chopped(20);
  AppendInkChunk(bytes, InkChunkType::kEnd, QByteArray::fromHex(GetParam()));
  const InkContent content = ReadInk(bytes);
  EXPECT_EQ(content.Reading, InkReading::Damaged);
  EXPECT_TRUE(content.Incomplete);
  EXPECT_TRUE(SameInk(content.Note, SampleNote()));
}

INSTANTIATE_TEST_SUITE_P(Rows, InkEnd,
                         testing::Values("05000000 1566bf12", "04000000 1566bf13",
                                         "04000000 1566bf12 00", "04000000", ""));

TEST(InkReader, StrokesOutliveTheirPens) {
  InkNote note = SampleNote();
  note.Pens.push_back({.Tip = InkTip::Highlighter});
  InkStroke marked = *note.Strokes[0];
  marked.Pen = 1;
  note.Strokes.insert(note.Strokes.begin(), SealInkStroke(marked));
  Pieces pieces = PiecesOf(WriteInk(note));
  Removed(Pens)(pieces);
  const InkContent content = ReadInk(Joined(pieces));
  EXPECT_EQ(content.Note.Strokes.size(), 2U);
  EXPECT_EQ(content.Note.Pens, (std::vector{InkPen{}, InkPen{}}));
  EXPECT_TRUE(content.Incomplete);
}

TEST(InkReader, HighlightersAreBelowWhereverTheyStand) {
  InkNote note;
  note.Pens = {InkPen{}, {.Tip = InkTip::Highlighter}};
  note.Strokes = {SealInkStroke({.Pen = 0, .Points = {{.X = 1}}})};
  const InkStrokePtr marked = SealInkStroke({.Pen = 1, .Points = {{.X = 2}}});
  const QByteArray bytes = WriteOpenInk(note) + WriteInkStroke(note, marked);
  const InkNote read = ReadInk(bytes).Note;
  ASSERT_EQ(read.Strokes.size(), 2U);
  EXPECT_EQ(read.Strokes[0]->Pen, 1U);
  EXPECT_EQ(read.Strokes[1]->Pen, 0U);
}

// A chunk of 64 strokes whose points all lie in one place, packed to next to nothing.
QByteArray PackedChunk(std::size_t points) {
  InkNote note;
  note.Pens = {InkPen{}};
  const InkStrokePtr stroke = SealInkStroke({.Points = std::vector<InkPoint>(points)});
  note.Strokes.assign(kMostChunkStrokes, stroke);
  return PiecesOf(WriteInk(note)).back().Payload;
}

TEST(InkReader, ManySmallChunksDoNotBecomeMoreThanANoteMayTake) {
  const std::size_t points = 20'000;
  const QByteArray payload = PackedChunk(points);
  const auto chunkMemory = kMostChunkStrokes * InkMemory(points);
  const auto fitting = kMostInkMemory / chunkMemory;
  Pieces pieces = PiecesOf(SampleNoteBytes());
  pieces.resize(2);
  for (qint64 i = 0; i < fitting + 2; ++i) pieces.push_back({"STRK", payload});
  const QByteArray bytes = Joined(pieces);
  EXPECT_LT(bytes.size(), 100'000);
  const InkContent content = ReadInk(bytes);
  EXPECT_EQ(content.Reading, InkReading::Damaged);
  EXPECT_EQ(content.SkippedChunks, 2);
  EXPECT_EQ(content.Note.Strokes.size(), static_cast<std::size_t>(fitting * kMostChunkStrokes));
}

TEST(InkReader, ManyExtrasDoNotTakeMoreThanANoteMayTake) {
  Pieces pieces = PiecesOf(SampleNoteBytes());
  for (int i = 0; i < 5; ++i) pieces.push_back({"smAL", QByteArray(kMostInkMemory / 4, 'x')});
  const InkContent content = ReadInk(Joined(pieces));
  EXPECT_EQ(content.Note.Extras.size(), 3U);
  EXPECT_EQ(content.SkippedChunks, 2);
}

}  // namespace
}  // namespace quill::test
