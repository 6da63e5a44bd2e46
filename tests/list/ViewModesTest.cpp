#include "list/ViewModes.h"

#include <gtest/gtest.h>

#include "list/CategoryFilter.h"
#include "list/IndexRanges.h"
#include "list/Search.h"

namespace quill {
namespace {

class SwitchViewModeTest : public testing::TestWithParam<ViewMode> {};

TEST_P(SwitchViewModeTest, ShowsTheModeFromItsFirstRow) {
  ListState list;
  list.Top = 20;
  SwitchViewMode(list, GetParam());
  EXPECT_EQ(list.Mode, GetParam());
  EXPECT_EQ(list.Top, 0);
}

TEST_P(SwitchViewModeTest, DropsAnIndexFilter) {
  ListState list;
  ChooseIndexButton(list, 2);
  SwitchViewMode(list, GetParam());
  EXPECT_EQ(list.Filter, FilterKind::None);
  EXPECT_EQ(list.SubFilter, FilterSubKind::None);
  EXPECT_EQ(list.IndexButton, 0);
}

TEST_P(SwitchViewModeTest, DropsASearch) {
  ListState list;
  SearchList(list, QStringLiteral("Kim"));
  SwitchViewMode(list, GetParam());
  EXPECT_EQ(list.Filter, FilterKind::None);
  EXPECT_EQ(list.SubFilter, FilterSubKind::None);
}

TEST_P(SwitchViewModeTest, DropsAChosenCategory) {
  ListState list;
  list.Filter = FilterKind::Category;
  list.CategoryName = QStringLiteral("Friends, Work");
  list.CategoryCount = 2;
  SwitchViewMode(list, GetParam());
  EXPECT_EQ(list.Filter, FilterKind::None);
  EXPECT_FALSE(IsCategoryChosen(list));
  EXPECT_EQ(list.CategoryCount, 1);
}

INSTANTIATE_TEST_SUITE_P(Modes, SwitchViewModeTest,
                         testing::Values(ViewMode::ByName, ViewMode::ByCompany, ViewMode::ByMemo));

}  // namespace
}  // namespace quill
