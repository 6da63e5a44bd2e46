#include "list/KeyMoves.h"

#include "ListTest.h"
#include "list/PageBuilding.h"
#include "list/Selection.h"

namespace quill {
namespace {

constexpr int kContacts = 40;
constexpr int kLastTop = 27;

struct MoveCase {
  KeyMove Move;
  int Top;
  int Row;
  int TopAfterwards;
  int RowAfterwards;
};

class KeyMoveTest : public test::ListTest, public testing::WithParamInterface<MoveCase> {};

TEST_P(KeyMoveTest, SelectsTheRowItReachesAndScrollsAtThePagesEnds) {
  const MoveCase& move = GetParam();
  AddNumbered(kContacts);
  m_list.Top = move.Top;
  BuildPage(m_list);
  if (move.Row >= 0) SelectRow(m_list, move.Row);
  MoveCurrentRow(m_list, move.Move);
  EXPECT_EQ(m_list.Top, move.TopAfterwards);
  EXPECT_EQ(m_list.CurrentRow, move.RowAfterwards);
  EXPECT_EQ(SingleSelectedRow(m_list), move.RowAfterwards);
}

INSTANTIATE_TEST_SUITE_P(Lines, KeyMoveTest,
                         testing::Values(MoveCase{KeyMove::LineDown, 5, 3, 5, 4},
                                         MoveCase{KeyMove::LineDown, 5, -1, 5, 0},
                                         MoveCase{KeyMove::LineDown, 5, 13, 6, 13},
                                         MoveCase{KeyMove::LineDown, 26, 13, kLastTop, 12},
                                         MoveCase{KeyMove::LineDown, kLastTop, 12, kLastTop, 12},
                                         MoveCase{KeyMove::LineUp, 5, 3, 5, 2},
                                         MoveCase{KeyMove::LineUp, 5, -1, 5, 0},
                                         MoveCase{KeyMove::LineUp, 5, 0, 4, 0},
                                         MoveCase{KeyMove::LineUp, 0, 0, 0, 0}));

INSTANTIATE_TEST_SUITE_P(Pages, KeyMoveTest,
                         testing::Values(MoveCase{KeyMove::PageDown, 0, 3, 13, 3},
                                         MoveCase{KeyMove::PageDown, 0, -1, 13, -1},
                                         MoveCase{KeyMove::PageDown, kLastTop, 3, kLastTop, 12},
                                         MoveCase{KeyMove::PageUp, 20, 3, 7, 3},
                                         MoveCase{KeyMove::PageUp, 20, -1, 7, -1},
                                         MoveCase{KeyMove::PageUp, 0, 3, 0, 0}));

INSTANTIATE_TEST_SUITE_P(Ends, KeyMoveTest,
                         testing::Values(MoveCase{KeyMove::First, 20, 3, 0, 0},
                                         MoveCase{KeyMove::First, 20, -1, 0, 0},
                                         MoveCase{KeyMove::Last, 5, 3, kLastTop, 12},
                                         MoveCase{KeyMove::Last, 5, -1, kLastTop, 12}));

class KeyMoveOnAShortPage : public test::ListTest, public testing::WithParamInterface<KeyMove> {};

TEST_P(KeyMoveOnAShortPage, StaysOnIt) {
  AddNumbered(3);
  BuildPage(m_list);
  SelectRow(m_list, 2);
  MoveCurrentRow(m_list, GetParam());
  EXPECT_EQ(m_list.Top, 0);
  EXPECT_EQ(SingleSelectedRow(m_list), 2);
}

INSTANTIATE_TEST_SUITE_P(Moves, KeyMoveOnAShortPage,
                         testing::Values(KeyMove::LineDown, KeyMove::PageDown, KeyMove::Last));

class KeyMoveOnAnEmptyPage : public test::ListTest, public testing::WithParamInterface<KeyMove> {};

TEST_P(KeyMoveOnAnEmptyPage, SelectsNothing) {
  BuildPage(m_list);
  MoveCurrentRow(m_list, GetParam());
  EXPECT_EQ(m_list.CurrentRow, -1);
  EXPECT_TRUE(m_list.SelectedKeys.empty());
}

INSTANTIATE_TEST_SUITE_P(Moves, KeyMoveOnAnEmptyPage,
                         testing::Values(KeyMove::LineUp, KeyMove::LineDown, KeyMove::PageUp,
                                         KeyMove::PageDown, KeyMove::First, KeyMove::Last));

TEST_F(KeyMoveTest, DownReachesEveryContactAndUpLeadsBack) {
  AddNumbered(kContacts);
  BuildPage(m_list);
  QStringList reached;
  for (int i = 0; i < kContacts; ++i) {
    MoveCurrentRow(m_list, KeyMove::LineDown);
    reached.append(m_list.Rows[m_list.CurrentRow].Name);
  }
  EXPECT_EQ(reached.size(), kContacts);
  EXPECT_EQ(reached.removeDuplicates(), 0);
  EXPECT_EQ(reached.last(), NumberedName(kContacts));
  for (int i = 1; i < kContacts; ++i) MoveCurrentRow(m_list, KeyMove::LineUp);
  EXPECT_EQ(m_list.Rows[m_list.CurrentRow].Name, NumberedName(1));
}

TEST(KeyMoves, OverMemosTheyReachTheLastOneOnThePageAndScroll) {
  ListState list;
  list.Mode = ViewMode::ByMemo;
  list.Total = 20;
  SelectRow(list, 13);
  MoveCurrentRow(list, KeyMove::LineDown);
  EXPECT_EQ(list.Top, 1);
  EXPECT_EQ(list.SelectedKeys, std::vector<int>{14});
  MoveCurrentRow(list, KeyMove::Last);
  EXPECT_EQ(list.SelectedKeys, std::vector<int>{19});
}

struct ExtendCase {
  KeyMove Move;
  int Anchor;
  int End;
  int EndAfterwards;
};

class ExtendTest : public test::ListTest, public testing::WithParamInterface<ExtendCase> {};

TEST_P(ExtendTest, MovesTheEndOfTheRunWithinThePage) {
  const ExtendCase& extend = GetParam();
  AddNumbered(kContacts);
  m_list.Top = 5;
  BuildPage(m_list);
  SelectRun(m_list, extend.Anchor, extend.End);
  ExtendSelection(m_list, extend.Move);
  ListState expected = m_list;
  SelectRun(expected, extend.Anchor, extend.EndAfterwards);
  EXPECT_EQ(m_list.SelectedKeys, expected.SelectedKeys);
  EXPECT_EQ(m_list.CurrentRow, extend.EndAfterwards);
  EXPECT_EQ(m_list.Top, 5);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, ExtendTest,
    testing::Values(ExtendCase{KeyMove::LineDown, 3, 3, 4}, ExtendCase{KeyMove::LineDown, 3, 6, 7},
                    ExtendCase{KeyMove::LineDown, 6, 3, 4},
                    ExtendCase{KeyMove::LineDown, 3, 13, 13}, ExtendCase{KeyMove::LineUp, 3, 3, 2},
                    ExtendCase{KeyMove::LineUp, 3, 6, 5}, ExtendCase{KeyMove::LineUp, 3, 0, 0},
                    ExtendCase{KeyMove::PageDown, 3, 4, 13}, ExtendCase{KeyMove::Last, 3, 4, 13},
                    ExtendCase{KeyMove::PageUp, 3, 4, 0}, ExtendCase{KeyMove::First, 3, 4, 0}));

class ExtendOnAPage : public test::ListTest {};

TEST_F(ExtendOnAPage, WithoutASelectionIsAPlainMove) {
  AddNumbered(kContacts);
  BuildPage(m_list);
  ExtendSelection(m_list, KeyMove::LineDown);
  EXPECT_EQ(SingleSelectedRow(m_list), 0);
}

TEST_F(ExtendOnAPage, WhatIsSelectedOnAnotherPageIsNoRunToExtend) {
  AddNumbered(kContacts);
  BuildPage(m_list);
  m_list.SelectedKeys = {kContacts};
  ExtendSelection(m_list, KeyMove::LineDown);
  EXPECT_EQ(SingleSelectedRow(m_list), 0);
}

}  // namespace
}  // namespace quill
