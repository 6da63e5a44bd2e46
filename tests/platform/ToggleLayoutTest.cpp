#include "platform/ToggleLayout.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

constexpr QSize kSize{30, 30};
constexpr std::size_t kBorder = 0;
constexpr std::size_t kGround = 1;
constexpr std::size_t kText = 2;
constexpr std::size_t kMark = 3;

PaintedRow LayOut(ToggleModel model) {
  model.Text = QStringLiteral("Sun");
  return LayOutToggle(model, kSize);
}

TEST(ToggleLayout, IsACheckBoxWithItsTextAsName) {
  EXPECT_EQ(LayOut({}).Rectangle, QRect(0, 0, 30, 30));
  EXPECT_EQ(LayOut({}).Role, PaintedRole::CheckBox);
  EXPECT_EQ(LayOut({}).SpokenName, QStringLiteral("Sun"));
  EXPECT_FALSE(LayOut({}).State.testFlag(PaintedStateFlag::Checked));
  EXPECT_TRUE(LayOut({.IsOn = true}).State.testFlag(PaintedStateFlag::Checked));
}

TEST(ToggleLayout, TheTextStandsAboveTheMarkAndBothAreCentred) {
  const PaintedRow row = LayOut({.IsOn = true});
  EXPECT_EQ(row.Items[kText].Rectangle, QRect(0, 1, 30, 14));
  EXPECT_EQ(row.Items[kText].Text, QStringLiteral("Sun"));
  EXPECT_EQ(row.Items[kText].Alignment, TextAlign::Centre);
  EXPECT_EQ(row.Items[kMark].Rectangle, QRect(8, 15, 14, 14));
  EXPECT_NE(row.Items[kMark].Picture, nullptr);
}

TEST(ToggleLayout, OneThatIsOffHasNoMarkAndAnotherGround) {
  EXPECT_EQ(LayOut({}).Items.size(), 3U);
  EXPECT_NE(LayOut({}).Items[kGround].Fill, LayOut({.IsOn = true}).Items[kGround].Fill);
}

class EveryLook : public testing::TestWithParam<ToggleModel> {};

TEST_P(EveryLook, IsReadable) {
  const PaintedRow row = LayOut(GetParam());
  const auto brightness = [](Rgb color) {
    return static_cast<int>(color >> 16 & 255) + static_cast<int>(color >> 8 & 255) +
           static_cast<int>(color & 255);
  };
  const int ground = brightness(row.Items[kGround].Fill.value());
  for (std::size_t i = kText; i < row.Items.size(); ++i)
    EXPECT_GT(std::abs(brightness(row.Items[i].Color) - ground), 380);
}

INSTANTIATE_TEST_SUITE_P(Looks, EveryLook,
                         testing::Values(ToggleModel{}, ToggleModel{.IsOn = true},
                                         ToggleModel{.IsPressed = true},
                                         ToggleModel{.IsOn = true, .IsPressed = true}));

TEST(ToggleLayout, IsSeenToBePressed) {
  const auto pressed = LayOut({.IsPressed = true}).Items[kGround].Fill;
  EXPECT_NE(pressed, LayOut({}).Items[kGround].Fill);
  EXPECT_NE(pressed, LayOut({.IsOn = true}).Items[kGround].Fill);
}

TEST(ToggleLayout, HasABorderThatIsWiderAndDarkerWithTheFocus) {
  EXPECT_EQ(LayOut({}).Items[kBorder].Rectangle, QRect(0, 0, 30, 30));
  EXPECT_EQ(LayOut({}).Items[kGround].Rectangle, QRect(1, 1, 28, 28));
  const PaintedRow focused = LayOut({.HasFocus = true});
  EXPECT_EQ(focused.Items[kGround].Rectangle, QRect(2, 2, 26, 26));
  EXPECT_NE(focused.Items[kBorder].Fill, LayOut({}).Items[kBorder].Fill);
}

}  // namespace
}  // namespace quill
