#include "ink/InkMask.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace quill {
namespace {

constexpr QRect kField(-40, -40, 80, 80);

// The rule as it is written, pixel by pixel.
double NaiveCoverage(const InkCapsule& capsule, int x, int y) {
  const double dx = capsule.X1 - capsule.X0;
  const double dy = capsule.Y1 - capsule.Y0;
  const double px = x + 0.5 - capsule.X0;
  const double py = y + 0.5 - capsule.Y0;
  const double square = dx * dx + dy * dy;
  const double t = square > 0 ? std::clamp((px * dx + py * dy) / square, 0.0, 1.0) : 0;
  const double radius = capsule.R0 + t * (capsule.R1 - capsule.R0);
  const double distance = std::hypot(px - t * dx, py - t * dy);
  return std::clamp(radius + 0.5 - distance, 0.0, std::min(1.0, 2 * radius));
}

// The pixels whose bytes are further from the rule than rounding allows.
int PixelsAstray(const InkMask& mask, const InkCapsule& capsule) {
  int astray = 0;
  const QRect& area = mask.Area();
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      const double expected = NaiveCoverage(capsule, x, y) * 255;
      if (std::abs(mask.At({x, y}) - expected) > 0.75) ++astray;
    }
  }
  return astray;
}

bool IsBare(const InkMask& mask, const QRect& area) {
  for (int y = area.top(); y <= area.bottom(); ++y) {
    const uchar* row = mask.Row(area.left(), y);
    if (std::any_of(row, row + area.width(), [](uchar byte) { return byte != 0; })) return false;
  }
  return true;
}

int CountCovered(const InkMask& mask) {
  int covered = 0;
  const QRect& area = mask.Area();
  for (int y = area.top(); y <= area.bottom(); ++y) {
    const uchar* row = mask.Row(area.left(), y);
    covered += static_cast<int>(area.width() - std::count(row, row + area.width(), 0));
  }
  return covered;
}

struct CapsuleKind {
  const char* Name;
  double Reach;  // of the ends from the middle, pixels
  double LeastRadius;
  double MostRadius;
};

class RandomCapsules {
 public:
  explicit RandomCapsules(const CapsuleKind& kind) : m_kind(kind) {}

  InkCapsule Next() {
    const double x = Between(-10, 10);
    const double y = Between(-10, 10);
    return {
        x,       y, Radius(), x + Between(-1, 1) * m_kind.Reach, y + Between(-1, 1) * m_kind.Reach,
        Radius()};
  }
  QRect NextRectangle() {
    const auto corner = [&] { return static_cast<int>(Between(-40, 30)); };
    const auto side = [&] { return static_cast<int>(Between(1, 40)); };
    const QPoint at(corner(), corner());
    return QRect(at, QSize(side(), side())) & kField;
  }

 private:
  double Radius() { return Between(m_kind.LeastRadius, m_kind.MostRadius); }
  double Between(double least, double most) {
    return std::uniform_real_distribution<double>(least, most)(m_random);
  }

  CapsuleKind m_kind;
  std::mt19937 m_random{7};
};

class InkMaskCoverage : public testing::TestWithParam<CapsuleKind> {};

TEST_P(InkMaskCoverage, IsTheRuleAtEveryPixel) {
  RandomCapsules capsules(GetParam());
  for (int round = 0; round < 200; ++round) {
    const InkCapsule capsule = capsules.Next();
    InkMask mask(kField);
    mask.Add(capsule);
    ASSERT_EQ(PixelsAstray(mask, capsule), 0) << "round " << round;
  }
}

TEST_P(InkMaskCoverage, IsTheSameHoweverTheMaskIsCut) {
  RandomCapsules capsules(GetParam());
  for (int round = 0; round < 200; ++round) {
    const InkCapsule capsule = capsules.Next();
    InkMask whole(kField);
    whole.Add(capsule);
    InkMask cut(capsules.NextRectangle());
    cut.Add(capsule);
    for (int y = cut.Area().top(); y <= cut.Area().bottom(); ++y) {
      const uchar* row = cut.Row(cut.Area().left(), y);
      ASSERT_TRUE(std::equal(row, row + cut.Area().width(), whole.Row(cut.Area().left(), y)))
          << "round " << round << " row " << y;
    }
  }
}

