#include "ink/InkSelect.h"

#include <gtest/gtest.h>

#include "ink/InkFormat.h"

namespace quill {
namespace {

InkStrokePtr Through(const std::vector<QPoint>& points, quint32 pen = 0) {
  InkStroke stroke{.Pen = pen};
  for (const QPoint at : points) stroke.Points.push_back({.X = at.x(), .Y = at.y()});
  return SealInkStroke(std::move(stroke));
}

// A level line at 1000, an upright one at 5000, and a dot of a thick pen.
InkNote SomeStrokes() {
  return {.Pens = {{.Diameter = 64}, {.Diameter = 640}},
          .Strokes = {Through({{1000, 1000}, {3000, 1000}}), Through({{5000, 500}, {5000, 2500}}),
                      Through({{1000, 5000}}, 1)}};
}

std::vector<int> IndicesOf(const InkNote& note, const std::vector<InkStrokePtr>& strokes) {
  std::vector<int> indices;
  for (const InkStrokePtr& stroke : strokes)
    indices.push_back(
        static_cast<int>(std::ranges::find(note.Strokes, stroke) - note.Strokes.begin()));
  return indices;
}

struct Way {
  const char* Name;
  QPoint From;
  QPoint To;
  std::vector<int> Found;
};

class InkSelectAlong : public testing::TestWithParam<Way> {};

TEST_P(InkSelectAlong, FindsWhatIsTouched) {
  const InkNote note = SomeStrokes();
  EXPECT_EQ(IndicesOf(note, StrokesAlong(note, GetParam().From, GetParam().To, 100)),
            GetParam().Found);
}

// The thin pen's ink reaches 33 units, the thick one's 321; the eraser's radius is 100.
INSTANTIATE_TEST_SUITE_P(
    Ways, InkSelectAlong,
    testing::Values(Way{"OnALine", {2000, 1000}, {2000, 1000}, {0}},
                    Way{"JustNear", {2000, 1133}, {2000, 1133}, {0}},
                    Way{"JustTooFar", {2000, 1134}, {2000, 1134}, {}},
                    Way{"BesideItsEnd", {3133, 1000}, {3133, 1000}, {0}},
                    Way{"BeyondItsEnd", {3134, 1000}, {3134, 1000}, {}},
                    Way{"AcrossBetweenItsPoints", {2000, 0}, {2000, 2000}, {0}},
                    Way{"AcrossTwo", {500, 1000}, {6000, 1000}, {0, 1}},
                    Way{"WithinTheirBoundsButNotNear", {4000, 1500}, {4700, 2400}, {}},
                    Way{"AThickDot", {1000, 5421}, {1000, 5421}, {2}},
                    Way{"BesideAThickDot", {1000, 5422}, {1000, 5422}, {}},
                    Way{"PastAThickDot", {0, 5300}, {3000, 5300}, {2}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(InkSelect, AStrokeOfManyPointsIsTouchedAtEachOfItsPieces) {
  const InkNote note{.Strokes = {Through({{0, 0}, {1000, 0}, {1000, 1000}, {0, 1000}})}};
  EXPECT_FALSE(StrokesAlong(note, {500, 0}, {500, 0}, 10).empty());
  EXPECT_FALSE(StrokesAlong(note, {1000, 500}, {1000, 500}, 10).empty());
  EXPECT_FALSE(StrokesAlong(note, {500, 1000}, {500, 1000}, 10).empty());
  EXPECT_TRUE(StrokesAlong(note, {0, 500}, {0, 500}, 10).empty());
  EXPECT_TRUE(StrokesAlong(note, {300, 300}, {700, 700}, 10).empty());
}

struct Drag {
  const char* Name;
  QPolygon Path;
  QPoint In;
  QPoint Out;
};

class InkSelectDrag : public testing::TestWithParam<Drag> {};

TEST_P(InkSelectDrag, TakesInAnArea) {
  const QPolygon area = DraggedArea(GetParam().Path);
  EXPECT_TRUE(area.containsPoint(GetParam().In, Qt::OddEvenFill));
  EXPECT_FALSE(area.containsPoint(GetParam().Out, Qt::OddEvenFill));
}

INSTANTIATE_TEST_SUITE_P(
    Ways, InkSelectDrag,
    testing::Values(
        Drag{"AStraightWayIsARectangle", {{QPoint(0, 0), QPoint(99, 99)}}, {90, 10}, {110, 50}},
        Drag{"BackwardsToo", {{QPoint(99, 99), QPoint(0, 0)}}, {90, 10}, {110, 50}},
        Drag{"ABentWayToo", {{QPoint(0, 0), QPoint(99, 0), QPoint(99, 99)}}, {10, 90}, {110, 50}},
        Drag{"AWayThatComesBackIsALoop",
             {{QPoint(0, 0), QPoint(100, 0), QPoint(0, 100), QPoint(0, 10)}},
             {30, 30},
             {90, 90}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(InkSelect, NoWayTakesNothingIn) { EXPECT_TRUE(DraggedArea({}).isEmpty()); }

TEST(InkSelect, HalfOfItsPointsMakeAStrokeSelected) {
  const InkNote note{.Strokes = {Through({{1, 1}, {2, 2}, {50, 50}, {60, 60}}),
                                 Through({{1, 1}, {40, 40}, {50, 50}}),
                                 Through({{30, 5}, {30, 6}})}};
  const QPolygon area(QRect(0, 0, 20, 20));
  EXPECT_EQ(StrokesInside(note, area), std::vector<InkStrokePtr>{note.Strokes[0]});
}

TEST(InkSelect, BoundsAreAroundAll) {
  EXPECT_TRUE(BoundsOf({}).isEmpty());
  EXPECT_EQ(BoundsOf({Through({{5, 6}}), Through({{1, 9}, {2, 3}})}),
            QRect(QPoint(1, 3), QPoint(5, 9)));
}

TEST(InkSelect, WhatIsPaintedIsWiderThanThePen) {
  const InkNote note = SomeStrokes();
  EXPECT_EQ(PaintedBounds(note, *note.Strokes[0]),
            note.Strokes[0]->Bounds.adjusted(-97, -97, 97, 97));
  EXPECT_EQ(PaintedBounds(note, *note.Strokes[2]),
            note.Strokes[2]->Bounds.adjusted(-385, -385, 385, 385));
}

struct Reach {
  const char* Name;
  QRect Bounds;
  QPoint By;
  QPoint Way;
};

class InkSelectReach : public testing::TestWithParam<Reach> {};

TEST_P(InkSelectReach, EndsWhereAPageDoes) {
  EXPECT_EQ(WithinReach(GetParam().Bounds, GetParam().By), GetParam().Way);
}

constexpr int kFar = 1 << 30;

INSTANTIATE_TEST_SUITE_P(
    Ways, InkSelectReach,
    testing::Values(
        Reach{"Within", {50, 60, 9, 9}, {-50, 7}, {-50, 7}},
        Reach{"OverTheLeftEdge", {50, 60, 9, 9}, {-51, 0}, {-50, 0}},
        Reach{"OverTheTopEdge", {50, 60, 9, 9}, {0, -99}, {0, -60}},
        Reach{"TooFarRight", {QPoint(0, 0), QPoint(9, 9)}, {2147483647, 0}, {kFar - 9, 0}},
        Reach{"TooFarDown", {QPoint(0, 0), QPoint(9, 9)}, {0, 2147483647}, {0, kFar - 9}},
        Reach{"WhatIsOffThePageMayComeBack", {-50, -60, 9, 9}, {10, 20}, {10, 20}},
        Reach{"WhatIsOffThePageGoesNoFarther", {-50, -60, 9, 9}, {-10, -20}, {0, 0}},
        Reach{"WhatIsTooFarGoesNoFarther",
              {QPoint(0, 0), QPoint(kFar + 9, kFar + 9)},
              {5, 5},
              {0, 0}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(InkSelect, AMovedStrokeIsTheSameElsewhere) {
  const InkStroke stroke =
      *SealInkStroke({.Pen = 3,
                      .Parts = kInkHasPressure,
                      .Start = 77,
                      .Points = {{.X = 1, .Y = 2, .Pressure = 9, .Time = 4}, {.X = 5, .Y = 6}}});
  InkStroke expected = stroke;
  expected.Points[0].X = 11;
  expected.Points[0].Y = -98;
  expected.Points[1].X = 15;
  expected.Points[1].Y = -94;
  EXPECT_EQ(*MovedStroke(stroke, {10, -100}), *SealInkStroke(expected));
}

}  // namespace
}  // namespace quill
