#include "list/MemoPage.h"

#include "ListTest.h"
#include "list/IndexRanges.h"
#include "list/PageBuilding.h"
#include "list/Search.h"
#include "list/Selection.h"
#include "list/ViewModes.h"
#include "memo/MemoFolder.h"
#include "support/DeviceHome.h"

namespace quill {
namespace {

class MemoPage : public test::ListTest {
 protected:
  MemoPage() {
    FixMemoFolder(g_memo);
    m_list.Mode = ViewMode::ByMemo;
  }

  void Put(const QStringList& names) {
    for (const QString& name : names)
      ASSERT_TRUE(m_home.Files.WriteWhole(MemoPath(g_memo, name), QByteArray("ink")));
  }
  // Files named 000.pwi, 001.pwi, ...
  void PutNumbered(int count) {
    for (int number = 0; number < count; ++number)
      Put({QStringLiteral("%1.pwi").arg(number, 3, 10, QLatin1Char('0'))});
  }
  void Remove(const QString& name) { ASSERT_TRUE(m_home.Files.Remove(MemoPath(g_memo, name))); }

  test::DeviceHome m_home;
};

TEST_F(MemoPage, ListsTheMemosAndNoContacts) {
  Add(u"Kim"_qs);
  Put({u"b.pwi"_qs, u"A.pwi"_qs});
  BuildPage(m_list);
  EXPECT_EQ(g_memo.NameList, QStringList({u"A.pwi"_qs, u"b.pwi"_qs}));
  EXPECT_EQ(m_list.Total, 2);
  EXPECT_EQ(m_list.RowsShown, 2);
  EXPECT_EQ(m_list.Rows[0], ListRow());
}

TEST_F(MemoPage, ASearchWithASeparatorListsNothingThatCouldBeDeletedByMistake) {
  ASSERT_EQ(m_home.Files.CreateFolder(MemoPath(g_memo, u"AC"_qs)), 0);
  Put({u"DC_1.pwi"_qs, u"AC\\DC_1.pwi"_qs});
  SearchList(m_list, u"AC\\DC"_qs);
  BuildPage(m_list);
  EXPECT_EQ(g_memo.NameList, QStringList());
  EXPECT_EQ(m_list.Total, 0);
}

TEST_F(MemoPage, ShowsNoMoreRowsThanAPageHas) {
  PutNumbered(20);
  BuildPage(m_list);
  EXPECT_EQ(m_list.Total, 20);
  EXPECT_EQ(m_list.RowsShown, kRowsWithIndex);
}

TEST_F(MemoPage, APageThatGrewShowsAsManyRowsOfWhatIsListed) {
  PutNumbered(20);
  BuildPage(m_list);
  Remove(u"000.pwi"_qs);
  m_list.RowsPerPage = kRowsWithoutIndex;
  m_list.Top = 19;
  FitMemoPage(m_list);
  EXPECT_EQ(m_list.RowsShown, kRowsWithoutIndex);
  EXPECT_EQ(m_list.Top, LargestTop(m_list));
  EXPECT_EQ(m_list.Total, 20) << "listed anew only when the page is built";
}

TEST_F(MemoPage, AnIndexButtonListsTheMemosOfItsRangeWithoutCase) {
  Put({u"adams.pwi"_qs, u"Fox.pwi"_qs, u"gray.pwi"_qs, u"1st.pwi"_qs, u"Zed.pwi"_qs, u"_x.pwi"_qs});
  ChooseIndexButton(m_list, 1);
  BuildPage(m_list);
  EXPECT_EQ(g_memo.NameList, QStringList({u"adams.pwi"_qs, u"Fox.pwi"_qs}));
  ChooseIndexButton(m_list, 5);
  BuildPage(m_list);
  EXPECT_EQ(g_memo.NameList, QStringList({u"1st.pwi"_qs, u"_x.pwi"_qs, u"Zed.pwi"_qs}));
}

TEST_F(MemoPage, ASearchListsTheMemosThatBeginWithItsText) {
  Put({u"Kim_1.pwi"_qs, u"kimberly.pwi"_qs, u"Joe.pwi"_qs});
  SearchList(m_list, u"KIM"_qs);
  BuildPage(m_list);
  EXPECT_EQ(g_memo.NameList, QStringList({u"Kim_1.pwi"_qs, u"kimberly.pwi"_qs}));
  SearchList(m_list, {});
  BuildPage(m_list);
  EXPECT_EQ(m_list.Total, 3);
}

TEST_F(MemoPage, HasNoRestrictionAndNoCollection) {
  Add(u"Kim"_qs);
  m_list.Mode = ViewMode::ByName;
  SearchList(m_list, u"K"_qs);
  BuildPage(m_list);
  SwitchViewMode(m_list, ViewMode::ByMemo);
  BuildPage(m_list);
  EXPECT_EQ(m_list.Restriction, QString());
  EXPECT_FALSE(m_list.Collection.Restriction);
}

TEST_F(MemoPage, ATopPastTheScrollRangeMovesIntoIt) {
  PutNumbered(20);
  m_list.Top = 19;
  BuildPage(m_list);
  EXPECT_EQ(m_list.Top, 20 - kRowsWithIndex + 1);
}

TEST_F(MemoPage, SelectedMemosStaySelectedWhereverTheyStandNow) {
  Put({u"b.pwi"_qs, u"c.pwi"_qs, u"d.pwi"_qs});
  BuildPage(m_list);
  SelectRun(m_list, 1, 2);
  Put({u"a.pwi"_qs});
  BuildPage(m_list);
  EXPECT_EQ(m_list.SelectedKeys, (std::vector{2, 3}));
  EXPECT_EQ(m_list.CurrentRow, 2);
}

TEST_F(MemoPage, ASelectedMemoThatIsGoneIsNotSelected) {
  Put({u"a.pwi"_qs, u"b.pwi"_qs, u"c.pwi"_qs});
  BuildPage(m_list);
  SelectRun(m_list, 0, 1);
  Remove(u"a.pwi"_qs);
  BuildPage(m_list);
  EXPECT_EQ(m_list.SelectedKeys, std::vector{0});
}

}  // namespace
}  // namespace quill
