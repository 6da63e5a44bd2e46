#include "list/IndexStripLayout.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "list/IndexRanges.h"

namespace quill {
namespace {

constexpr QSize kStrip{240, 19};

bool IsFilled(const PaintedRow& row) {
  return std::ranges::any_of(row.Items, [](const PaintedItem& item) {
    return item.Fill && item.Rectangle.width() == kIndexButtonWidth;
  });
}

TEST(IndexStripLayout, FiveButtonsFillTheStripFromLeftToRight) {
  const auto rows = LayOutIndexStrip({}, kStrip);
  ASSERT_EQ(rows.size(), 5U);
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(rows[i].Rectangle, QRect(48 * i, 0, 48, 19));
    EXPECT_EQ(rows[i].Key, i + 1);
    EXPECT_EQ(rows[i].Role, PaintedRole::Button);
    EXPECT_EQ(IndexButtonAt(rows[i].Rectangle.left()), i + 1) << "a tap finds the same button";
    EXPECT_EQ(IndexButtonAt(rows[i].Rectangle.right()), i + 1);
  }
}

TEST(IndexStripLayout, AButtonIsShownAndSpokenByItsFirstLetter) {
  const auto rows = LayOutIndexStrip({}, kStrip);
  for (const PaintedRow& row : rows) {
    const QString label = IndexButtonRange(row.Key).Lower.toString();
    EXPECT_EQ(row.SpokenName, label);
    EXPECT_TRUE(std::ranges::any_of(row.Items, [&label](const PaintedItem& item) {
      return item.Text == label && item.Alignment == TextAlign::Centre;
    })) << label.toStdString();
  }
}

TEST(IndexStripLayout, OnlyTheButtonThatFiltersTheListIsMarked) {
  ListState list;
  ChooseIndexButton(list, 3);
  for (const PaintedRow& row : LayOutIndexStrip(list, kStrip)) {
    EXPECT_EQ(row.State.testFlag(PaintedStateFlag::Checked), row.Key == 3) << row.Key;
    EXPECT_EQ(IsFilled(row), row.Key == 3) << row.Key;
  }
}

TEST(IndexStripLayout, NothingIsMarkedWithoutAnIndexFilter) {
  for (const PaintedRow& row : LayOutIndexStrip({}, kStrip)) {
    EXPECT_FALSE(row.State.testFlag(PaintedStateFlag::Checked)) << row.Key;
    EXPECT_FALSE(IsFilled(row)) << row.Key;
  }
}

}  // namespace
}  // namespace quill
