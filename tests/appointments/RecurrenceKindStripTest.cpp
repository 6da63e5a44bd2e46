#include "appointments/RecurrenceKindStrip.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using enum RecurrenceKind;

bool HasFill(const PaintedRow& row, const QRect& area, Rgb fill) {
  for (const PaintedItem& item : row.Items)
    if (item.Rectangle == area && item.Fill == fill) return true;
  return false;
}

Rgb GroundOf(const PaintedRow& row) { return row.Items.front().Fill.value(); }

struct TabCase {
  RecurrenceKind Kind;
  const char16_t* Title;
  int Left;
};

class EveryTab : public testing::TestWithParam<TabCase> {};

TEST_P(EveryTab, StandsAtItsPlaceAndSaysItsKind) {
  const auto& [kind, title, left] = GetParam();
  const PaintedRow row = LayOutKindStrip({})[static_cast<std::size_t>(kind)];
  EXPECT_EQ(row.Rectangle, QRect(QPoint(left, 5), QPoint(left + 57, 18)));
  EXPECT_EQ(row.Key, static_cast<int>(kind));
  EXPECT_EQ(row.SpokenName, QString::fromUtf16(title));
  EXPECT_EQ(row.Role, PaintedRole::PageTab);
  EXPECT_TRUE(row.State.testFlag(PaintedStateFlag::Selectable));
  EXPECT_EQ(row.Items.back().Text, QString::fromUtf16(title));
  EXPECT_EQ(row.Items.back().Rectangle, row.Rectangle);
  EXPECT_EQ(row.Items.back().Alignment, TextAlign::Centre);
}

TEST_P(EveryTab, HasABorderAboveAndOnBothSides) {
  const auto& [kind, title, left] = GetParam();
  const PaintedRow row = LayOutKindStrip({})[static_cast<std::size_t>(kind)];
  const Rgb line = row.Items[1].Fill.value();
  EXPECT_TRUE(HasFill(row, {left, 5, 58, 1}, line));
  EXPECT_TRUE(HasFill(row, {left, 5, 1, 14}, line));
  EXPECT_TRUE(HasFill(row, {left + 57, 5, 1, 14}, line));
}

TEST_P(EveryTab, IsHitInsideItAndNotBesideIt) {
  const auto& [kind, title, left] = GetParam();
  EXPECT_EQ(KindAt({left, 5}), kind);
  EXPECT_EQ(KindAt({left + 57, 18}), kind);
  EXPECT_NE(KindAt({left - 1, 5}), kind);
  EXPECT_NE(KindAt({left + 58, 18}), kind);
  EXPECT_EQ(KindAt({left, 4}), std::nullopt);
  EXPECT_EQ(KindAt({left, 19}), std::nullopt);
}

TEST_P(EveryTab, IsTheMarkedOneWhenItIsChosenAndNoOtherIs) {
  const RecurrenceKind chosen = GetParam().Kind;
  const auto rows = LayOutKindStrip({.Kind = chosen});
  for (std::size_t i = 0; i < 4; ++i) {
    const bool isChosen = i == static_cast<std::size_t>(chosen);
    EXPECT_EQ(rows[i].State.testFlag(PaintedStateFlag::Selected), isChosen);
    EXPECT_EQ(rows[i].State.testFlag(PaintedStateFlag::Current), isChosen);
    EXPECT_EQ(rows[i].Items.back().Weight, isChosen ? TextWeight::Bold : TextWeight::Normal);
    EXPECT_EQ(GroundOf(rows[i]) == GroundOf(rows[static_cast<std::size_t>(chosen)]), isChosen);
  }
}

TEST_P(EveryTab, OpensTheLineBelowItWhenItIsChosen) {
  const auto rows = LayOutKindStrip({.Kind = GetParam().Kind});
  const PaintedRow& line = rows.back();
  const Rgb ground = GroundOf(rows[static_cast<std::size_t>(GetParam().Kind)]);
  EXPECT_TRUE(HasFill(line, {GetParam().Left + 1, 19, 56, 1}, ground));
}

INSTANTIATE_TEST_SUITE_P(Kinds, EveryTab,
                         testing::Values(TabCase{Daily, u"Daily", 0},
                                         TabCase{Weekly, u"Weekly", 58},
                                         TabCase{Monthly, u"Monthly", 116},
                                         TabCase{Yearly, u"Yearly", 174}));

TEST(RecurrenceKindStrip, AllThatIsPaintedStandsInTheStrip) {
  for (const PaintedRow& row : LayOutKindStrip({.HasFocus = true}))
    for (const PaintedItem& item : row.Items)
      EXPECT_TRUE(kKindStripArea.contains(item.Rectangle)) << row.Key;
}

TEST(RecurrenceKindStrip, ALineRunsBelowTheTabsAndIsNoTab) {
  const auto rows = LayOutKindStrip({});
  ASSERT_EQ(rows.size(), 5U);
  EXPECT_EQ(rows.back().Key, -1);
  EXPECT_EQ(rows.back().Role, PaintedRole::Separator);
  EXPECT_EQ(rows.back().Rectangle, QRect(0, 19, 240, 1));
  EXPECT_EQ(rows.back().Items.front().Rectangle, QRect(0, 19, 240, 1));
}

TEST(RecurrenceKindStrip, TheTabUnderThePenLooksLikeNoOther) {
  const auto rows = LayOutKindStrip({.Kind = Daily, .Pressed = Monthly});
  EXPECT_NE(GroundOf(rows[2]), GroundOf(rows[0]));
  EXPECT_NE(GroundOf(rows[2]), GroundOf(rows[1]));
  EXPECT_EQ(GroundOf(rows[3]), GroundOf(rows[1]));
}

TEST(RecurrenceKindStrip, TheFocusIsSeen) {
  const auto dots = [](const KindStripModel& model) {
    const auto rows = LayOutKindStrip(model);
    int found = 0;
    for (const PaintedItem& item : rows.back().Items) found += item.Pattern == FillPattern::Dots;
    return found;
  };
  EXPECT_EQ(dots({}), 0);
  EXPECT_EQ(dots({.HasFocus = true}), 1);
}

struct KeyCase {
  RecurrenceKind From;
  int Key;
  std::optional<RecurrenceKind> To;
};

class EveryKey : public testing::TestWithParam<KeyCase> {};

TEST_P(EveryKey, LeadsToAKindOrMeansSomethingElse) {
  EXPECT_EQ(KindAfterKey(GetParam().From, GetParam().Key), GetParam().To);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, EveryKey,
    testing::Values(KeyCase{Weekly, Qt::Key_Left, Daily}, KeyCase{Weekly, Qt::Key_Right, Monthly},
                    KeyCase{Daily, Qt::Key_Left, Daily}, KeyCase{Yearly, Qt::Key_Right, Yearly},
                    KeyCase{Monthly, Qt::Key_Home, Daily}, KeyCase{Weekly, Qt::Key_End, Yearly},
                    KeyCase{Weekly, Qt::Key_Down, std::nullopt},
                    KeyCase{Weekly, Qt::Key_Tab, std::nullopt}));

}  // namespace
}  // namespace quill
