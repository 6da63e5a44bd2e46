#include "list/PageBuilding.h"

#include <gmock/gmock.h>

#include "ListTest.h"
#include "list/IndexRanges.h"
#include "list/Search.h"

namespace quill {
namespace {

using test::NameList;
using testing::Each;

const QString kWork = QStringLiteral("Work");

class PageBuilding : public test::ListTest {
 protected:
  Oid AddIn(const QString& categories, const QString& fileAs) {
    return Add(fileAs, {{ContactField::Categories, categories}});
  }

  // The second test alone: no restriction, and a category chosen all the same.
  void ChooseCategoryForTheSecondTestOnly(const QString& category) {
    m_list.Filter = FilterKind::None;
    m_list.CategoryName = category;
  }
};

TEST_F(PageBuilding, AnEmptyStoreGivesAnEmptyPage) {
  BuildPage(m_list);
  EXPECT_EQ(m_list.Total, 0);
  EXPECT_EQ(m_list.RowsShown, 0);
  EXPECT_THAT(m_list.Rows, Each(ListRow()));
}

TEST_F(PageBuilding, WithoutAnOpenSessionThePageIsEmpty) {
  Add(QStringLiteral("Kim"));
  CloseSession();
  BuildPage(m_list);
  EXPECT_EQ(m_list.Total, 0);
  EXPECT_EQ(m_list.RowsShown, 0);
}

TEST_F(PageBuilding, RowsComeInTheStoresOrderWithTheirOidsAndPlaces) {
  const Oid lee = Add(QStringLiteral("Lee"), {{ContactField::CompanyName, QStringLiteral("Fox")}});
  const Oid kim =
      Add(QStringLiteral("kim"), {{ContactField::HomeTelephoneNumber, QStringLiteral("1")}});
  BuildPage(m_list);
  ASSERT_EQ(m_list.RowsShown, 2);
  EXPECT_EQ(m_list.Rows[0], (ListRow{.Name = QStringLiteral("kim"),
                                     .Company = QString(),
                                     .Text = QStringLiteral("1"),
                                     .Icon = RowIconKind::Home,
                                     .Oid = kim,
                                     .Position = 0}));
  EXPECT_EQ(m_list.Rows[1], (ListRow{.Name = QStringLiteral("Lee"),
                                     .Company = QStringLiteral("Fox"),
                                     .Text = QString(),
                                     .Icon = RowIconKind::None,
                                     .Oid = lee,
                                     .Position = 1}));
}

TEST_F(PageBuilding, ByCompanyTheContactsStandInTheOrderOfTheirCompanies) {
  Add(QStringLiteral("Adams"), {{ContactField::CompanyName, QStringLiteral("Zebra")}});
  Add(QStringLiteral("Kim"), {{ContactField::CompanyName, QStringLiteral("acme")}});
  Add(QStringLiteral("Baker"), {{ContactField::CompanyName, QStringLiteral("Acme")}});
  Add(QStringLiteral("Lee"));
  m_list.Mode = ViewMode::ByCompany;
  BuildPage(m_list);
  EXPECT_EQ(ShownNames(), test::NameList({u"Lee", u"Baker", u"Kim", u"Adams"}));
  m_list.Mode = ViewMode::ByName;
  BuildPage(m_list);
  EXPECT_EQ(ShownNames(), test::NameList({u"Adams", u"Baker", u"Kim", u"Lee"}));
}

TEST_F(PageBuilding, APageIsNeverLongerThanItsRows) {
  AddNumbered(40);
  for (const int rows : {kRowsWithIndex, kRowsWithoutIndex}) {
    m_list.RowsPerPage = rows;
    BuildPage(m_list);
    EXPECT_EQ(m_list.Total, 40);
    EXPECT_EQ(m_list.RowsShown, rows);
    EXPECT_EQ(ShownNames().last(), NumberedName(rows));
  }
}

TEST_F(PageBuilding, ThePageBeginsAtTheTop) {
  AddNumbered(40);
  m_list.Top = 20;
  BuildPage(m_list);
  EXPECT_EQ(ShownNames().first(), NumberedName(21));
  EXPECT_EQ(m_list.Rows[0].Position, 0);
}

TEST_F(PageBuilding, RowsPastTheLastShownAreEmpty) {
  AddNumbered(20);
  BuildPage(m_list);
  SearchList(m_list, QStringLiteral("00"));
  BuildPage(m_list);
  EXPECT_EQ(m_list.RowsShown, 9);
  EXPECT_EQ(m_list.Rows[9], ListRow());
  EXPECT_EQ(m_list.Rows[13], ListRow());
}

TEST_F(PageBuilding, TotalIsTheRestrictedCount) {
  AddNumbered(40);
  SearchList(m_list, QStringLiteral("01"));
  BuildPage(m_list);
  EXPECT_EQ(m_list.Total, 10);
  EXPECT_EQ(m_list.Restriction, QStringLiteral(R"([FileAs] >= "01" AND [FileAs] < "02")"));
}

TEST_F(PageBuilding, WithoutAFilterNothingIsRestricted) {
  AddNumbered(3);
  BuildPage(m_list);
  EXPECT_EQ(m_store.Counts().Restrict, 0);
  EXPECT_EQ(m_list.Restriction, QString());
}

TEST_F(PageBuilding, RebuildingAfterAScrollKeepsTheFilterAndReadsFromTheNewTop) {
  AddNumbered(99);
  SearchList(m_list, QStringLiteral("0"));
  BuildPage(m_list);
  m_list.Top = 30;
  BuildPage(m_list);
  EXPECT_EQ(m_list.Total, 99);
  EXPECT_EQ(m_list.Top, 30);
  EXPECT_EQ(ShownNames().first(), NumberedName(31));
}

TEST_F(PageBuilding, ATopPastTheScrollRangeMovesIntoIt) {
  AddNumbered(20);
  m_list.Top = 19;
  BuildPage(m_list);
  EXPECT_EQ(m_list.Top, 20 - kRowsWithIndex + 1);
  EXPECT_EQ(ShownNames().last(), NumberedName(20));
  m_list.Top = -1;
  BuildPage(m_list);
  EXPECT_EQ(m_list.Top, 0);
}

TEST_F(PageBuilding, AListThatHasBecomeShorterThanAPageShowsItsFirstRow) {
  AddNumbered(40);
  m_list.Top = 27;
  BuildPage(m_list);
  SearchList(m_list, QStringLiteral("00"));
  m_list.Top = 27;
  BuildPage(m_list);
  EXPECT_EQ(m_list.Top, 0);
  EXPECT_EQ(m_list.RowsShown, 9);
}

TEST_F(PageBuilding, AtTheEndOfTheScrollRangeTheLastRowOfThePageIsBlank) {
  AddNumbered(20);
  m_list.Top = 100;
  BuildPage(m_list);
  EXPECT_EQ(m_list.RowsShown, kRowsWithIndex - 1);
}

TEST_F(PageBuilding, ACategoryAloneShowsItsContactsWhereverTheirTextNamesIt) {
  AddIn(kWork, QStringLiteral("Adams"));
  AddIn(QStringLiteral("Home, Work"), QStringLiteral("Baker"));
  AddIn(QStringLiteral("Workshop"), QStringLiteral("Clark"));
  Add(QStringLiteral("Davis"));
  m_list.Filter = FilterKind::Category;
  m_list.CategoryName = kWork;
  BuildPage(m_list);
  EXPECT_EQ(ShownNames(), NameList({u"Adams", u"Baker"}));
  EXPECT_EQ(m_list.Total, 2);
}

TEST_F(PageBuilding, NoCategoriesShowsWhoIsInNone) {
  AddIn(kWork, QStringLiteral("Adams"));
  Add(QStringLiteral("Baker"));
  m_list.Filter = FilterKind::Category;
  m_list.CategoryName = QStringLiteral("No Categories");
  BuildPage(m_list);
  EXPECT_EQ(ShownNames(), NameList({u"Baker"}));
}

TEST_F(PageBuilding, ShowAllIsNoCategory) {
  AddIn(kWork, QStringLiteral("Adams"));
  Add(QStringLiteral("Baker"));
  m_list.Filter = FilterKind::Category;
  BuildPage(m_list);
  EXPECT_EQ(ShownNames(), NameList({u"Adams", u"Baker"}));
}

TEST_F(PageBuilding, AChoiceOfSeveralCategoriesShowsWhoIsInAnyOfThemOnce) {
  AddIn(QStringLiteral("Work, Home"), QStringLiteral("Adams"));
  AddIn(QStringLiteral("Home"), QStringLiteral("Baker"));
  AddIn(QStringLiteral("Golf"), QStringLiteral("Clark"));
  m_list.Filter = FilterKind::Category;
  m_list.CategoryName = QStringLiteral("Work,Home");
  BuildPage(m_list);
  EXPECT_EQ(ShownNames(), NameList({u"Adams", u"Baker"}));
}

TEST_F(PageBuilding, SkippedItemsLeaveNoGaps) {
  for (int number = 1; number <= 40; ++number)
    AddIn(number % 2 == 0 ? kWork : QStringLiteral("Home"), NumberedName(number));
  ChooseCategoryForTheSecondTestOnly(kWork);
  BuildPage(m_list);
  ASSERT_EQ(m_list.RowsShown, kRowsWithIndex);
  for (int row = 0; row < kRowsWithIndex; ++row) {
    EXPECT_EQ(m_list.Rows[row].Name, NumberedName(2 * (row + 1)));
    EXPECT_EQ(m_list.Rows[row].Position, row);
  }
  EXPECT_EQ(m_list.Total, 40) << "skipped items still count";
}

TEST_F(PageBuilding, TheSecondTestTakesNoCategoriesForTheEmptyName) {
  AddIn(kWork, QStringLiteral("Adams"));
  Add(QStringLiteral("Baker"));
  ChooseCategoryForTheSecondTestOnly(QStringLiteral("No Categories"));
  BuildPage(m_list);
  EXPECT_EQ(ShownNames(), NameList({u"Baker"}));
}

TEST_F(PageBuilding, AFailingRestrictionGivesAnEmptyPage) {
  AddNumbered(5);
  BuildPage(m_list);
  m_store.Faults().Restrict = true;
  SearchList(m_list, QStringLiteral("0"));
  BuildPage(m_list);
  EXPECT_EQ(m_list.Total, 0);
  EXPECT_EQ(m_list.RowsShown, 0);
}

TEST_F(PageBuilding, AFailingReadEndsThePageAndKeepsTheRowsBeforeIt) {
  AddNumbered(4);
  const Oid fifth = Add(NumberedName(5));
  Add(NumberedName(6));
  m_store.Faults().ReadListRow = fifth;
  BuildPage(m_list);
  EXPECT_EQ(m_list.RowsShown, 4);
  EXPECT_EQ(m_list.Total, 6);
  EXPECT_EQ(m_list.Rows[4], ListRow());
}

TEST_F(PageBuilding, RefillingAsksForRowsOnlyAndKeepsTheTotal) {
  AddNumbered(40);
  SearchList(m_list, QStringLiteral("0"));
  BuildPage(m_list);
  m_store.Counts() = {};
  m_list.Top = 13;
  RefillPage(m_list);
  EXPECT_EQ(m_store.Counts(), (test::StoreCounts{.ReadListRow = kRowsWithIndex}));
  EXPECT_EQ(m_list.Total, 40);
  EXPECT_EQ(ShownNames().first(), NumberedName(14));
}

TEST_F(PageBuilding, ALineReadsOneRow) {
  AddNumbered(40);
  BuildPage(m_list);
  m_store.Counts() = {};
  m_list.Top = 1;
  RefillLineDown(m_list);
  m_list.Top = 0;
  RefillLineUp(m_list);
  EXPECT_EQ(m_store.Counts(), (test::StoreCounts{.ReadListRow = 2}));
}

TEST_F(PageBuilding, ALineUpAfterAFailedReadGivesAnEmptyPage) {
  const Oid first = Add(NumberedName(0));
  AddNumbered(20);
  m_list.Top = 1;
  BuildPage(m_list);
  m_store.Faults().ReadListRow = first;
  m_list.Top = 0;
  RefillLineUp(m_list);
  EXPECT_EQ(m_list.RowsShown, 0);
  EXPECT_THAT(m_list.Rows, Each(ListRow()));
}

TEST_F(PageBuilding, ALineDownAfterAFailedReadKeepsTheRowsBefore) {
  AddNumbered(14);
  const Oid next = Add(NumberedName(15));
  BuildPage(m_list);
  m_store.Faults().ReadListRow = next;
  m_list.Top = 1;
  RefillLineDown(m_list);
  EXPECT_EQ(m_list.RowsShown, kRowsWithIndex - 1);
  EXPECT_EQ(ShownNames().last(), NumberedName(14));
  EXPECT_EQ(m_list.Rows[kRowsWithIndex - 1], ListRow());
}

TEST_F(PageBuilding, ALineDoesNotTestTheCategoryASecondTime) {
  for (int number = 1; number <= 20; ++number)
    AddIn(number == 15 ? QStringLiteral("Home") : kWork, NumberedName(number));
  ChooseCategoryForTheSecondTestOnly(kWork);
  BuildPage(m_list);
  m_list.Top = 1;
  RefillLineDown(m_list);
  EXPECT_EQ(ShownNames().last(), NumberedName(15)) << "a whole page would skip it";
  BuildPage(m_list);
  EXPECT_EQ(ShownNames().last(), NumberedName(16));
}

TEST_F(PageBuilding, ALineUpDoesNotTestTheCategoryASecondTime) {
  for (int number = 1; number <= 20; ++number)
    AddIn(number == 1 ? QStringLiteral("Home") : kWork, NumberedName(number));
  ChooseCategoryForTheSecondTestOnly(kWork);
  m_list.Top = 1;
  BuildPage(m_list);
  m_list.Top = 0;
  RefillLineUp(m_list);
  EXPECT_EQ(ShownNames().first(), NumberedName(1));
}

TEST_F(PageBuilding, AShortPageScrolledByALineGrowsByOneRowOnly) {
  AddNumbered(20);
  m_list.Top = 100;
  BuildPage(m_list);
  ASSERT_EQ(m_list.RowsShown, kRowsWithIndex - 1);
  --m_list.Top;
  RefillLineUp(m_list);
  EXPECT_EQ(m_list.RowsShown, kRowsWithIndex);
  EXPECT_EQ(ShownNames().last(), NumberedName(20));
  --m_list.Top;
  RefillLineUp(m_list);
  EXPECT_EQ(m_list.RowsShown, kRowsWithIndex);
  EXPECT_EQ(ShownNames().last(), NumberedName(19));
}

struct RangeCase {
  int Total;
  int RowsPerPage;
  int Largest;
};

class LargestTopTest : public testing::TestWithParam<RangeCase> {};

TEST_P(LargestTopTest, IsTheTotalLessAPageAndOneButNeverBelowZero) {
  ListState list;
  list.Total = GetParam().Total;
  list.RowsPerPage = GetParam().RowsPerPage;
  EXPECT_EQ(LargestTop(list), GetParam().Largest);
}

INSTANTIATE_TEST_SUITE_P(Totals, LargestTopTest,
                         testing::Values(RangeCase{0, 14, 0}, RangeCase{13, 14, 0},
                                         RangeCase{14, 14, 1}, RangeCase{15, 14, 2},
                                         RangeCase{100, 14, 87}, RangeCase{100, 15, 86}));

}  // namespace
}  // namespace quill
