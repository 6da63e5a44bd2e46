#include "list/RestrictionText.h"

#include <gtest/gtest.h>

#include "list/IndexRanges.h"
#include "store/Collation.h"
#include "store/Restriction.h"

namespace quill {
namespace {

// $ stands for the property that the mode goes by.
struct RestrictionCase {
  FilterKind Filter;
  FilterSubKind SubFilter;
  int IndexButton;
  const char16_t* Search;
  const char16_t* Category;
  const char16_t* Expected;
};

constexpr auto kNone = FilterKind::None;
constexpr auto kCategory = FilterKind::Category;
constexpr auto kRange = FilterKind::Range;
constexpr auto kNoSub = FilterSubKind::None;
constexpr auto kIndex = FilterSubKind::IndexRange;
constexpr auto kSearch = FilterSubKind::SearchText;

class RestrictionTextTest : public testing::TestWithParam<RestrictionCase> {
 protected:
  static ListState StateOf(const RestrictionCase& form, ViewMode mode) {
    ListState list;
    ChooseIndexButton(list, form.IndexButton);
    list.Mode = mode;
    list.Filter = form.Filter;
    list.SubFilter = form.SubFilter;
    list.SearchText = QString::fromUtf16(form.Search);
    list.CategoryName = QString::fromUtf16(form.Category);
    return list;
  }

