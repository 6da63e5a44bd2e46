#include "list/TapBands.h"

#include <gtest/gtest.h>

#include <optional>

namespace quill {
namespace {

enum class Strip { Shown, Off };
constexpr auto kShown = Strip::Shown;
constexpr auto kOff = Strip::Off;
constexpr std::optional<TapBand> kNone;

// The bands that contain this row of pixels; they may not overlap.
std::vector<TapBand> BandsAt(int x, int y, Strip strip) {
  const Settings settings{.Abc = strip == Strip::Shown ? 1U : 0U};
  std::vector<TapBand> bands;
  for (const TapBand band : {TapBand::Title, TapBand::IndexStrip, TapBand::List})
    if (TapBandArea(band, settings).contains(x, y)) bands.push_back(band);
  return bands;
}

struct BandCase {
  int Y;
  Strip Mode;
  std::optional<TapBand> Band;
};

class TapBandTest : public testing::TestWithParam<BandCase> {};

TEST_P(TapBandTest, TakesTheTapsOfItsRowsOverTheWholeWidth) {
  const BandCase& tap = GetParam();
  const std::vector<TapBand> expected = tap.Band ? std::vector{*tap.Band} : std::vector<TapBand>();
  EXPECT_EQ(BandsAt(0, tap.Y, tap.Mode), expected);
  EXPECT_EQ(BandsAt(239, tap.Y, tap.Mode), expected);
  EXPECT_TRUE(BandsAt(240, tap.Y, tap.Mode).empty());
}

INSTANTIATE_TEST_SUITE_P(
    WithStrip, TapBandTest,
    testing::Values(BandCase{0, kShown, kNone}, BandCase{1, kShown, TapBand::Title},
                    BandCase{24, kShown, TapBand::Title}, BandCase{25, kShown, kNone},
                    BandCase{26, kShown, TapBand::IndexStrip},
                    BandCase{44, kShown, TapBand::IndexStrip}, BandCase{45, kShown, TapBand::List},
                    BandCase{269, kShown, TapBand::List}, BandCase{270, kShown, kNone}));

INSTANTIATE_TEST_SUITE_P(
    WithoutStrip, TapBandTest,
    testing::Values(BandCase{0, kOff, kNone}, BandCase{1, kOff, TapBand::Title},
                    BandCase{24, kOff, TapBand::Title}, BandCase{25, kOff, TapBand::List},
                    BandCase{26, kOff, TapBand::List}, BandCase{45, kOff, TapBand::List},
                    BandCase{269, kOff, TapBand::List}, BandCase{270, kOff, kNone}));

TEST(TapBands, TheCategoryTakesTheTapsOfItsPartOfTheTitle) {
  EXPECT_EQ(CategoryTapArea(), QRect(QPoint(156, 1), QPoint(234, 24)));
}

}  // namespace
}  // namespace quill
