#include "list/Scrolling.h"

#include "ListTest.h"
#include "list/PageBuilding.h"
#include "list/Search.h"
#include "list/Selection.h"

namespace quill {
namespace {

constexpr auto kLineUp = ScrollRequest::LineUp;
constexpr auto kLineDown = ScrollRequest::LineDown;
constexpr auto kPageUp = ScrollRequest::PageUp;
constexpr auto kPageDown = ScrollRequest::PageDown;
constexpr auto kThumb = ScrollRequest::ThumbTrack;
constexpr int kIgnored = -1;

// A page of 14 rows.
struct ScrollCase {
  ScrollRequest Request;
  int Top;
  int Total;
  int NewTop;  // kIgnored when nothing is to be done
  int Thumb = 0;
};

class ScrollRequestTest : public testing::TestWithParam<ScrollCase> {};

TEST_P(ScrollRequestTest, MovesTheTopWhenItsConditionHolds) {
  const ScrollCase& request = GetParam();
  ListState list;
  list.Top = request.Top;
  list.Total = request.Total;
  const bool moved = ScrollList(list, request.Request, request.Thumb);
  EXPECT_EQ(moved, request.NewTop != kIgnored);
  EXPECT_EQ(list.Top, moved ? request.NewTop : request.Top);
}

INSTANTIATE_TEST_SUITE_P(LineUp, ScrollRequestTest,
                         testing::Values(ScrollCase{kLineUp, 0, 100, kIgnored},
                                         ScrollCase{kLineUp, 1, 100, 0},
                                         ScrollCase{kLineUp, 50, 100, 49}));
INSTANTIATE_TEST_SUITE_P(
    LineDown, ScrollRequestTest,
    testing::Values(ScrollCase{kLineDown, 0, 0, kIgnored}, ScrollCase{kLineDown, 0, 13, kIgnored},
                    // A page that is exactly full still scrolls by one: intended.
                    ScrollCase{kLineDown, 0, 14, 1}, ScrollCase{kLineDown, 0, 100, 1},
                    ScrollCase{kLineDown, 86, 100, 87}, ScrollCase{kLineDown, 87, 100, kIgnored}));
INSTANTIATE_TEST_SUITE_P(PageUp, ScrollRequestTest,
                         testing::Values(ScrollCase{kPageUp, 0, 100, kIgnored},
                                         ScrollCase{kPageUp, 1, 100, 0},
                                         ScrollCase{kPageUp, 13, 100, 0},
                                         ScrollCase{kPageUp, 14, 100, 1},
                                         ScrollCase{kPageUp, 87, 100, 74}));
INSTANTIATE_TEST_SUITE_P(
    PageDown, ScrollRequestTest,
    testing::Values(ScrollCase{kPageDown, 0, 13, kIgnored}, ScrollCase{kPageDown, 0, 14, 1},
                    ScrollCase{kPageDown, 0, 25, 12},  // a page more would pass the end
                    ScrollCase{kPageDown, 0, 26, 13},  // a page more just reaches it
                    ScrollCase{kPageDown, 0, 100, 13}, ScrollCase{kPageDown, 74, 100, 87},
                    ScrollCase{kPageDown, 75, 100, 87}, ScrollCase{kPageDown, 86, 100, 87},
                    ScrollCase{kPageDown, 87, 100, kIgnored}));
INSTANTIATE_TEST_SUITE_P(
    ThumbTrack, ScrollRequestTest,
    testing::Values(ScrollCase{kThumb, 5, 100, 0, 0}, ScrollCase{kThumb, 5, 100, 50, 50},
                    ScrollCase{kThumb, 5, 100, 86, 86}, ScrollCase{kThumb, 5, 100, 87, 87},
                    ScrollCase{kThumb, 5, 100, 87, 88}, ScrollCase{kThumb, 5, 100, 87, 2147483647},
                    // It never goes below 0.
                    ScrollCase{kThumb, 5, 100, 0, -1}, ScrollCase{kThumb, 0, 5, 0, 3},
                    ScrollCase{kThumb, 0, 0, 0, 0}));

class Scrolling : public test::ListTest {};

TEST_F(Scrolling, APageKeepsOneRowOfThePageBefore) {
  AddNumbered(60);
  BuildPage(m_list);
  const QString last = ShownNames().last();
  ASSERT_TRUE(ScrollList(m_list, ScrollRequest::PageDown));
  EXPECT_EQ(ShownNames().first(), last);
  ASSERT_TRUE(ScrollList(m_list, ScrollRequest::PageUp));
  EXPECT_EQ(ShownNames().last(), last);
}

TEST_F(Scrolling, NoScrollAsksTheFilterAnew) {
  AddNumbered(60);
  SearchList(m_list, QStringLiteral("0"));
  BuildPage(m_list);
  m_store.Counts() = {};
  for (const auto request : {kPageDown, kLineDown, kLineUp, kThumb, kPageUp})
    ScrollList(m_list, request, 30);
  EXPECT_EQ(m_store.Counts().Items, 0);
  EXPECT_EQ(m_store.Counts().Restrict, 0);
  EXPECT_GT(m_store.Counts().ReadListRow, 0);
}

TEST_F(Scrolling, LinesShowWhatAWholePageWouldShow) {
  for (const int total : {14, 15, 20, 40}) {
    SetUp();
    m_list = {};
    AddNumbered(total);
    BuildPage(m_list);
    const auto matchesWholePage = [&] {
      ListState whole = m_list;
      RefillPage(whole);
      return whole.RowsShown == m_list.RowsShown && whole.Rows == m_list.Rows;
    };
    int lines = 0;
    while (ScrollList(m_list, ScrollRequest::LineDown)) {
      ++lines;
      ASSERT_TRUE(matchesWholePage()) << "down to " << m_list.Top << " of " << total;
    }
    EXPECT_EQ(lines, total - m_list.RowsPerPage + 1);
    while (ScrollList(m_list, ScrollRequest::LineUp))
      ASSERT_TRUE(matchesWholePage()) << "up to " << m_list.Top << " of " << total;
    EXPECT_EQ(m_list.Top, 0);
    CloseSession();
  }
}

TEST_F(Scrolling, AFilteredListScrollsWithinItsFilter) {
  AddNumbered(199);
  SearchList(m_list, QStringLiteral("0"));
  BuildPage(m_list);
  while (ScrollList(m_list, ScrollRequest::PageDown)) {
  }
  EXPECT_EQ(ShownNames().last(), NumberedName(99));
  while (ScrollList(m_list, ScrollRequest::LineDown)) {
  }
  EXPECT_EQ(ShownNames().last(), NumberedName(99));
}

TEST_F(Scrolling, TheCurrentRowStaysAndItsContactBecomesTheOnlySelectedOne) {
  AddNumbered(60);
  BuildPage(m_list);
  SelectRun(m_list, 2, 5);
  for (const auto request : {kPageDown, kLineDown, kLineUp, kThumb, kPageUp}) {
    ASSERT_TRUE(ScrollList(m_list, request, 30));
    EXPECT_EQ(m_list.CurrentRow, 5);
    EXPECT_EQ(m_list.SelectedKeys, std::vector<int>{m_list.Rows[5].Oid});
  }
}

TEST_F(Scrolling, AnythingLeftSelectedStaysWhenThereIsNothingToScroll) {
  AddNumbered(5);
  BuildPage(m_list);
  SelectRun(m_list, 1, 2);
  const std::vector<int> keys = m_list.SelectedKeys;
  EXPECT_FALSE(ScrollList(m_list, kLineDown));
  EXPECT_EQ(m_list.SelectedKeys, keys);
}

TEST_F(Scrolling, ByMemoTheTopMovesAndNoContactIsRead) {
  AddNumbered(60);
  BuildPage(m_list);
  m_list.Mode = ViewMode::ByMemo;
  m_list.CurrentRow = 3;
  m_store.Counts() = {};
  for (const auto request : {kPageDown, kLineDown, kLineUp, kThumb, kPageUp})
    ASSERT_TRUE(ScrollList(m_list, request, 30));
  EXPECT_EQ(m_store.Counts(), test::StoreCounts());
  EXPECT_EQ(m_list.Top, 17);
  EXPECT_EQ(m_list.SelectedKeys, std::vector<int>{20});
}

}  // namespace
}  // namespace quill