  static QString Expected(const RestrictionCase& form, const QString& property) {
    return QString::fromUtf16(form.Expected).replace(QStringLiteral("$"), property);
  }
};

TEST_P(RestrictionTextTest, GoesByFileAsInTheListByName) {
  EXPECT_EQ(RestrictionText(StateOf(GetParam(), ViewMode::ByName)),
            Expected(GetParam(), QStringLiteral("[FileAs]")));
}

TEST_P(RestrictionTextTest, GoesByCompanyNameInTheListByCompany) {
  EXPECT_EQ(RestrictionText(StateOf(GetParam(), ViewMode::ByCompany)),
            Expected(GetParam(), QStringLiteral("[CompanyName]")));
}

TEST_P(RestrictionTextTest, IsEmptyOrUnderstoodByTheStore) {
  const QString text = RestrictionText(StateOf(GetParam(), ViewMode::ByName));
  EXPECT_TRUE(text.isEmpty() || ParseRestriction(text)) << text.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Forms, RestrictionTextTest,
    testing::Values(
        // Everything.
        RestrictionCase{kNone, kNoSub, 0, u"", u"Show All", u""},
        RestrictionCase{kRange, kNoSub, 1, u"Kim", u"Show All", u""},
        // The index strip.
        RestrictionCase{kRange, kIndex, 1, u"", u"Show All", uR"($ >= "A" AND $ < "G")"},
        RestrictionCase{kRange, kIndex, 2, u"", u"Show All", uR"($ >= "G" AND $ < "M")"},
        RestrictionCase{kRange, kIndex, 3, u"", u"Show All", uR"($ >= "M" AND $ < "S")"},
        RestrictionCase{kRange, kIndex, 4, u"", u"Show All", uR"($ >= "S" AND $ < "Y")"},
        RestrictionCase{kRange, kIndex, 5, u"", u"Show All", uR"($ >= "Y" OR $ < "A")"},
        RestrictionCase{kRange, kIndex, 1, u"", u"Work",
                        uR"($ >= "A" AND $ < "G" AND [Categories] = "Work")"},
        RestrictionCase{kRange, kIndex, 3, u"", u"No Categories",
                        uR"($ >= "M" AND $ < "S" AND [Categories] = "")"},
        RestrictionCase{kRange, kIndex, 5, u"", u"Work",
                        uR"(($ >= "Y" OR $ < "A") AND [Categories] = "Work")"},
        RestrictionCase{kRange, kIndex, 5, u"", u"No Categories",
                        uR"(($ >= "Y" OR $ < "A") AND [Categories] = "")"},
        // The search.
        RestrictionCase{kRange, kSearch, 0, u"Kim", u"Show All", uR"($ >= "Kim" AND $ < "Kin")"},
        RestrictionCase{kRange, kSearch, 0, u"", u"Show All", uR"($ >= "")"},
        RestrictionCase{kRange, kSearch, 0, u"Kim", u"Work",
                        uR"($ >= "Kim" AND $ < "Kin" AND [Categories] = "Work")"},
        RestrictionCase{kRange, kSearch, 0, u"", u"Work", uR"($ >= "" AND [Categories] = "Work")"},
        RestrictionCase{kRange, kSearch, 0, u"", u"No Categories",
                        uR"($ >= "" AND [Categories] = "")"},
        RestrictionCase{kRange, kSearch, 0, u"O\"B", u"Show All", uR"($ >= "O""B" AND $ < "O""C")"},
        RestrictionCase{kRange, kSearch, 0, u"50%1", u"Show All", uR"($ >= "50%1" AND $ < "50%2")"},
        // The last character is the quote's neighbour: the end is a quote, doubled.
        RestrictionCase{kRange, kSearch, 0, u"A!", u"Show All", uR"($ >= "A!" AND $ < "A""")"},
        // A category alone.
        RestrictionCase{kCategory, kNoSub, 0, u"", u"Show All", u""},
        RestrictionCase{kCategory, kNoSub, 0, u"", u"Work", uR"([Categories] = "Work")"},
        RestrictionCase{kCategory, kNoSub, 0, u"", u"Work,Friends",
                        uR"([Categories] = "Work,Friends")"},
        RestrictionCase{kCategory, kNoSub, 0, u"", u"No Categories", uR"([Categories] = "")"},
        RestrictionCase{kCategory, kNoSub, 0, u"", u"", uR"([Categories] = "")"},
        RestrictionCase{kCategory, kNoSub, 0, u"", u"\"A\"", uR"([Categories] = """A""")"}));

TEST(RestrictionText, BoundsThatAreEqualWrapRound) {
  ListState list;
  list.Filter = FilterKind::Range;
  list.SubFilter = FilterSubKind::IndexRange;
  list.IndexLower = list.IndexUpper = QStringLiteral("M");
  EXPECT_EQ(RestrictionText(list), QStringLiteral(R"([FileAs] >= "M" OR [FileAs] < "M")"));
}

TEST(RestrictionText, BoundsAreComparedByCodeUnitNotByAlphabet) {
  ListState list;
  list.Filter = FilterKind::Range;
  list.SubFilter = FilterSubKind::IndexRange;
  list.IndexLower = QStringLiteral("Z");
  list.IndexUpper = QStringLiteral("a");
  EXPECT_EQ(RestrictionText(list), QStringLiteral(R"([FileAs] >= "Z" AND [FileAs] < "a")"));
}

struct PrefixCase {
  QString LastLetter;
  bool TakesMore;  // names that begin with something else, too
};
class EveryPrefix : public testing::TestWithParam<PrefixCase> {};

// Whatever the letter: the range holds what begins with it in either case, and nothing after it.
TEST_P(EveryPrefix, HoldsTheNamesThatBeginWithIt) {
  const QString prefix = QStringLiteral("Ab") + GetParam().LastLetter;
  const QByteArray end = FoldKey(PrefixEnd(prefix));
  for (const QString& name : {prefix, prefix.toUpper(), prefix + QChar(0xFFFF)})
    EXPECT_LT(FoldKey(name), end) << name.toStdString();
  const char16_t next = FoldCase(prefix).back().unicode() + 1;
  const QString beyond = FoldCase(prefix).chopped(1) + QChar(next);
  if (FoldCase(beyond) == beyond) {
    EXPECT_EQ(FoldKey(beyond) < end, GetParam().TakesMore);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Letters, EveryPrefix,
    testing::Values(PrefixCase{QStringLiteral("m"), false}, PrefixCase{QStringLiteral("M"), false},
                    PrefixCase{QStringLiteral("z"), true}, PrefixCase{QStringLiteral("`"), false},
                    PrefixCase{QStringLiteral("\u044F"), false},  // Cyrillic ya
                    PrefixCase{QStringLiteral("\u0436"), false},  // Cyrillic zhe
                    PrefixCase{QStringLiteral("\u00FF"), false},  // y with diaeresis
                    PrefixCase{QStringLiteral("\u0131"), false},  // dotless i
                    PrefixCase{QStringLiteral("\u017E"), false},  // z with caron
                    PrefixCase{QStringLiteral("\u00B5"), false},  // micro sign
                    PrefixCase{QStringLiteral("\u0130"), false},  // I with dot
                    PrefixCase{QStringLiteral("\u01C5"), false},  // D with z
                    PrefixCase{QStringLiteral("\uAE40"), false}));

TEST(PrefixEnd, OfSharpSIsBehindIt) {  // it has no simple upper case
  EXPECT_LT(FoldKey(QStringLiteral("Wei\u00DFmann")),
            FoldKey(PrefixEnd(QStringLiteral("Wei\u00DF"))));
}

TEST(PrefixEnd, RaisesTheLastUnitByOne) {
  EXPECT_EQ(PrefixEnd(QStringLiteral("Kim")), QStringLiteral("Kin"));
  EXPECT_EQ(PrefixEnd(QStringLiteral("z")), QStringLiteral("{"));
  EXPECT_EQ(PrefixEnd(QStringLiteral("\uAE40")), QStringLiteral("\uAE41"));
  EXPECT_EQ(PrefixEnd(QString()), QString());
}

}  // namespace
}  // namespace quill
