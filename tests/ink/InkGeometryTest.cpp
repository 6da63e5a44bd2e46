#include "ink/InkGeometry.h"

#include <gtest/gtest.h>

#include <limits>

#include "ink/InkPictures.h"

namespace quill {
namespace {

constexpr double kScale = InkScale(100, 1);
// At that scale: 10 pixels at full pressure, 1 pixel without.
constexpr InkPen kPen{.Diameter = 320, .MinimumWidth = 10};

InkPoint At(double x, double y, int pressure = kFullPressure) {
  return {.X = static_cast<qint32>(x * kInkUnitsPerPixel),
          .Y = static_cast<qint32>(y * kInkUnitsPerPixel),
          .Pressure = static_cast<quint16>(pressure)};
}

std::vector<InkCapsule> Shape(const std::vector<InkPoint>& points, double scale = kScale) {
  std::vector<InkCapsule> capsules;
  ShapeStroke({.Parts = kInkHasPressure, .Points = points}, kPen, scale, capsules);
  return capsules;
}

// A stroke of that many pieces between a first and a last one.
size_t PiecesOfCurve(const InkPoint& to, double scale) {
  return Shape({At(0, 0), At(0, 0), to}, scale).size() - 2;
}

TEST(InkGeometry, AScaleIsDevicePixelsPerUnit) {
  EXPECT_DOUBLE_EQ(InkScale(100, 1), 1.0 / 32);
  EXPECT_DOUBLE_EQ(InkScale(150, 2), 3.0 / 32);
}

TEST(InkGeometry, NoPointsAreNoCapsules) { EXPECT_TRUE(Shape({}).empty()); }

TEST(InkGeometry, OnePointIsADot) {
  EXPECT_EQ(Shape({At(3, 4)}), (std::vector<InkCapsule>{{3, 4, 5, 3, 4, 5}}));
}

TEST(InkGeometry, TwoPointsAreALineToTheirMiddleAndOn) {
  EXPECT_EQ(Shape({At(0, 0), At(8, 4)}),
            (std::vector<InkCapsule>{{0, 0, 5, 4, 2, 5}, {4, 2, 5, 8, 4, 5}}));
}

TEST(InkGeometry, EqualPointsAreDots) {
  EXPECT_EQ(Shape({At(1, 2), At(1, 2)}),
            (std::vector<InkCapsule>{{1, 2, 5, 1, 2, 5}, {1, 2, 5, 1, 2, 5}}));
}

TEST(InkGeometry, APointWithinIsTheControlOfACurve) {
  // A bend of 2 pixels makes two pieces; they meet a quarter of the way from control to chord.
  EXPECT_EQ(Shape({At(0, 0, 0), At(4, 0), At(8, 4, 0)}),
            (std::vector<InkCapsule>{{0, 0, 0.5, 2, 0, 2.75},
                                     {2, 0, 2.75, 4, 0.5, 3.875},
                                     {4, 0.5, 3.875, 6, 2, 2.75},
                                     {6, 2, 2.75, 8, 4, 0.5}}));
}

struct Bend {
  double X, Y;  // the last point, twice the bend away
  double Scale;
  size_t Pieces;
};

class InkBend : public testing::TestWithParam<Bend> {};

TEST_P(InkBend, SaysHowManyPiecesACurveHas) {
  const Bend& bend = GetParam();
  EXPECT_EQ(PiecesOfCurve(At(bend.X, bend.Y), bend.Scale), bend.Pieces);
}

INSTANTIATE_TEST_SUITE_P(Rules, InkBend,
                         testing::Values(Bend{0, 0, kScale, 1}, Bend{0.46875, 0, kScale, 1},
                                         Bend{0.5, 0, kScale, 2}, Bend{0, 0.5, kScale, 2},
                                         Bend{0.25, 0.25, kScale, 2},
                                         Bend{-0.25, 0.21875, kScale, 1},
                                         Bend{-0.25, 0.25, kScale, 2}, Bend{5.5, 0, kScale, 2},
                                         Bend{5.625, 0, kScale, 3}, Bend{0, -49.9375, kScale, 6},
                                         Bend{0, -50.0625, kScale, 7}, Bend{168, 0, kScale, 11},
                                         Bend{169, 0, kScale, 12}, Bend{100'000, 0, kScale, 12},
                                         Bend{0.5, 0, kScale / 2, 1}, Bend{2.75, 0, kScale * 2, 2},
                                         Bend{2.8125, 0, kScale * 2, 3}));

struct Press {
  int Pressure;
  int MinimumWidth;
  quint8 Parts;
  double Radius;
};

class InkPressure : public testing::TestWithParam<Press> {};

TEST_P(InkPressure, MakesTheRadius) {
  const Press& press = GetParam();
  const InkPen pen{.Diameter = 320, .MinimumWidth = static_cast<quint8>(press.MinimumWidth)};
  InkShaper shaper(pen, kScale, press.Parts);
  shaper.Add(At(0, 0, press.Pressure));
  EXPECT_NEAR(shaper.Tail().R0, press.Radius, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, InkPressure,
    testing::Values(Press{0, 0, kInkHasPressure, 0}, Press{0, 25, kInkHasPressure, 1.25},
                    Press{1023, 25, kInkHasPressure, 5},
                    Press{341, 25, kInkHasPressure | kInkHasTime, 2.5},
                    Press{341, 100, kInkHasPressure, 5}, Press{0, 200, kInkHasPressure, 5},
                    Press{2000, 25, kInkHasPressure, 5}, Press{0, 25, kInkHasTime, 5}));

TEST(InkGeometry, APrefixOfThePointsGivesAPrefixOfTheCapsules) {
  const InkStroke stroke = Scribble(60, 3);
  const std::vector<InkCapsule> whole = Shape(stroke.Points);
  for (size_t count = 1; count < stroke.Points.size(); ++count) {
    std::vector<InkCapsule> prefix =
        Shape({stroke.Points.begin(), stroke.Points.begin() + static_cast<int>(count)});
    prefix.pop_back();
    ASSERT_LE(prefix.size(), whole.size());
    ASSERT_TRUE(std::equal(prefix.begin(), prefix.end(), whole.begin())) << count << " points";
  }
}

TEST(InkGeometry, CapsulesMeetAndGoFromTheFirstPointToTheLast) {
  const InkStroke stroke = Scribble(60, 4);
  const std::vector<InkCapsule> whole = Shape(stroke.Points);
  for (size_t next = 1; next < whole.size(); ++next) {
    ASSERT_EQ(whole[next - 1].X1, whole[next].X0);
    ASSERT_EQ(whole[next - 1].Y1, whole[next].Y0);
    ASSERT_EQ(whole[next - 1].R1, whole[next].R0);
  }
  EXPECT_EQ(whole.front().X0, stroke.Points.front().X * kScale);
  EXPECT_EQ(whole.back().Y1, stroke.Points.back().Y * kScale);
}

TEST(InkGeometry, TheTailGoesFromTheLastMiddleToThePen) {
  InkShaper shaper(kPen, kScale, kInkHasPressure);
  EXPECT_TRUE(shaper.Add(At(0, 0)).empty());
  EXPECT_EQ(shaper.Tail(), (InkCapsule{0, 0, 5, 0, 0, 5}));
  shaper.Add(At(4, 0));
  EXPECT_EQ(shaper.Tail(), (InkCapsule{2, 0, 5, 4, 0, 5}));
  shaper.Add(At(4, 4));
  EXPECT_EQ(shaper.Tail(), (InkCapsule{4, 2, 5, 4, 4, 5}));
}

TEST(InkGeometry, AreaOfADotIsEveryPixelWhoseCentreIsNear) {
  EXPECT_EQ(InkCapsuleArea({10, 20, 2.5, 10, 20, 2.5}), QRect(QPoint(7, 17), QPoint(12, 22)));
  EXPECT_EQ(InkCapsuleArea({10, 20, 2, 10, 20, 2}), QRect(QPoint(8, 18), QPoint(11, 21)));
}

TEST(InkGeometry, AreaOfACapsuleHoldsBothItsEnds) {
  EXPECT_EQ(InkCapsuleArea({10, 20, 1, 30, 5, 4}), QRect(QPoint(9, 1), QPoint(33, 20)));
  EXPECT_EQ(InkCapsuleArea({30, 5, 4, 10, 20, 1}), QRect(QPoint(9, 1), QPoint(33, 20)));
}

TEST(InkGeometry, AreaOfAStrokeHoldsAllItsCapsules) {
  for (unsigned seed = 0; seed < 50; ++seed) {
    const InkStrokePtr stroke = SealInkStroke(Scribble(1 + static_cast<int>(seed), seed));
    for (const double scale : {kScale * 0.75, kScale, kScale * 4.5}) {
      const QRect area = InkStrokeArea(*stroke, kPen, scale);
      for (const InkCapsule& capsule : Shape(stroke->Points, scale)) {
        ASSERT_TRUE(area.contains(InkCapsuleArea(capsule)));
      }
    }
  }
}

TEST(InkGeometry, AreaOfAOnePointStrokeIsThatOfItsDot) {
  const InkStrokePtr stroke = SealInkStroke({.Points = {At(10, 20)}});
  EXPECT_EQ(InkStrokeArea(*stroke, kPen, kScale), InkCapsuleArea({10, 20, 5, 10, 20, 5}));
}

TEST(InkGeometry, TheFarthestCoordinatesAreStillPlaces) {
  constexpr int kFar = 1 << 30;
  const InkStrokePtr stroke =
      SealInkStroke({.Points = {{.X = -kFar, .Y = -kFar}, {.X = kFar, .Y = kFar}}});
  const double scale = InkScale(800, 2);
  const QRect area = InkStrokeArea(*stroke, kPen, scale);
  EXPECT_EQ(area, QRect(QPoint(-kInkDeviceLimit, -kInkDeviceLimit),
                        QPoint(kInkDeviceLimit, kInkDeviceLimit)));
  for (const InkCapsule& capsule : Shape(stroke->Points, scale)) {
    EXPECT_TRUE(area.contains(InkCapsuleArea(capsule)));
  }
}

TEST(InkGeometry, AnImmensePenIsCutToTheLimit) {
  const InkPen pen{.Diameter = std::numeric_limits<quint32>::max()};
  EXPECT_EQ(InkRadius(pen, InkScale(800, 2)), kInkDeviceLimit);
  EXPECT_EQ(InkRadius(pen, kScale), std::numeric_limits<quint32>::max() / 64.0);
}

TEST(InkGeometry, WhatIsNoNumberHasNoArea) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(InkCapsuleArea({none, 0, 1, 0, 0, 1}).isEmpty());
  for (const InkCapsule& capsule : Shape({At(0, 0), At(1, 1), At(2, 0)}, none)) {
    EXPECT_TRUE(InkCapsuleArea(capsule).isEmpty());
  }
  EXPECT_TRUE(InkStrokeArea(*SealInkStroke({.Points = {At(0, 0), At(9, 9)}}), kPen, none).width() <=
              1);
}

}  // namespace
}  // namespace quill