TEST_P(InkMaskCoverage, StaysWithinTheReturnedRectangle) {
  RandomCapsules capsules(GetParam());
  for (int round = 0; round < 200; ++round) {
    InkMask mask(kField);
    const QRect touched = mask.Add(capsules.Next());
    ASSERT_TRUE(kField.contains(touched) || touched.isEmpty());
    mask.Clear(touched);
    ASSERT_EQ(CountCovered(mask), 0) << "round " << round;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, InkMaskCoverage,
    testing::Values(CapsuleKind{"Dots", 0, 0, 6}, CapsuleKind{"Hairs", 5, 0, 0.6},
                    CapsuleKind{"Pieces", 3, 0.5, 2}, CapsuleKind{"Thick", 3, 3, 20},
                    CapsuleKind{"Long", 60, 0.5, 12}, CapsuleKind{"FarBeyond", 4000, 0.5, 30}),
    [](const auto& kind) { return std::string(kind.param.Name); });

TEST(InkMask, LevelAndUprightCapsulesFollowTheRule) {
  for (const InkCapsule& capsule :
       {InkCapsule{-20, 0, 4, 20, 0, 4}, InkCapsule{0.5, -20, 5, 0.5, 20, 5},
        InkCapsule{-20, 0.5, 1, 20, 0.5, 9}, InkCapsule{3, 3, 8, 3, 3, 8}}) {
    InkMask mask(kField);
    mask.Add(capsule);
    EXPECT_EQ(PixelsAstray(mask, capsule), 0);
  }
}

TEST(InkMask, ACapsuleOfNoWidthCoversNothing) {
  InkMask mask(kField);
  mask.Add({-5, -5, 0, 5, 5, 0});
  EXPECT_EQ(CountCovered(mask), 0);
}

TEST(InkMask, OverlappingCapsulesKeepTheGreaterCoverage) {
  const InkCapsule first{-10, 0.3, 1, 10, 0.3, 1};
  const InkCapsule second{0.3, -10, 0.4, 0.3, 10, 0.4};
  InkMask both(kField);
  both.Add(first);
  both.Add(second);
  InkMask one(kField);
  one.Add(first);
  InkMask other(kField);
  other.Add(second);
  for (int y = kField.top(); y <= kField.bottom(); ++y) {
    for (int x = kField.left(); x <= kField.right(); ++x) {
      ASSERT_EQ(both.At({x, y}), std::max(one.At({x, y}), other.At({x, y})));
    }
  }
  one.Join(other);
  EXPECT_TRUE(std::equal(both.Row(-40, -40), both.Row(-40, -40) + 6400, one.Row(-40, -40)));
}

TEST(InkMask, JoinsOnlyWhereTheOtherLies) {
  InkMask other(QRect(0, 0, 4, 4));
  other.Add({2, 2, 3, 2, 2, 3});
  InkMask mask(QRect(2, 2, 10, 10));
  mask.Join(other);
  EXPECT_EQ(mask.At({2, 2}), 255);
  EXPECT_EQ(mask.At({3, 3}), other.At({3, 3}));
  EXPECT_EQ(CountCovered(mask), 4);
}

TEST(InkMask, DifferenceIsTheRectangleAroundOtherBytes) {
  InkMask before(kField);
  before.Add({0, 0, 9, 0, 0, 9});
  InkMask after = before;
  EXPECT_TRUE(after.Difference(before).isEmpty());
  after.Add({-20.5, 5.5, 0.5, -20.5, 5.5, 0.5});
  EXPECT_EQ(after.Difference(before), QRect(-21, 5, 1, 1));
  after.Add({30, -10, 3, 30, -10, 3});
  EXPECT_EQ(after.Difference(before), QRect(QPoint(-21, -13), QPoint(32, 5)));
  EXPECT_EQ(before.Difference(after), after.Difference(before));
  EXPECT_TRUE(InkMask().Difference(InkMask()).isEmpty());
}

TEST(InkMask, ClearingTakesAwayJustThat) {
  InkMask mask(QRect(0, 0, 10, 10));
  mask.Add({5, 5, 20, 5, 5, 20});
  mask.Clear(QRect(2, 3, 4, 5));
  EXPECT_TRUE(IsBare(mask, QRect(2, 3, 4, 5)));
  EXPECT_EQ(CountCovered(mask), 80);
  mask.Clear(QRect(-5, -5, 30, 30));
  EXPECT_EQ(CountCovered(mask), 0);
}

TEST(InkMask, ResettingLeavesNothingOfBefore) {
  InkMask mask(QRect(0, 0, 8, 8));
  mask.Add({4, 4, 20, 4, 4, 20});
  mask.Reset(QRect(100, 100, 4, 4));
  EXPECT_EQ(mask.Area(), QRect(100, 100, 4, 4));
  EXPECT_EQ(CountCovered(mask), 0);
}

TEST(InkMask, AnEmptyAreaTakesNothing) {
  InkMask mask(QRect(5, 5, 0, 7));
  EXPECT_TRUE(mask.Area().isEmpty());
  EXPECT_TRUE(mask.Add({5, 5, 3, 6, 6, 3}).isEmpty());
  EXPECT_TRUE(InkMask().Add({0, 0, 3, 6, 6, 3}).isEmpty());
}

class InkMaskNoPlace : public testing::TestWithParam<double> {};

TEST_P(InkMaskNoPlace, IsLeftOut) {
  const double bad = GetParam();
  InkMask mask(kField);
  for (int member = 0; member < 6; ++member) {
    std::array<double, 6> values{0, 0, 3, 6, 6, 3};
    values[member] = bad;
    const auto [x0, y0, r0, x1, y1, r1] = values;
    EXPECT_TRUE(mask.Add({x0, y0, r0, x1, y1, r1}).isEmpty());
  }
  EXPECT_EQ(CountCovered(mask), 0);
}

INSTANTIATE_TEST_SUITE_P(Values, InkMaskNoPlace,
                         testing::Values(std::numeric_limits<double>::quiet_NaN(),
                                         std::numeric_limits<double>::infinity(),
                                         -std::numeric_limits<double>::infinity(), 1e12));

TEST(InkMask, ACapsuleAcrossTheWholePlaneCoversItsMiddle) {
  constexpr double kEdge = 1 << 29;
  InkMask level(kField);
  level.Add({-kEdge, 0, 3, kEdge, 0, 3});
  EXPECT_EQ(CountCovered(level), 80 * 6);
  InkMask upright(kField);
  upright.Add({0, kEdge, 3, 0, -kEdge, 3});
  EXPECT_EQ(CountCovered(upright), 80 * 6);
}

TEST(InkMask, AnImmenseDiscFillsTheMask) {
  constexpr double kEdge = 1 << 29;
  InkMask mask(kField);
  mask.Add({0, 0, kEdge, kEdge, kEdge, kEdge});
  EXPECT_EQ(CountCovered(mask), 6400);
}

}  // namespace
}  // namespace quill
