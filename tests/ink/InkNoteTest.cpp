#include "ink/InkNote.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

TEST(InkNote, SealedBoundsHoldEveryPoint) {
  const InkStrokePtr stroke =
      SealInkStroke({.Points = {{.X = 10, .Y = -5}, {.X = 40, .Y = 7}, {.X = -3, .Y = 2}}});
  EXPECT_EQ(stroke->Bounds, QRect(QPoint(-3, -5), QPoint(40, 7)));
}

TEST(InkNote, SealedBoundsOfOnePointAreOneUnit) {
  EXPECT_EQ(SealInkStroke({.Points = {{.X = 4, .Y = 6}}})->Bounds, QRect(4, 6, 1, 1));
}

TEST(InkNote, IsEmptyWithoutStrokesAndTextWhateverElseItHolds) {
  InkNote note;
  note.Pens = {InkPen{}};
  note.Extras = {{"wORD", "x"}};
  EXPECT_TRUE(note.IsEmpty());
  note.Text.Text = QStringLiteral("a");
  EXPECT_FALSE(note.IsEmpty());
  note.Text.Text.clear();
  note.Strokes.push_back(SealInkStroke({.Points = {{}}}));
  EXPECT_FALSE(note.IsEmpty());
}

}  // namespace
}  // namespace quill
