#include "platform/Scale.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

TEST(Scale, IsTwoUnlessSaidOtherwise) { EXPECT_EQ(Scale(), Scale{8}); }

struct ScaleTextCase {
  const char16_t* Text;
  std::optional<Scale> Expected;
};

class ParseScaleTest : public testing::TestWithParam<ScaleTextCase> {};

TEST_P(ParseScaleTest, TakesQuartersFromOneToEight) {
  EXPECT_EQ(ParseScale(GetParam().Text), GetParam().Expected)
      << QString::fromUtf16(GetParam().Text).toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ParseScaleTest,
    testing::Values(ScaleTextCase{u"1", Scale{4}}, ScaleTextCase{u"1.25", Scale{5}},
                    ScaleTextCase{u"1.5", Scale{6}}, ScaleTextCase{u"1.75", Scale{7}},
                    ScaleTextCase{u"2", Scale{8}}, ScaleTextCase{u"2.0", Scale{8}},
                    ScaleTextCase{u"2.50", Scale{10}}, ScaleTextCase{u"8", Scale{32}},
                    ScaleTextCase{u"", {}}, ScaleTextCase{u"0", {}}, ScaleTextCase{u"0.75", {}},
                    ScaleTextCase{u"8.25", {}}, ScaleTextCase{u"1.1", {}},
                    ScaleTextCase{u"1.125", {}}, ScaleTextCase{u"-2", {}}, ScaleTextCase{u"+2", {}},
                    ScaleTextCase{u" 2", {}}, ScaleTextCase{u"2x", {}}, ScaleTextCase{u"2e0", {}},
                    ScaleTextCase{u"nan", {}}, ScaleTextCase{u"inf", {}}, ScaleTextCase{u".", {}},
                    ScaleTextCase{u"1.2.5", {}}, ScaleTextCase{u"1,5", {}},
                    ScaleTextCase{u"99999999999999999999", {}}));

TEST(Scale, EveryScaleReadsBackFromItsText) {
  for (Scale scale = kSmallestScale; scale <= kLargestScale; ++scale.Quarters)
    EXPECT_EQ(ParseScale(ScaleText(scale)), scale) << ScaleText(scale).toStdString();
}

TEST(Scale, TextsAreAsShortAsTheyCanBe) {
  EXPECT_EQ(ScaleText({4}), QStringLiteral("1"));
  EXPECT_EQ(ScaleText({6}), QStringLiteral("1.5"));
  EXPECT_EQ(ScaleText({9}), QStringLiteral("2.25"));
}

struct FittingCase {
  QSize Available;
  Scale Largest;
};

class LargestFittingTest : public testing::TestWithParam<FittingCase> {};

TEST_P(LargestFittingTest, TheWholeScreenFitsAtThatScale) {
  EXPECT_EQ(LargestFitting(GetParam().Available), GetParam().Largest);
}

INSTANTIATE_TEST_SUITE_P(Desktops, LargestFittingTest,
                         testing::Values(FittingCase{{240, 320}, {4}},  // exactly once
                                         FittingCase{{480, 640}, {8}},  // exactly twice
                                         FittingCase{{480, 639}, {7}},  // a pixel too low
                                         FittingCase{{479, 640}, {7}},  // a pixel too narrow
                                         FittingCase{{1920, 1040}, {13}},
                                         FittingCase{{600, 4000}, {10}},  // as wide as it goes
                                         FittingCase{{9000, 9000}, {32}},
                                         FittingCase{{100, 100}, {4}},  // fits at no scale
                                         FittingCase{{0, 0}, {4}}));

TEST(Scale, AWantedScaleIsLoweredUntilItFits) {
  EXPECT_EQ(FitScale({8}, {480, 640}), Scale{8});
  EXPECT_EQ(FitScale({8}, {480, 600}), Scale{7});
  EXPECT_EQ(FitScale({8}, {100, 100}), Scale{4});
  EXPECT_EQ(FitScale({1}, {480, 640}), Scale{4});
}

TEST(Scale, StepsGoByAQuarterAndStopAtTheEnds) {
  EXPECT_EQ(StepUp({7}, {480, 640}), Scale{8});
  EXPECT_EQ(StepUp({8}, {480, 640}), Scale{8});
  EXPECT_EQ(StepUp({32}, {9000, 9000}), Scale{32});
  EXPECT_EQ(StepDown({8}), Scale{7});
  EXPECT_EQ(StepDown({4}), Scale{4});
}

struct DesktopCase {
  QSize Desktop;
  bool Handheld;
};
class HandheldScreen : public testing::TestWithParam<DesktopCase> {};

TEST_P(HandheldScreen, IsUprightAndNarrowOrSmall) {
  EXPECT_EQ(IsHandheldScreen(GetParam().Desktop), GetParam().Handheld);
}

INSTANTIATE_TEST_SUITE_P(
    Desktops, HandheldScreen,
    testing::Values(DesktopCase{{240, 320}, true}, DesktopCase{{480, 640}, true},
                    DesktopCase{{640, 480}, true}, DesktopCase{{360, 780}, true},
                    DesktopCase{{600, 600}, true}, DesktopCase{{601, 1024}, false},
                    DesktopCase{{641, 480}, false}, DesktopCase{{640, 481}, false},
                    DesktopCase{{1024, 600}, false}, DesktopCase{{800, 800}, false},
                    DesktopCase{{1080, 1920}, false}));

}  // namespace
}  // namespace quill
