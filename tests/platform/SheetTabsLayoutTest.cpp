#include "platform/SheetTabsLayout.h"

#include <gtest/gtest.h>

#include <ostream>

namespace quill {
namespace {

SheetTabsModel ModelOf(const QStringList& titles, int active = 0) {
  return {.Titles = titles, .Active = active};
}

const SheetTabsModel kThree =
    ModelOf({QStringLiteral("Basic"), QStringLiteral("Detail"), QStringLiteral("Memo")}, 1);

const PaintedItem& TextOf(const PaintedRow& row) { return row.Items.back(); }

// Of the line between page and tabs, above this tab.
bool HasLineAbove(const PaintedRow& row) {
  const QRect line(row.Rectangle.left(), 0, row.Rectangle.width(), 1);
  for (const PaintedItem& item : row.Items)
    if (item.Rectangle == line && item.Fill) return true;
  return false;
}

bool HasLineBefore(const PaintedRow& row) {
  const QRect line(row.Rectangle.left(), 0, 1, row.Rectangle.height());
  for (const PaintedItem& item : row.Items)
    if (item.Rectangle == line && item.Fill) return true;
  return false;
}

TEST(SheetTabsLayout, TabsFillTheStripFromLeftToRight) {
  const auto rows = LayOutSheetTabs(kThree, {240, 22});
  ASSERT_EQ(rows.size(), 3U);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(rows[i].Rectangle, QRect(80 * i, 0, 80, 22));
    EXPECT_EQ(rows[i].Key, i);
    EXPECT_EQ(rows[i].SpokenName, kThree.Titles[i]);
    EXPECT_EQ(rows[i].Role, PaintedRole::PageTab);
  }
}

TEST(SheetTabsLayout, WhatCannotBeSharedEquallyLeavesNoGap) {
  const auto rows = LayOutSheetTabs(kThree, {200, 22});
  EXPECT_EQ(rows[0].Rectangle.right() + 1, rows[1].Rectangle.left());
  EXPECT_EQ(rows[1].Rectangle.right() + 1, rows[2].Rectangle.left());
  EXPECT_EQ(rows[2].Rectangle.right(), 199);
}

TEST(SheetTabsLayout, WithoutPagesThereAreNoTabs) {
  EXPECT_TRUE(LayOutSheetTabs(ModelOf({}), {240, 22}).empty());
}

TEST(SheetTabsLayout, OnlyTheActiveTabIsSelected) {
  const auto rows = LayOutSheetTabs(kThree, {240, 22});
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(rows[i].State.testFlag(PaintedStateFlag::Selectable));
    EXPECT_EQ(rows[i].State.testFlag(PaintedStateFlag::Selected), i == 1);
  }
}

TEST(SheetTabsLayout, TheActiveTabIsOneWithThePageAboveIt) {
  const auto rows = LayOutSheetTabs(kThree, {240, 22});
  EXPECT_TRUE(HasLineAbove(rows[0]));
  EXPECT_FALSE(HasLineAbove(rows[1]));
  EXPECT_TRUE(HasLineAbove(rows[2]));
  EXPECT_EQ(rows[0].Items.front().Fill, rows[2].Items.front().Fill);
  EXPECT_NE(rows[0].Items.front().Fill, rows[1].Items.front().Fill);
  EXPECT_EQ(TextOf(rows[0]).Weight, TextWeight::Normal);
  EXPECT_EQ(TextOf(rows[1]).Weight, TextWeight::Bold);
}

TEST(SheetTabsLayout, ALineStandsBelowEveryTab) {
  for (const PaintedRow& row : LayOutSheetTabs(kThree, {240, 22})) {
    const QRect line(row.Rectangle.left(), 21, row.Rectangle.width(), 1);
    EXPECT_EQ(row.Items[1].Rectangle, line);
    EXPECT_NE(row.Items[1].Fill, row.Items[0].Fill);
  }
}

