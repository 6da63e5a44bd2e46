#include "list/Search.h"

#include "ListTest.h"
#include "list/PageBuilding.h"

namespace quill {
namespace {

using test::NameList;

TEST(SearchList, MakesTheTextTheFilterFromTheFirstRow) {
  ListState list;
  list.Top = 30;
  SearchList(list, QStringLiteral("Kim"));
  EXPECT_EQ(list.SearchText, QStringLiteral("Kim"));
  EXPECT_EQ(list.Filter, FilterKind::Range);
  EXPECT_EQ(list.SubFilter, FilterSubKind::SearchText);
  EXPECT_EQ(list.Top, 0);
}

TEST(SearchList, DropsTheChosenCategoryAndTheIndexButton) {
  ListState list;
  list.CategoryName = QStringLiteral("Work,Home");
  list.CategoryCount = 2;
  list.IndexButton = 3;
  SearchList(list, QStringLiteral("Kim"));
  EXPECT_EQ(list.CategoryName, QStringLiteral("Show All"));
  EXPECT_EQ(list.CategoryCount, 1);
  EXPECT_EQ(list.IndexButton, 0);
}

TEST(SearchList, AnEmptyTextClearsEveryFilter) {
  ListState list;
  list.CategoryName = QStringLiteral("Work");
  list.IndexButton = 3;
  SearchList(list, QStringLiteral("Kim"));
  list.Top = 30;
  SearchList(list, QString());
  EXPECT_EQ(list.SearchText, QString());
  EXPECT_EQ(list.Filter, FilterKind::None);
  EXPECT_EQ(list.SubFilter, FilterSubKind::None);
  EXPECT_EQ(list.CategoryName, QStringLiteral("Show All"));
  EXPECT_EQ(list.IndexButton, 0);
  EXPECT_EQ(list.Top, 0);
}

class Search : public test::ListTest {
 protected:
  QStringList Found(const QString& text) {
    SearchList(m_list, text);
    BuildPage(m_list);
    return ShownNames();
  }
};

TEST_F(Search, FindsNamesByTheirFirstLettersWhateverTheirCase) {
  for (const char16_t* name : {u"Adams", u"ADLER", u"adkins", u"Baker", u"Lee, Ad"})
    Add(QString::fromUtf16(name));
  EXPECT_EQ(Found(QStringLiteral("ad")), NameList({u"Adams", u"adkins", u"ADLER"}));
  EXPECT_EQ(Found(QStringLiteral("A")), NameList({u"Adams", u"adkins", u"ADLER"}));
  EXPECT_EQ(Found(QStringLiteral("Ada")), NameList({u"Adams"}));
  EXPECT_EQ(Found(QStringLiteral("x")), QStringList());
}

TEST_F(Search, FindsHangulByItsFirstSyllables) {
  for (const char16_t* name : {u"\uAE40\uCCA0\uC218", u"\uAE40\uC601\uD76C", u"\uC774\uC601\uD76C"})
    Add(QString::fromUtf16(name));
  EXPECT_EQ(Found(QStringLiteral("\uAE40")),
            NameList({u"\uAE40\uC601\uD76C", u"\uAE40\uCCA0\uC218"}));
  EXPECT_EQ(Found(QStringLiteral("\uAE40\uCCA0")), NameList({u"\uAE40\uCCA0\uC218"}));
}

TEST_F(Search, TakesQuotesAndPercentSignsForLetters) {
  Add(QStringLiteral("\"Bob\" Brown"));
  Add(QStringLiteral("100% Club"));
  Add(QStringLiteral("1000 Club"));
  EXPECT_EQ(Found(QStringLiteral("\"B")), NameList({u"\"Bob\" Brown"}));
  EXPECT_EQ(Found(QStringLiteral("100%")), NameList({u"100% Club"}));
}

TEST_F(Search, FindsNamesThatBeginWithAPictureSign) {
  const QString name = QStringLiteral("\U0001F600 Kim");
  Add(name);
  Add(QStringLiteral("\U0001F601 Lee"));
  EXPECT_EQ(Found(QStringLiteral("\U0001F600")), QStringList(name));
}

// The range ends one unit after z, and the store compares in upper case: intended.
TEST_F(Search, TheLetterZAlsoFindsTheSignsBetweenTheCapitalAndTheSmallLetters) {
  Add(QStringLiteral("Zed"));
  Add(QStringLiteral("_underscore"));
  EXPECT_EQ(Found(QStringLiteral("z")), NameList({u"Zed", u"_underscore"}));
  EXPECT_EQ(Found(QStringLiteral("Z")), NameList({u"Zed"}));
}

TEST_F(Search, AnEmptySearchShowsEverybodyAgain) {
  Add(QStringLiteral("Adams"));
  Add(QStringLiteral("Baker"));
  ASSERT_EQ(Found(QStringLiteral("b")), NameList({u"Baker"}));
  EXPECT_EQ(Found(QString()), NameList({u"Adams", u"Baker"}));
  EXPECT_EQ(m_list.Restriction, QString());
}

}  // namespace
}  // namespace quill
