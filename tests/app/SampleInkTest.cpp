#include "app/SampleInk.h"

#include <gtest/gtest.h>

#include "ink/InkFormat.h"

namespace quill {
namespace {

class SampleInk : public testing::TestWithParam<SampleSketch> {};

TEST_P(SampleInk, StandsOnThePageBelowItsLineAndIsReadBackAsItIs) {
  const InkNote note = MakeSampleNote(QStringLiteral("등산 일정"), GetParam());
  const QRect below(0, 24 * kInkUnitsPerPixel, kDefaultPageWidth, 130 * kInkUnitsPerPixel);
  for (const InkStrokePtr& stroke : note.Strokes) EXPECT_TRUE(below.contains(stroke->Bounds));
  const InkContent read = ReadInk(WriteInk(note));
  EXPECT_EQ(read.Reading, InkReading::Whole);
  EXPECT_EQ(read.Note.Text, note.Text);
  ASSERT_EQ(read.Note.Strokes.size(), note.Strokes.size());
  for (std::size_t i = 0; i < note.Strokes.size(); ++i)
    EXPECT_EQ(read.Note.Strokes[i]->Points, note.Strokes[i]->Points);
}

INSTANTIATE_TEST_SUITE_P(Sketches, SampleInk,
                         testing::Values(SampleSketch::Underline, SampleSketch::Circle,
                                         SampleSketch::Arrow));

}  // namespace
}  // namespace quill
