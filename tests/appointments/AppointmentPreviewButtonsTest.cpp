#include "appointments/AppointmentPreviewButtons.h"

#include <gtest/gtest.h>

#include <ostream>

#include "resources/AppointmentPictures.h"

namespace quill {
namespace {

constexpr auto kModify = PreviewButton::Modify;
constexpr auto kDelete = PreviewButton::Delete;
constexpr QPoint kInModify{225, 25};
constexpr QPoint kInDelete{225, 48};
constexpr QPoint kBetween{225, 37};
constexpr QPoint kElsewhere{100, 30};

TEST(PreviewButtons, StandAtTheRightEachWithItsCommand) {
  EXPECT_EQ(PlaceOf(kModify), QRect(216, 16, 20, 20));
  EXPECT_EQ(PlaceOf(kDelete), QRect(216, 39, 20, 20));
  EXPECT_EQ(CommandOf(kModify), 1000);
  EXPECT_EQ(CommandOf(kDelete), 1001);
  EXPECT_EQ(NameOf(kModify), u"Modify");
  EXPECT_EQ(NameOf(kDelete), u"Delete");
  EXPECT_EQ(&PictureOf(kModify), &resources::kModifyPicture);
  EXPECT_EQ(&PictureOf(kDelete), &resources::kDeletePicture);
}

struct EdgeCase {
  int X;
  int Y;
  std::optional<PreviewButton> Button;
};

void PrintTo(const EdgeCase& row, std::ostream* out) { *out << row.X << ", " << row.Y; }

class HotAreas : public testing::TestWithParam<EdgeCase> {};

TEST_P(HotAreas, BeginAndEndHere) {
  const QPoint at(GetParam().X, GetParam().Y);
  PreviewPen pen;
  pen.Press(at);
  EXPECT_EQ(pen.Shown(), GetParam().Button);
  EXPECT_EQ(pen.Release(at), GetParam().Button);
}

INSTANTIATE_TEST_SUITE_P(
    Edges, HotAreas,
    testing::Values(EdgeCase{217, 17, kModify}, EdgeCase{235, 35, kModify},
                    EdgeCase{216, 17, std::nullopt}, EdgeCase{217, 16, std::nullopt},
                    EdgeCase{236, 35, std::nullopt}, EdgeCase{235, 36, std::nullopt},
                    EdgeCase{217, 40, kDelete}, EdgeCase{235, 58, kDelete},
                    EdgeCase{216, 40, std::nullopt}, EdgeCase{217, 39, std::nullopt},
                    EdgeCase{236, 58, std::nullopt}, EdgeCase{235, 59, std::nullopt}));

TEST(PreviewPen, ShowsTheButtonPressedWhileItIsInside) {
  PreviewPen pen;
  EXPECT_EQ(pen.Shown(), std::nullopt);
  pen.Press(kInModify);
  EXPECT_EQ(pen.Shown(), kModify);
  pen.Move(kBetween);
  EXPECT_EQ(pen.Shown(), std::nullopt);
  pen.Move(kInModify);
  EXPECT_EQ(pen.Shown(), kModify);
}

TEST(PreviewPen, UsesTheButtonThatItLeavesAfterHavingBeenOutside) {
  PreviewPen pen;
  pen.Press(kInDelete);
  pen.Move(kElsewhere);
  EXPECT_EQ(pen.Release(kInDelete), kDelete);
  EXPECT_EQ(pen.Shown(), std::nullopt);
}

TEST(PreviewPen, UsesNothingWhenItIsReleasedOutside) {
  PreviewPen pen;
  pen.Press(kInModify);
  EXPECT_EQ(pen.Release(kBetween), std::nullopt);
  pen.Move(kInModify);
  EXPECT_EQ(pen.Shown(), std::nullopt);
  EXPECT_EQ(pen.Release(kInModify), std::nullopt);
}

TEST(PreviewPen, NeitherShowsNorUsesTheOtherButton) {
  PreviewPen pen;
  pen.Press(kInModify);
  pen.Move(kInDelete);
  EXPECT_EQ(pen.Shown(), std::nullopt);
  EXPECT_EQ(pen.Release(kInDelete), std::nullopt);
}

TEST(PreviewPen, PressedElsewhereUsesNothingInAButton) {
  PreviewPen pen;
  pen.Press(kInModify);
  pen.Press(kElsewhere);
  EXPECT_EQ(pen.Shown(), std::nullopt);
  pen.Move(kInModify);
  EXPECT_EQ(pen.Shown(), std::nullopt);
  EXPECT_EQ(pen.Release(kInModify), std::nullopt);
}

struct KeyCase {
  int Key;
  std::optional<PreviewButton> Button;
};

class PreviewKeys : public testing::TestWithParam<KeyCase> {};

TEST_P(PreviewKeys, LeadToAButton) {
  EXPECT_EQ(PreviewButtonAfterKey(GetParam().Key), GetParam().Button);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, PreviewKeys,
    testing::Values(KeyCase{Qt::Key_Up, kModify}, KeyCase{Qt::Key_Left, kModify},
                    KeyCase{Qt::Key_Down, kDelete}, KeyCase{Qt::Key_Right, kDelete},
                    KeyCase{Qt::Key_Return, std::nullopt}, KeyCase{Qt::Key_Delete, std::nullopt}));

}  // namespace
}  // namespace quill
