// How notes are laid out in chunks, and notes that cannot be written as they are.
#include <algorithm>

#include <QByteArrayList>

#include <gtest/gtest.h>

#include "ink/InkChunks.h"
#include "ink/InkFormat.h"
#include "ink/InkSamples.h"

namespace quill::test {
namespace {

InkStrokePtr Dot(int x, quint32 pen = 0) {
  return SealInkStroke({.Pen = pen, .Points = {{.X = x}}});
}

InkNote NoteOf(const std::vector<InkStrokePtr>& strokes) {
  InkNote note;
  note.Pens = {InkPen{}};
  note.Strokes = strokes;
  return note;
}

std::vector<int> PlacesIn(const InkNote& note) {
  std::vector<int> places;
  for (const InkStrokePtr& stroke : note.Strokes) places.push_back(stroke->Points[0].X);
  return places;
}

QByteArrayList TypesIn(const QByteArray& bytes) {
  QByteArrayList types;
  for (const Piece& piece : PiecesOf(bytes)) types.push_back(piece.Type);
  return types;
}

TEST(InkWriter, WritesHighlightersFirstOtherwiseInOrder) {
  InkNote note = NoteOf({Dot(1), Dot(2, 1), Dot(3), Dot(4, 1)});
  note.Pens.push_back({.Tip = InkTip::Highlighter});
  EXPECT_EQ(PlacesIn(ReadInk(WriteInk(note)).Note), (std::vector{2, 4, 1, 3}));
}

TEST(InkWriter, PutsSixtyFourStrokesIntoAChunk) {
  const std::vector<InkStrokePtr> strokes(130, Dot(1));
  EXPECT_EQ(TypesIn(WriteInk(NoteOf(strokes))),
            (QByteArrayList{"HEAD", "PENS", "STRK", "STRK", "STRK"}));
  const std::vector<InkStrokePtr> full(64, Dot(1));
  EXPECT_EQ(TypesIn(WriteInk(NoteOf(full))), (QByteArrayList{"HEAD", "PENS", "STRK"}));
}

TEST(InkWriter, PutsExtrasBehindTheStrokes) {
  InkNote note = SampleNote();
  note.Extras = {{"smAL", "x"}, {"anOT", "y"}};
  const QByteArray bytes = WriteInk(note);
  EXPECT_EQ(TypesIn(bytes), (QByteArrayList{"HEAD", "PENS", "TEXT", "STRK", "smAL", "anOT"}));
  EXPECT_EQ(ReadInk(bytes).Reading, InkReading::Whole);
}

// Two of these are 24 megabytes.
TEST(InkWriter, EndsAChunkEarlyRatherThanMakeItTooLong) {
  InkStroke stroke{.Parts = kInkHasPressure};
  for (int i = 0; i < kMostStrokePoints; ++i) {
    const int far = i % 2 == 0 ? 1 << 30 : -(1 << 30);
    stroke.Points.push_back(
        {.X = far, .Y = -far, .Pressure = i % 2 == 0 ? quint16{0} : quint16{1023}});
  }
  const InkStrokePtr sealed = SealInkStroke(std::move(stroke));
  const QByteArray bytes = WriteInk(NoteOf({sealed, sealed, Dot(1)}), InkCodec::Raw);
  for (const Piece& piece : PiecesOf(bytes)) {
    EXPECT_LT(piece.Payload.size(), kMostPayload);
  }
  EXPECT_EQ(TypesIn(bytes), (QByteArrayList{"HEAD", "PENS", "STRK", "STRK"}));
  const InkContent content = ReadInk(bytes);
  EXPECT_EQ(content.Reading, InkReading::Whole);
  EXPECT_EQ(*content.Note.Strokes[1], *sealed);
}

TEST(InkWriter, PacksOnlyWhereThatIsShorter) {
  const QByteArray dot = WriteInk(NoteOf({Dot(1)}), InkCodec::Shorter);
  EXPECT_EQ(PiecesOf(dot).back().Payload[0], '\0');
  const InkStrokePtr line = SealInkStroke({.Points = std::vector<InkPoint>(500)});
  EXPECT_EQ(PiecesOf(WriteInk(NoteOf({line}))).back().Payload[0], '\1');
  EXPECT_EQ(PiecesOf(WriteInk(NoteOf({line}), InkCodec::Raw)).back().Payload[0], '\0');
}

TEST(InkWriter, GoesOnInAnotherStrokeAfterAMillionPoints) {
  InkStroke stroke{.Parts = kInkHasTime, .Start = 5000};
  for (int i = 0; i < kMostStrokePoints + 2; ++i) {
    stroke.Points.push_back({.X = i, .Time = static_cast<quint32>(5 * i)});
  }
  const InkContent content = ReadInk(WriteInk(NoteOf({SealInkStroke(stroke)})));
  ASSERT_EQ(content.Reading, InkReading::Whole);
  ASSERT_EQ(content.Note.Strokes.size(), 2U);
  const InkStroke& rest = *content.Note.Strokes[1];
  EXPECT_EQ(rest.Start, 5000 + 5 * kMostStrokePoints);
  EXPECT_EQ(rest.Points, (std::vector<InkPoint>{{.X = kMostStrokePoints},
                                                {.X = kMostStrokePoints + 1, .Time = 5}}));
}

TEST(InkWriter, LeavesStrokesWithoutPointsOut) {
  const auto nothing = std::make_shared<const InkStroke>();
  const InkContent content = ReadInk(WriteInk(NoteOf({nothing, Dot(1)})));
  EXPECT_EQ(content.Reading, InkReading::Whole);
  EXPECT_EQ(content.Note.Strokes.size(), 1U);
}

TEST(InkWriter, GivesEachStrokeAPenThatIsThere) {
  InkNote note = NoteOf({Dot(1, 7)});
  note.Pens = {InkPen{}, {.Color = 1}};
  EXPECT_EQ(ReadInk(WriteInk(note)).Note.Strokes[0]->Pen, 1U);
  note.Pens = {};
  const InkContent content = ReadInk(WriteInk(note));
  EXPECT_EQ(content.Reading, InkReading::Whole);
  EXPECT_EQ(content.Note.Pens, std::vector{InkPen{}});
}

TEST(InkWriter, KeepsPointsWithinTheirLimits) {
  constexpr int kFar = std::numeric_limits<int>::max();
  const InkStroke far{.Parts = 255,
                      .Start = std::numeric_limits<qint64>::min(),
                      .Points = {{.X = kFar, .Y = -kFar, .Pressure = 5000, .TiltX = 127},
                                 {.X = -kFar, .Y = kFar, .Pressure = 5000, .TiltY = -128}}};
  InkNote note = NoteOf({SealInkStroke(far), Dot(kFar)});
  note.Page.Created = ~quint64{0};
  const InkContent content = ReadInk(WriteInk(note));
  ASSERT_EQ(content.Reading, InkReading::Whole);
  const InkStroke& read = *content.Note.Strokes[0];
  const int most = 1 << 30;
  EXPECT_EQ(read.Start, -kLatestInk);
  EXPECT_EQ(read.Points, (std::vector<InkPoint>{
                             {.X = most, .Y = -most, .Pressure = kFullPressure, .TiltX = 90},
                             {.X = -most, .Y = most, .Pressure = kFullPressure, .TiltY = -90}}));
  EXPECT_EQ(content.Note.Strokes[1]->Points[0].X, most);
}

}  // namespace
}  // namespace quill::test
