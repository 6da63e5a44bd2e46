#include "list/IndexRanges.h"

#include "ListTest.h"
#include "list/PageBuilding.h"

namespace quill {
namespace {

using test::NameList;

struct ButtonCase {
  int Button;
  QStringView Lower;
  QStringView Upper;
};

class IndexButtonTest : public testing::TestWithParam<ButtonCase> {};

TEST_P(IndexButtonTest, RunsFromItsLabelToTheNext) {
  const IndexRange range = IndexButtonRange(GetParam().Button);
  EXPECT_EQ(range.Lower, GetParam().Lower);
  EXPECT_EQ(range.Upper, GetParam().Upper);
}

TEST_P(IndexButtonTest, ChoosingItMakesItsRangeTheFilterFromTheFirstRow) {
  ListState list;
  list.Top = 30;
  ChooseIndexButton(list, GetParam().Button);
  EXPECT_EQ(list.IndexButton, GetParam().Button);
  EXPECT_EQ(list.IndexLower, GetParam().Lower);
  EXPECT_EQ(list.IndexUpper, GetParam().Upper);
  EXPECT_EQ(list.Filter, FilterKind::Range);
  EXPECT_EQ(list.SubFilter, FilterSubKind::IndexRange);
  EXPECT_EQ(list.Top, 0);
}

INSTANTIATE_TEST_SUITE_P(Buttons, IndexButtonTest,
                         testing::Values(ButtonCase{1, u"A", u"G"}, ButtonCase{2, u"G", u"M"},
                                         ButtonCase{3, u"M", u"S"}, ButtonCase{4, u"S", u"Y"},
                                         ButtonCase{5, u"Y", u"A"}));

TEST(IndexRanges, EachButtonIsFortyEightPixelsWide) {
  EXPECT_EQ(IndexButtonAt(0), 1);
  EXPECT_EQ(IndexButtonAt(47), 1);
  EXPECT_EQ(IndexButtonAt(48), 2);
  EXPECT_EQ(IndexButtonAt(191), 4);
  EXPECT_EQ(IndexButtonAt(192), 5);
  EXPECT_EQ(IndexButtonAt(239), 5);
}

TEST(IndexRanges, ThereIsNoButtonBesideTheStrip) {
  EXPECT_EQ(IndexButtonAt(-1), 0);
  EXPECT_EQ(IndexButtonAt(240), 0);
}

TEST(IndexRanges, AnUnknownButtonHasNoRangeAndChangesNothing) {
  for (const int button : {-1, 0, 6}) {
    EXPECT_TRUE(IndexButtonRange(button).Lower.isEmpty());
    ListState list;
    list.Top = 30;
    ChooseIndexButton(list, button);
    EXPECT_EQ(list.Filter, FilterKind::None);
    EXPECT_EQ(list.Top, 30);
  }
}

class IndexedListTest : public test::ListTest {
 protected:
  QStringList NamesBehind(int button) {
    ChooseIndexButton(m_list, button);
    BuildPage(m_list);
    return ShownNames();
  }
};

TEST_F(IndexedListTest, ANameStandsBehindTheButtonOfItsFirstLetter) {
  for (const char16_t* name : {u"Adams", u"Fox", u"Gray", u"Lee", u"Moon", u"Roh", u"Song", u"Xu"})
    Add(QString::fromUtf16(name));
  EXPECT_EQ(NamesBehind(1), NameList({u"Adams", u"Fox"}));
  EXPECT_EQ(NamesBehind(2), NameList({u"Gray", u"Lee"}));
  EXPECT_EQ(NamesBehind(3), NameList({u"Moon", u"Roh"}));
  EXPECT_EQ(NamesBehind(4), NameList({u"Song", u"Xu"}));
  EXPECT_EQ(NamesBehind(5), QStringList());
}

TEST_F(IndexedListTest, TheLastButtonHoldsDigitsSignsAndOtherScriptsToo) {
  for (const char16_t* name :
       {u"Yoon", u"1st Bank", u"Zed", u"Adams", u"\uAE40\uCCA0\uC218", u"#1"})
    Add(QString::fromUtf16(name));
  EXPECT_EQ(NamesBehind(5), NameList({u"#1", u"1st Bank", u"Yoon", u"Zed", u"\uAE40\uCCA0\uC218"}));
}

TEST_F(IndexedListTest, SmallLettersStandBehindTheButtonOfTheCapitalOnes) {
  Add(QStringLiteral("adams"));
  Add(QStringLiteral("yoon"));
  EXPECT_EQ(NamesBehind(1), NameList({u"adams"}));
  EXPECT_EQ(NamesBehind(5), NameList({u"yoon"}));
}

TEST_F(IndexedListTest, AChosenCategoryIsKeptBehindEveryButton) {
  Add(QStringLiteral("Adams"), {{ContactField::Categories, QStringLiteral("Work")}});
  Add(QStringLiteral("Allen"));
  Add(QStringLiteral("Yoon"), {{ContactField::Categories, QStringLiteral("Home, Work")}});
  Add(QStringLiteral("Zed"));
  m_list.CategoryName = QStringLiteral("Work");
  EXPECT_EQ(NamesBehind(1), NameList({u"Adams"}));
  EXPECT_EQ(NamesBehind(5), NameList({u"Yoon"}));
  m_list.CategoryName = QStringLiteral("No Categories");
  EXPECT_EQ(NamesBehind(1), NameList({u"Allen"}));
  EXPECT_EQ(NamesBehind(5), NameList({u"Zed"}));
}

}  // namespace
}  // namespace quill
