#include "editor/SheetScrolling.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

constexpr auto kUp = PanelState::Up;
constexpr auto kDown = PanelState::Down;

TEST(SheetScrolling, ThreeRowsScrollWithThePanelUpAndNoneWithItDown) {
  EXPECT_EQ(LargestSheetTop(kUp), 3);
  EXPECT_EQ(LargestSheetTop(kDown), 0);
}

TEST(SheetScrolling, LoweringThePanelReturnsToTheFirstRow) {
  EXPECT_EQ(SheetTopWithPanel(2, kUp), 2);
  EXPECT_EQ(SheetTopWithPanel(2, kDown), 0);
}

struct ScrollCase {
  SheetScroll Request;
  int Top;
  PanelState Panel;
  int Thumb;
  int After;
};

class SheetScrollTest : public testing::TestWithParam<ScrollCase> {};

TEST_P(SheetScrollTest, FollowsTheRule) {
  const ScrollCase& rule = GetParam();
  EXPECT_EQ(SheetTopAfter(rule.Request, rule.Top, rule.Panel, rule.Thumb), rule.After);
}

INSTANTIATE_TEST_SUITE_P(Requests, SheetScrollTest,
                         testing::Values(ScrollCase{SheetScroll::LineUp, 2, kUp, 0, 1},
                                         ScrollCase{SheetScroll::LineUp, 0, kUp, 0, 0},
                                         ScrollCase{SheetScroll::LineDown, 2, kUp, 0, 3},
                                         ScrollCase{SheetScroll::LineDown, 3, kUp, 0, 3},
                                         ScrollCase{SheetScroll::LineDown, 0, kDown, 0, 0},
                                         ScrollCase{SheetScroll::PageUp, 3, kUp, 0, 0},
                                         ScrollCase{SheetScroll::PageDown, 1, kUp, 0, 3},
                                         ScrollCase{SheetScroll::PageDown, 0, kDown, 0, 0},
                                         ScrollCase{SheetScroll::ThumbTrack, 0, kUp, 2, 2},
                                         ScrollCase{SheetScroll::ThumbTrack, 0, kUp, 9, 3},
                                         ScrollCase{SheetScroll::ThumbTrack, 0, kDown, 2, 0}));

TEST(SheetScrolling, AListShowsItsWholeRows) {
  EXPECT_EQ(RecordRowsShown(248), 13);
  EXPECT_EQ(RecordRowsShown(171), 9);
  EXPECT_EQ(RecordRowsShown(170), 8);
  EXPECT_EQ(RecordRowsShown(10), 1);
}

struct ShowingCase {
  int Row;
  int Top;
  int RowsShown;
  PanelState Panel;
  int After;
};

class SheetShowing : public testing::TestWithParam<ShowingCase> {};

TEST_P(SheetShowing, ScrollsNoMoreThanItMust) {
  const ShowingCase& rule = GetParam();
  EXPECT_EQ(SheetTopShowing(rule.Row, rule.Top, rule.RowsShown, rule.Panel), rule.After);
}

INSTANTIATE_TEST_SUITE_P(Rows, SheetShowing,
                         testing::Values(ShowingCase{4, 2, 8, kUp, 2},   // is shown
                                         ShowingCase{1, 2, 8, kUp, 1},   // above
                                         ShowingCase{8, 0, 8, kUp, 1},   // below
                                         ShowingCase{10, 0, 8, kUp, 3},  // the last
                                         ShowingCase{10, 0, 5, kUp, 3},  // as far as it goes
                                         ShowingCase{10, 0, 8, kDown, 0}));

struct MoveCase {
  int Row;
  RowMove Move;
  std::optional<int> After;
};

class RowMoveTest : public testing::TestWithParam<MoveCase> {};

TEST_P(RowMoveTest, LeadsToTheNeighbour) {
  EXPECT_EQ(RowAfterMove(GetParam().Row, GetParam().Move, 11), GetParam().After);
}

INSTANTIATE_TEST_SUITE_P(Moves, RowMoveTest,
                         testing::Values(MoveCase{3, RowMove::Next, 4},
                                         MoveCase{10, RowMove::Next, std::nullopt},
                                         MoveCase{-1, RowMove::Next, 0},
                                         MoveCase{3, RowMove::Previous, 2},
                                         MoveCase{0, RowMove::Previous, std::nullopt},
                                         MoveCase{-1, RowMove::Previous, 10}));

}  // namespace
}  // namespace quill
