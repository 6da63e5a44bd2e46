#include "platform/CheckListLayout.h"

#include <gtest/gtest.h>

#include <ostream>

namespace quill {
namespace {

constexpr int kHeight = 105;  // five rows and a part of the sixth

CheckListModel ModelOf(int count, int current = -1, int top = 0) {
  CheckListModel model{.Current = current, .Top = top};
  for (int i = 0; i < count; ++i) model.Items.push_back({.Text = QString::number(i)});
  return model;
}

double TenEach(QStringView text) { return 10.0 * static_cast<double>(text.size()); }

bool HasMark(const PaintedRow& row) {
  for (const PaintedItem& item : row.Items)
    if (item.Picture == &resources::kCheckPicture) return row.Rectangle.intersects(item.Rectangle);
  return false;
}

bool IsHighlighted(const PaintedRow& row) {
  return row.Items.front().Rectangle == row.Rectangle && row.Items.front().Fill.has_value();
}

TEST(CheckListLayout, RowsOf20LinesFollowEachOtherFromTheFirstShown) {
  const auto rows = LayOutCheckList(ModelOf(4, -1, 1), 200, TenEach);
  ASSERT_EQ(rows.size(), 4U);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(rows[i].Rectangle, QRect(0, (i - 1) * 20, 200, 20));
    EXPECT_EQ(rows[i].Key, i);
    EXPECT_EQ(rows[i].SpokenName, QString::number(i));
    EXPECT_EQ(rows[i].Role, PaintedRole::CheckBox);
  }
}

TEST(CheckListLayout, ACheckedRowHasAMarkInItsBox) {
  CheckListModel model = ModelOf(2);
  model.Items[1].Checked = true;
  const auto rows = LayOutCheckList(model, 200, TenEach);
  EXPECT_FALSE(HasMark(rows[0]));
  EXPECT_TRUE(HasMark(rows[1]));
  EXPECT_FALSE(rows[0].State.testFlag(PaintedStateFlag::Checked));
  EXPECT_TRUE(rows[1].State.testFlag(PaintedStateFlag::Checked));
}

TEST(CheckListLayout, TheCurrentRowIsHighlighted) {
  const auto rows = LayOutCheckList(ModelOf(2, 1), 200, TenEach);
  EXPECT_FALSE(IsHighlighted(rows[0]));
  EXPECT_TRUE(IsHighlighted(rows[1]));
  EXPECT_FALSE(rows[0].State.testFlag(PaintedStateFlag::Current));
  EXPECT_TRUE(rows[1].State.testFlag(PaintedStateFlag::Current));
}

TEST(CheckListLayout, TheTextStandsBesideTheBoxWithinTheRow) {
  const PaintedRow row = LayOutCheckList(ModelOf(1), 200, TenEach)[0];
  const PaintedItem& border = row.Items[0];
  const PaintedItem& ground = row.Items[1];
  const PaintedItem& text = row.Items[2];
  EXPECT_EQ(border.Rectangle, QRect(6, 3, 13, 13));
  EXPECT_EQ(ground.Rectangle, QRect(7, 4, 11, 11));
  EXPECT_NE(border.Fill, ground.Fill);
  EXPECT_EQ(text.Text, QStringLiteral("0"));
  EXPECT_EQ(text.Rectangle, QRect(26, 0, 174, 20));
}

TEST(CheckListLayout, ATextThatIsTooWideEndsWithDotsAndIsSpokenWhole) {
  const CheckListModel model{.Items = {{.Text = QString(18, u'x')}}};
  const PaintedRow row = LayOutCheckList(model, 200, TenEach)[0];
  EXPECT_EQ(row.Items[2].Text, QString(14, u'x') + QStringLiteral("..."));
  EXPECT_EQ(row.SpokenName, QString(18, u'x'));
}

TEST(CheckListLayout, OnlyWholeRowsCountAsShownAndThereIsAlwaysOne) {
  EXPECT_EQ(CheckRowsShown(100), 5);
  EXPECT_EQ(CheckRowsShown(119), 5);
  EXPECT_EQ(CheckRowsShown(120), 6);
  EXPECT_EQ(CheckRowsShown(5), 1);
}

struct TopCase {
  int Count;
  int Row;
  int Top;
  int Shown;  // the new top
};

void PrintTo(const TopCase& each, std::ostream* out) {
  *out << each.Row << " of " << each.Count << " from " << each.Top;
}

class CheckListTop : public testing::TestWithParam<TopCase> {};

TEST_P(CheckListTop, MovesNoFurtherThanItMust) {
  const TopCase& each = GetParam();
  EXPECT_EQ(CheckTopShowing(ModelOf(each.Count, -1, each.Top), each.Row, kHeight), each.Shown);
}

INSTANTIATE_TEST_SUITE_P(Tops, CheckListTop,
                         testing::Values(TopCase{20, 3, 0, 0}, TopCase{20, 4, 0, 0},
                                         TopCase{20, 5, 0, 1}, TopCase{20, 19, 0, 15},
                                         TopCase{20, 8, 8, 8}, TopCase{20, 7, 8, 7},
                                         TopCase{20, 0, 8, 0}, TopCase{20, -1, 8, 8},
                                         TopCase{20, -1, 18, 15}, TopCase{3, -1, 2, 0},
                                         TopCase{3, 2, 0, 0}, TopCase{0, -1, 4, 0}));

TEST(CheckListLayout, WhatFitsDoesNotScroll) {
  EXPECT_EQ(LastCheckTop(ModelOf(5), kHeight), 0);
  EXPECT_EQ(LastCheckTop(ModelOf(6), kHeight), 1);
  EXPECT_EQ(LastCheckTop(ModelOf(0), kHeight), 0);
}

struct KeyCase {
  int Key;
  int Current;
  std::optional<int> Row;
};

void PrintTo(const KeyCase& each, std::ostream* out) { *out << each.Key << " at " << each.Current; }

class CheckListKey : public testing::TestWithParam<KeyCase> {};

TEST_P(CheckListKey, LeadsToARowOfTheList) {
  EXPECT_EQ(CheckRowAfterKey(ModelOf(20, GetParam().Current), GetParam().Key, kHeight),
            GetParam().Row);
}

INSTANTIATE_TEST_SUITE_P(Keys, CheckListKey,
                         testing::Values(KeyCase{Qt::Key_Up, 7, 6}, KeyCase{Qt::Key_Up, 0, 0},
                                         KeyCase{Qt::Key_Down, 7, 8}, KeyCase{Qt::Key_Down, 19, 19},
                                         KeyCase{Qt::Key_Down, -1, 0}, KeyCase{Qt::Key_Up, -1, 0},
                                         KeyCase{Qt::Key_PageUp, 7, 2},
                                         KeyCase{Qt::Key_PageUp, 3, 0},
                                         KeyCase{Qt::Key_PageDown, 7, 12},
                                         KeyCase{Qt::Key_PageDown, 17, 19},
                                         KeyCase{Qt::Key_Home, 7, 0}, KeyCase{Qt::Key_End, 7, 19},
                                         KeyCase{Qt::Key_Space, 7, std::nullopt},
                                         KeyCase{Qt::Key_Return, 7, std::nullopt}));

TEST(CheckListLayout, KeysLeadNowhereInAnEmptyList) {
  EXPECT_EQ(CheckRowAfterKey(ModelOf(0), Qt::Key_Down, kHeight), std::nullopt);
  EXPECT_EQ(CheckRowAfterKey(ModelOf(0), Qt::Key_Home, kHeight), std::nullopt);
}

}  // namespace
}  // namespace quill
