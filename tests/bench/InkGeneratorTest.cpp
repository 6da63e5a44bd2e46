#include "bench/InkGenerator.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "ink/InkFormat.h"

namespace quill::bench {
namespace {

constexpr int kStrokes = 500;
constexpr int kPoints = 60;
constexpr qsizetype kFloatsSize = 4 * 4;  // bytes of a point: x, y, pressure and time

QRect BoundsOf(const std::vector<InkStrokePtr>& strokes) {
  QRect bounds;
  for (const InkStrokePtr& stroke : strokes) bounds |= stroke->Bounds;
  return bounds;
}

TEST(InkGenerator, MakesAsManyStrokesAndPointsAsAskedForAlwaysTheSame) {
  const auto strokes = GenerateStrokes(kStrokes, kPoints, 1);
  ASSERT_EQ(strokes.size(), static_cast<std::size_t>(kStrokes));
  const auto again = GenerateStrokes(kStrokes, kPoints, 1);
  for (std::size_t i = 0; i < strokes.size(); ++i) {
    EXPECT_EQ(strokes[i]->Points.size(), static_cast<std::size_t>(kPoints));
    EXPECT_EQ(*strokes[i], *again[i]);
  }
  EXPECT_NE(*strokes[0], *GenerateStrokes(1, kPoints, 2)[0]);
}

TEST(InkGenerator, WritesLinesOnAPageDownwards) {
  const auto strokes = GenerateStrokes(kStrokes, kPoints, 1);
  const QRect bounds = BoundsOf(strokes);
  EXPECT_GE(bounds.left(), 0);
  EXPECT_LE(bounds.right(), static_cast<int>(kDefaultPageWidth));
  EXPECT_GE(bounds.top(), 0);
  EXPECT_GT(bounds.height(), 50 * static_cast<int>(kDefaultRulePitch));
  for (const InkStrokePtr& stroke : strokes) {
    EXPECT_LE(stroke->Bounds.height(), static_cast<int>(kDefaultRulePitch));
    EXPECT_GE(stroke->Bounds.height(), 6 * kInkUnitsPerPixel);
  }
}

TEST(InkGenerator, PressesAndBeatsAsADeviceDoes) {
  for (const InkStrokePtr& stroke : GenerateStrokes(kStrokes, kPoints, 1)) {
    const auto [least, most] = std::ranges::minmax(stroke->Points, {}, &InkPoint::Pressure);
    EXPECT_GT(most.Pressure, 2 * least.Pressure);
    for (std::size_t i = 1; i < stroke->Points.size(); ++i) {
      const quint32 beat = stroke->Points[i].Time - stroke->Points[i - 1].Time;
      EXPECT_TRUE(beat >= 5 && beat <= 8) << beat;
    }
  }
}

TEST(InkGenerator, HandwritingTakesAFifthOfTheFloatsItCouldBe) {
  InkNote note;
  note.Pens = {InkPen{}};
  note.Strokes = GenerateStrokes(kStrokes, kPoints, 1);
  EXPECT_LE(5 * WriteInk(note).size(), kStrokes * kPoints * kFloatsSize);
}

TEST(InkGenerator, HandwritingIsPackedOnlyByWhoAsksForIt) {
  InkNote note;
  note.Pens = {InkPen{}};
  note.Strokes = GenerateStrokes(kStrokes, kPoints, 1);
  EXPECT_LT(WriteInk(note).size(), WriteInk(note, InkCodec::Raw).size());
}

}  // namespace
}  // namespace quill::bench