TEST(SheetTabsLayout, ALineStandsBetweenTabs) {
  const auto rows = LayOutSheetTabs(kThree, {240, 22});
  EXPECT_FALSE(HasLineBefore(rows[0]));
  EXPECT_TRUE(HasLineBefore(rows[1]));
  EXPECT_TRUE(HasLineBefore(rows[2]));
}

TEST(SheetTabsLayout, TheTabUnderThePenLooksPressed) {
  SheetTabsModel model = kThree;
  model.Pressed = 2;
  const auto rows = LayOutSheetTabs(model, {240, 22});
  EXPECT_NE(rows[2].Items.front().Fill, rows[0].Items.front().Fill);
  EXPECT_NE(rows[2].Items.front().Fill, rows[1].Items.front().Fill);
}

TEST(SheetTabsLayout, TheTitleStandsInTheMiddleOfItsTab) {
  const PaintedRow row = LayOutSheetTabs(kThree, {240, 22})[2];
  EXPECT_EQ(TextOf(row).Text, QStringLiteral("Memo"));
  EXPECT_EQ(TextOf(row).Alignment, TextAlign::Centre);
  EXPECT_EQ(TextOf(row).Rectangle, QRect(163, 0, 74, 22));
  EXPECT_EQ(row.Items.front().Rectangle, row.Rectangle);
}

struct KeyCase {
  int Key;
  Qt::KeyboardModifiers Modifiers;
  int From;
  std::optional<int> To;
};

void PrintTo(const KeyCase& each, std::ostream* out) {
  *out << each.Key << " with " << each.Modifiers.toInt() << " from " << each.From;
}

class SheetPageKey : public testing::TestWithParam<KeyCase> {};

TEST_P(SheetPageKey, LeadsToAPage) {
  SheetTabsModel model = kThree;
  model.Active = GetParam().From;
  EXPECT_EQ(SheetPageAfterKey(model, GetParam().Key, GetParam().Modifiers), GetParam().To);
}

constexpr auto kControl = Qt::ControlModifier;
constexpr auto kControlShift = Qt::ControlModifier | Qt::ShiftModifier;
constexpr auto kControlAlt = Qt::ControlModifier | Qt::AltModifier;

INSTANTIATE_TEST_SUITE_P(Keys, SheetPageKey,
                         testing::Values(KeyCase{Qt::Key_Tab, kControl, 0, 1},
                                         KeyCase{Qt::Key_Tab, kControl, 2, 0},
                                         KeyCase{Qt::Key_Backtab, kControlShift, 2, 1},
                                         KeyCase{Qt::Key_Backtab, kControlShift, 0, 2},
                                         KeyCase{Qt::Key_Tab, kControlShift, 1, 0},
                                         KeyCase{Qt::Key_PageDown, kControl, 1, 2},
                                         KeyCase{Qt::Key_PageDown, kControl, 2, 0},
                                         KeyCase{Qt::Key_PageUp, kControl, 1, 0},
                                         KeyCase{Qt::Key_PageUp, kControl, 0, 2},
                                         KeyCase{Qt::Key_Tab, Qt::NoModifier, 0, std::nullopt},
                                         KeyCase{Qt::Key_PageDown, Qt::NoModifier, 0, std::nullopt},
                                         KeyCase{Qt::Key_PageDown, kControlShift, 0, std::nullopt},
                                         KeyCase{Qt::Key_PageUp, kControlShift, 0, std::nullopt},
                                         KeyCase{Qt::Key_Tab, kControlAlt, 0, std::nullopt},
                                         KeyCase{Qt::Key_Right, kControl, 0, std::nullopt}));

TEST(SheetTabsLayout, KeysLeadNowhereWithoutPages) {
  EXPECT_EQ(SheetPageAfterKey(ModelOf({}, -1), Qt::Key_Tab, kControl), std::nullopt);
}

}  // namespace
}  // namespace quill
