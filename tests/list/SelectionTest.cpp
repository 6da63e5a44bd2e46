#include "list/Selection.h"

#include "ListTest.h"
#include "list/CategoryFilter.h"
#include "list/IndexRanges.h"
#include "list/PageBuilding.h"
#include "list/Search.h"
#include "list/ViewModes.h"

namespace quill {
namespace {

using Keys = std::vector<int>;

// A page of this many contacts with the Oids 100, 101, ...
ListState Page(int rows) {
  ListState list;
  list.Total = rows;
  list.RowsShown = rows;
  for (int n = 0; n < rows; ++n) list.Rows[n].Oid = 100 + n;
  return list;
}

ListState MemoPage(int total, int top) {
  ListState list = Page(14);  // of the contacts shown before
  list.Mode = ViewMode::ByMemo;
  list.Total = total;
  list.Top = top;
  return list;
}

TEST(SelectableRow, OfContactsIsARowThatIsShown) {
  ListState list = Page(3);
  list.Total = 100;
  EXPECT_EQ(SelectableRows(list), 3);
  EXPECT_FALSE(IsSelectableRow(list, -1));
  EXPECT_TRUE(IsSelectableRow(list, 0));
  EXPECT_TRUE(IsSelectableRow(list, 2));
  EXPECT_FALSE(IsSelectableRow(list, 3));
  EXPECT_FALSE(IsSelectableRow(Page(14), 14)) << "the sliver below the last whole row";
}

TEST(SelectableRow, OfMemosIsARowUpToTheLastMemo) {
  EXPECT_TRUE(IsSelectableRow(MemoPage(22, 20), 1));
  EXPECT_FALSE(IsSelectableRow(MemoPage(22, 20), 2));
  EXPECT_TRUE(IsSelectableRow(MemoPage(34, 20), 13));
  EXPECT_FALSE(IsSelectableRow(MemoPage(35, 20), 14)) << "the sliver below the last whole row";
  EXPECT_EQ(SelectableRows(MemoPage(5, 9)), 0);
}

TEST(RowKey, IsTheContactsOidOrTheMemosPosition) {
  EXPECT_EQ(KeyOfRow(Page(5), 3), 103);
  EXPECT_EQ(KeyOfRow(MemoPage(40, 20), 3), 23);
}

TEST(Selection, TheFirstSelectedRowIsTheUppermostOnThePage) {
  ListState list = Page(5);
  EXPECT_EQ(FirstSelectedRow(list), -1);
  list.CurrentRow = 4;
  EXPECT_EQ(FirstSelectedRow(list), 4);
  list.SelectedKeys = {103, 101, 999, 102};
  EXPECT_EQ(FirstSelectedRow(list), 1);
}

TEST(Selection, InThePlaceOfWhatWasDeletedTheRowThatStandsThereIsSelected) {
  ListState list = Page(3);
  SelectInPlace(list, 1);
  EXPECT_EQ(list.SelectedKeys, Keys{101});
  EXPECT_EQ(list.CurrentRow, 1);
  SelectInPlace(list, 2);
  EXPECT_EQ(list.SelectedKeys, Keys{101}) << "what is still selected stays so";
  ClearSelectedKeys(list);
  SelectInPlace(list, 7);
  EXPECT_EQ(list.SelectedKeys, Keys{102});
  ClearSelectedKeys(list);
  SelectInPlace(list, -1);
  EXPECT_EQ(list.SelectedKeys, Keys{});
  ListState none = Page(0);
  SelectInPlace(none, 0);
  EXPECT_EQ(none.SelectedKeys, Keys{});
}

TEST(Selection, OneRowTakesThePlaceOfAllOthersAndIsTheCurrentOne) {
  ListState list = Page(14);
  list.SelectedKeys = {1, 2};
  SelectRow(list, 4);
  EXPECT_EQ(list.SelectedKeys, Keys{104});
  EXPECT_EQ(list.CurrentRow, 4);
  EXPECT_TRUE(IsKeySelected(list, 104));
  EXPECT_FALSE(IsKeySelected(list, 103));
}

struct RunCase {
  int Anchor;
  int Row;
  Keys Selected;
};

class SelectedRun : public testing::TestWithParam<RunCase> {};

TEST_P(SelectedRun, GoesFromTheAnchorToTheRowBothIncluded) {
  ListState list = Page(14);
  SelectRow(list, 9);
  SelectRun(list, GetParam().Anchor, GetParam().Row);
  EXPECT_EQ(list.SelectedKeys, GetParam().Selected);
  EXPECT_EQ(list.CurrentRow, GetParam().Row);
}

INSTANTIATE_TEST_SUITE_P(Runs, SelectedRun,
                         testing::Values(RunCase{2, 4, {102, 103, 104}},
                                         RunCase{4, 2, {104, 103, 102}}, RunCase{3, 3, {103}},
                                         RunCase{13, 12, {113, 112}}));

TEST(Selection, ASingleRowIsTheCurrentOneSelectedAlone) {
  ListState list = Page(14);
  EXPECT_EQ(SingleSelectedRow(list), -1);
  SelectRow(list, 0);
  EXPECT_EQ(SingleSelectedRow(list), 0);
  SelectRun(list, 0, 1);
  EXPECT_EQ(SingleSelectedRow(list), -1);
  SelectRow(list, 2);
  list.Rows[2].Oid = 7;  // another contact came to stand there
  EXPECT_EQ(SingleSelectedRow(list), -1);
  SelectRow(list, 13);
  list.RowsShown = 13;
  EXPECT_EQ(SingleSelectedRow(list), -1);
}

TEST(Selection, ClearingTheKeysLeavesTheCurrentRowAndDroppingDoesNot) {
  ListState list = Page(14);
  SelectRow(list, 4);
  ClearSelectedKeys(list);
  EXPECT_TRUE(list.SelectedKeys.empty());
  EXPECT_EQ(list.CurrentRow, 4);
  SelectRow(list, 4);
  DropSelection(list);
  EXPECT_TRUE(list.SelectedKeys.empty());
  EXPECT_EQ(list.CurrentRow, -1);
}

struct ScrolledCase {
  ListState List;
  int CurrentRow;
  int RowAfterwards;
  Keys Selected;
};

class SelectionAfterScroll : public testing::TestWithParam<ScrolledCase> {};

TEST_P(SelectionAfterScroll, IsTheCurrentRowWithinThePage) {
  ListState list = GetParam().List;
  list.CurrentRow = GetParam().CurrentRow;
  SelectAfterScroll(list);
  EXPECT_EQ(list.CurrentRow, GetParam().RowAfterwards);
  EXPECT_EQ(list.SelectedKeys, GetParam().Selected);
}

INSTANTIATE_TEST_SUITE_P(
    Pages, SelectionAfterScroll,
    testing::Values(ScrolledCase{Page(14), -1, -1, {}}, ScrolledCase{Page(14), 0, 0, {100}},
                    ScrolledCase{Page(14), 13, 13, {113}}, ScrolledCase{Page(13), 13, 12, {112}},
                    ScrolledCase{Page(0), 3, -1, {}}, ScrolledCase{MemoPage(40, 20), 5, 5, {25}},
                    ScrolledCase{MemoPage(22, 20), 5, 1, {21}}));

TEST(SelectionAfterScroll, SelectsNothingWhereNothingIsLeft) {
  ListState list = Page(14);
  SelectRow(list, 3);
  list.RowsShown = 0;
  SelectAfterScroll(list);
  EXPECT_TRUE(list.SelectedKeys.empty());
}

class FilterChange : public testing::TestWithParam<void (*)(ListState&)> {};

TEST_P(FilterChange, DropsTheSelectionAndTheCurrentRow) {
  ListState list = Page(14);
  SelectRun(list, 2, 5);
  GetParam()(list);
  EXPECT_TRUE(list.SelectedKeys.empty());
  EXPECT_EQ(list.CurrentRow, -1);
}

INSTANTIATE_TEST_SUITE_P(
    Changes, FilterChange,
    testing::Values([](ListState& list) { ChooseIndexButton(list, 2); },
                    [](ListState& list) { SearchList(list, QStringLiteral("Kim")); },
                    [](ListState& list) { SearchList(list, {}); },
                    [](ListState& list) { SwitchViewMode(list, ViewMode::ByMemo); }));

class RebuiltSelection : public test::ListTest {
 protected:
  void SetUp() override {
    ListTest::SetUp();
    AddNumbered(30);
    BuildPage(m_list);
  }

