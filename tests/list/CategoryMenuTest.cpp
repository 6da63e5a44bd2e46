#include "list/CategoryMenu.h"

#include <gmock/gmock.h>

#include "list/CategoryFilter.h"
#include "list/IndexRanges.h"
#include "list/ListState.h"
#include "resources/Ids.h"

namespace quill {
namespace {

using testing::ElementsAre;

const QStringList kOffered = {u"Family"_qs, u"Friends"_qs, u"Work"_qs, u"No Categories"_qs};

class CategoryMenuTest : public testing::Test {
 protected:
  CategoryMenuTest() { Fill(); }

  void Fill(const QString& chosen = u"Show All"_qs) { FillCategoryMenu(m_menu, kOffered, chosen); }
  CategoryMenuChoice Choose(int position) {
    return ChooseCategory(m_list, m_menu, ID_CATEGORY_FIRST + position);
  }
  bool ChooseSeveral(const QString& names, const std::vector<int>& positions) {
    return ChooseSeveralCategories(m_list, m_menu, kOffered, names, positions);
  }
  QStringList Checked() const {
    QStringList checked;
    for (const MenuItem& item : CategoryMenuItems(m_menu))
      if (item.Checked) checked.append(item.Text);
    return checked;
  }

  CategoryMenu m_menu;
  ListState m_list;
};

TEST_F(CategoryMenuTest, OffersAllThenTheLibrarysNamesThenMore) {
  const std::vector<MenuItem> items = CategoryMenuItems(m_menu);
  ASSERT_EQ(items.size(), 6U);
  EXPECT_EQ(items[0].Text, u"Show All"_qs);
  EXPECT_EQ(items[0].Id, 107);
  EXPECT_EQ(items[1].Text, u"Family"_qs);
  EXPECT_EQ(items[4].Text, u"No Categories"_qs);
  EXPECT_EQ(items[5].Text, u"More..."_qs);
  EXPECT_EQ(items[5].Id, 112);
}

TEST_F(CategoryMenuTest, AnEmptyLibraryLeavesAllAndMore) {
  FillCategoryMenu(m_menu, {}, u"Show All"_qs);
  EXPECT_EQ(m_menu.Texts, QStringList({u"Show All"_qs, u"More..."_qs}));
}

TEST_F(CategoryMenuTest, ChecksWhatIsChosenByItsExactText) {
  EXPECT_EQ(Checked(), QStringList(u"Show All"_qs));
  Fill(u"Work,Family"_qs);
  EXPECT_EQ(Checked(), QStringList({u"Family"_qs, u"Work"_qs}));
  Fill(u"work, Family"_qs);
  EXPECT_EQ(Checked(), QStringList());
}

TEST_F(CategoryMenuTest, AChoiceFiltersByTheCategoryAlone) {
  ChooseIndexButton(m_list, 3);
  m_list.Top = 20;
  m_list.CategoryCount = 2;
  m_list.SelectedKeys = {5};
  m_list.CurrentRow = 2;
  EXPECT_EQ(Choose(3), CategoryMenuChoice::Chosen);
  EXPECT_EQ(m_list.CategoryName, u"Work"_qs);
  EXPECT_EQ(m_list.CategoryCount, 1);
  EXPECT_EQ(m_list.Filter, FilterKind::Category);
  EXPECT_EQ(m_list.SubFilter, FilterSubKind::None);
  EXPECT_EQ(m_list.IndexButton, 0);
  EXPECT_EQ(m_list.Top, 0);
  EXPECT_EQ(m_list.SelectedKeys, std::vector<int>());
  EXPECT_EQ(m_list.CurrentRow, -1);
  EXPECT_EQ(Checked(), QStringList(u"Work"_qs));
}

TEST_F(CategoryMenuTest, AllIsChosenLikeAnyOtherItem) {
  Choose(3);
  EXPECT_EQ(Choose(0), CategoryMenuChoice::Chosen);
  EXPECT_EQ(m_list.Filter, FilterKind::Category);
  EXPECT_FALSE(IsCategoryChosen(m_list));
  EXPECT_EQ(Checked(), QStringList(u"Show All"_qs));
}

TEST_F(CategoryMenuTest, MoreAsksAndChangesNothingYet) {
  Choose(3);
  EXPECT_EQ(Choose(5), CategoryMenuChoice::AskForMore);
  EXPECT_EQ(m_list.CategoryName, u"Work"_qs);
  EXPECT_EQ(Checked(), QStringList(u"Work"_qs));
}

TEST_F(CategoryMenuTest, ACategoryThatIsCalledMoreActsAsMore) {
  FillCategoryMenu(m_menu, {u"More..."_qs, u"Work"_qs}, u"Show All"_qs);
  EXPECT_EQ(Choose(1), CategoryMenuChoice::AskForMore);
}

TEST_F(CategoryMenuTest, IdsPastTheLastAreIgnored) {
  EXPECT_EQ(Choose(6), CategoryMenuChoice::Ignored);
  EXPECT_EQ(Choose(1000), CategoryMenuChoice::Ignored);
  EXPECT_EQ(Choose(-1), CategoryMenuChoice::Ignored);
  EXPECT_EQ(m_list.Filter, FilterKind::None);
}

TEST_F(CategoryMenuTest, BeforeTheMenuWasFilledEveryIdIsIgnored) {
  CategoryMenu empty;
  EXPECT_EQ(ChooseCategory(m_list, empty, ID_CATEGORY_FIRST), CategoryMenuChoice::Ignored);
}

TEST_F(CategoryMenuTest, ByMemoEveryIdIsIgnored) {
  m_list.Mode = ViewMode::ByMemo;
  EXPECT_EQ(Choose(3), CategoryMenuChoice::Ignored);
  EXPECT_EQ(m_list.CategoryName, u"Show All"_qs);
}

TEST_F(CategoryMenuTest, ATextIsReadUpToItsLimit) {
  const QString name(200, u'x');
  FillCategoryMenu(m_menu, {name}, u"Show All"_qs);
  Choose(1);
  EXPECT_EQ(m_list.CategoryName, name.left(128));
}

TEST_F(CategoryMenuTest, SeveralAreCheckedByTheirPositions) {
  EXPECT_TRUE(ChooseSeveral(u"Family,Work"_qs, {0, 2, 35}));
  EXPECT_EQ(m_list.CategoryName, u"Family,Work"_qs);
  EXPECT_EQ(m_list.CategoryCount, 2);
  EXPECT_EQ(m_list.Filter, FilterKind::Category);
  EXPECT_EQ(Checked(), QStringList({u"Family"_qs, u"Work"_qs}));
}

TEST_F(CategoryMenuTest, NoneOfSeveralLeavesEverythingAsItWas) {
  Choose(3);
  EXPECT_FALSE(ChooseSeveral({}, {35}));
  EXPECT_EQ(m_list.CategoryName, u"Work"_qs);
  EXPECT_EQ(m_list.CategoryCount, 1);
  EXPECT_EQ(Checked(), QStringList(u"Work"_qs));
}

TEST_F(CategoryMenuTest, ACategoryAtPosition35EndsTheCountAsIntended) {
  EXPECT_TRUE(ChooseSeveral(u"Family,Thirty-five,Later"_qs, {0, 35, 36, 35}));
  EXPECT_EQ(m_list.CategoryCount, 1);
  EXPECT_EQ(Checked(), QStringList(u"Family"_qs));
}

TEST_F(CategoryMenuTest, ANameThatTheLibraryLacksHasNothingToCheck) {
  EXPECT_TRUE(ChooseSeveral(u"Family,Gone"_qs, {0, 7, 35}));
  EXPECT_EQ(m_list.CategoryCount, 2);
  EXPECT_EQ(Checked(), QStringList(u"Family"_qs));
}

}  // namespace
}  // namespace quill