  void Remove(int key) { ASSERT_TRUE(m_store.Contacts()->Remove(key)); }
};

TEST_F(RebuiltSelection, KeepsItsKeysInTheirOrder) {
  SelectRun(m_list, 5, 2);
  const Keys keys = m_list.SelectedKeys;
  BuildPage(m_list);
  EXPECT_EQ(m_list.SelectedKeys, keys);
}

TEST_F(RebuiltSelection, LosesTheKeysOfContactsThatAreGone) {
  SelectRun(m_list, 2, 4);
  Keys keys = m_list.SelectedKeys;
  Remove(keys[1]);
  keys.erase(keys.begin() + 1);
  BuildPage(m_list);
  EXPECT_EQ(m_list.SelectedKeys, keys);
}

TEST_F(RebuiltSelection, LosesAContactThatHasLeftThePageSoThatNothingUnseenIsActedOn) {
  SelectRun(m_list, 12, 13);
  Keys keys = m_list.SelectedKeys;
  Add(QStringLiteral("000"));
  BuildPage(m_list);
  keys.pop_back();
  EXPECT_EQ(m_list.SelectedKeys, keys);
  EXPECT_EQ(m_list.CurrentRow, 13);
}

TEST_F(RebuiltSelection, AsksForNothingButThePage) {
  SelectRun(m_list, 2, 13);
  Add(QStringLiteral("000"));
  m_store.Counts() = {};
  BuildPage(m_list);
  EXPECT_EQ(m_store.Counts().ReadListRow, 14);
}

TEST_F(RebuiltSelection, LosesAContactThatTheFilterLetsThroughNoMore) {
  SearchList(m_list, QStringLiteral("0"));
  BuildPage(m_list);
  SelectRun(m_list, 2, 4);
  Keys keys = m_list.SelectedKeys;
  ContactRecord record;
  record[ContactField::FileAs] = QStringLiteral("Moved");
  ASSERT_NE(m_store.Contacts()->Save(keys[1], record, {}), 0);
  keys.erase(keys.begin() + 1);
  BuildPage(m_list);
  EXPECT_EQ(m_list.SelectedKeys, keys);
}

TEST_F(RebuiltSelection, LosesAContactOfManyCategoriesThatTheSecondTestRefuses) {
  m_list.Filter = FilterKind::Category;
  m_list.CategoryName = QStringLiteral("Work,Golf");
  m_list.CategoryCount = 2;
  const QString many = QStringLiteral("Work, ") + QString(kSeveralCategoriesLimit, u'x');
  m_list.SelectedKeys = {Add(QStringLiteral("Kim"), {{ContactField::Categories, many}})};
  BuildPage(m_list);
  EXPECT_TRUE(m_list.SelectedKeys.empty());
}

TEST_F(RebuiltSelection, TheCurrentRowFollowsItsContact) {
  SelectRow(m_list, 3);
  Add(QStringLiteral("000"));
  BuildPage(m_list);
  EXPECT_EQ(m_list.CurrentRow, 4);
  EXPECT_EQ(SingleSelectedRow(m_list), 4);
}

TEST_F(RebuiltSelection, TheCurrentRowOfARunIsItsFirst) {
  SelectRun(m_list, 6, 3);
  Add(QStringLiteral("000"));
  BuildPage(m_list);
  EXPECT_EQ(m_list.CurrentRow, 7);
}

TEST_F(RebuiltSelection, TheCurrentRowStaysOnAPageThatHasBecomeShorter) {
  m_list.Top = 17;
  BuildPage(m_list);
  ASSERT_EQ(m_list.RowsShown, 13);
  SelectRow(m_list, 12);
  m_list.Top = 10;
  RefillPage(m_list);
  SelectRow(m_list, 13);
  const int last = m_list.SelectedKeys.front();
  Remove(last);
  for (int row = 0; row < 8; ++row) Remove(m_list.Rows[row].Oid);
  m_list.Top = 17;
  BuildPage(m_list);
  EXPECT_TRUE(m_list.SelectedKeys.empty());
  EXPECT_EQ(m_list.CurrentRow, 12);
}

TEST_F(RebuiltSelection, WithoutACurrentRowThereIsNoneAfterwards) {
  BuildPage(m_list);
  EXPECT_EQ(m_list.CurrentRow, -1);
}

TEST_F(RebuiltSelection, ByMemoKeepsThePositionsThatExistAndReadsNoContact) {
  m_list.Mode = ViewMode::ByMemo;
  m_list.Total = 3;
  m_list.SelectedKeys = {1, 2, 3};
  m_list.CurrentRow = 3;
  m_store.Counts() = {};
  KeepSelection(m_list);
  EXPECT_EQ(m_list.SelectedKeys, (Keys{1, 2}));
  EXPECT_EQ(m_list.CurrentRow, 1);
  EXPECT_EQ(m_store.Counts(), test::StoreCounts());
}

TEST_F(RebuiltSelection, ByMemoTheCurrentRowStaysWhenItsMemoIsNotOnThePage) {
  ListState list = MemoPage(40, 0);
  list.SelectedKeys = {16};
  list.CurrentRow = 3;
  KeepSelection(list);
  EXPECT_EQ(list.CurrentRow, 3);
}

}  // namespace
}  // namespace quill
