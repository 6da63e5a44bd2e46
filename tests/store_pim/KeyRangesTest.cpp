#include "store/pim/KeyRanges.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace quill {
namespace {

ContactCollection Restricted(const QString& text, ContactOrder order) {
  return {.Order = order,
          .Restriction = std::make_shared<const RestrictionNode>(*ParseRestriction(text))};
}

// Ranges as "from..to", a zero byte as "|" and the byte one as "^".
QString Shown(const std::optional<KeyRanges>& ranges) {
  if (!ranges) return QStringLiteral("none");
  QStringList shown;
  for (const KeyRange& range : *ranges) {
    shown.append(QString::fromLatin1(range.From + ".." + range.To)
                     .replace(QChar(u'\0'), QChar(u'|'))
                     .replace(QChar(u'\1'), QChar(u'^')));
  }
  return shown.join(QStringLiteral(" + "));
}

struct Case {
  const char* Name;
  ContactOrder Order;
  QString Text;
  QString Ranges;
};

void PrintTo(const Case& each, std::ostream* out) { *out << each.Name; }

class RangesOf : public testing::TestWithParam<Case> {};

TEST_P(RangesOf, ARestrictionIsRangesOfKeys) {
  EXPECT_EQ(Shown(ContactRanges(Restricted(GetParam().Text, GetParam().Order))), GetParam().Ranges);
}

constexpr auto kByName = ContactOrder::ByFileAs;
constexpr auto kByCompany = ContactOrder::ByCompany;

INSTANTIATE_TEST_SUITE_P(
    KeyRanges, RangesOf,
    testing::Values(
        Case{"Letters", kByName, QStringLiteral(R"([FileAs] >= "a" AND [FileAs] < "G")"),
             QStringLiteral("0A..0G")},
        Case{"LastButton", kByName, QStringLiteral(R"([FileAs] >= "Y" OR [FileAs] < "A")"),
             QStringLiteral("0..0A + 0Y..1")},
        Case{"EmptyBound", kByName, QStringLiteral(R"([FileAs] >= "")"), QStringLiteral("0..1")},
        Case{"BelowNothing", kByName, QStringLiteral(R"([FileAs] < "")"), QString()},
        Case{"OneName", kByName, QStringLiteral(R"([FileAs] = "Kim")"),
             QStringLiteral("0KIM..0KIM^")},
        Case{"Category", kByName, QStringLiteral(R"([Categories] = "Work")"),
             QStringLiteral("2Work|..2Work^")},
        Case{"CategoryAfterBlanks", kByName, QStringLiteral(R"([Categories] = "  Work")"),
             QStringLiteral("2Work|..2Work^")},
        Case{"NoCategory", kByName, QStringLiteral(R"([Categories] = "")"),
             QStringLiteral("2|..2^")},
        Case{"CategoryOfCommas", kByName, QStringLiteral(R"([Categories] = " ,")"), QString()},
        Case{"NoCategoriesByName", kByName, QStringLiteral(R"([Categories] = "No Categories")"),
             QString()},
        Case{"NoCategoriesAmongOthers", kByName,
             QStringLiteral(R"([Categories] = "Work,No Categories")"),
             QStringLiteral("2Work|..2Work^")},
        Case{"SeveralCategories", kByName, QStringLiteral(R"([Categories] = "A,B")"),
             QStringLiteral("none")},
        Case{"CategoryOrder", kByName, QStringLiteral(R"([Categories] >= "A")"),
             QStringLiteral("none")},
        Case{"LettersOfACategory", kByName,
             QStringLiteral(R"([FileAs] >= "A" AND [FileAs] < "G" AND [Categories] = "Work")"),
             QStringLiteral("2Work|A..2Work|G")},
        Case{"LastButtonOfACategory", kByName,
             QStringLiteral(R"(([FileAs] >= "Y" OR [FileAs] < "A") AND [Categories] = "Work")"),
             QStringLiteral("2Work|..2Work|A + 2Work|Y..2Work^")},
        Case{"SameCategoryTwice", kByName,
             QStringLiteral(R"([Categories] = "A" AND [Categories] = " A")"),
             QStringLiteral("2A|..2A^")},
        Case{"TwoCategoriesAtOnce", kByName,
             QStringLiteral(R"([Categories] = "A" AND [Categories] = "B")"),
             QStringLiteral("none")},
        Case{"EitherOfTwoCategories", kByName,
             QStringLiteral(R"([Categories] = "A" OR [Categories] = "B")"), QStringLiteral("none")},
        Case{"NameOrCategory", kByName, QStringLiteral(R"([FileAs] = "Kim" OR [Categories] = "A")"),
             QStringLiteral("none")},
        Case{"NothingOrCategory", kByName, QStringLiteral(R"([FileAs] < "" OR [Categories] = "A")"),
             QStringLiteral("2A|..2A^")},
        Case{"Impossible", kByName, QStringLiteral(R"([FileAs] < "A" AND [FileAs] >= "B")"),
             QString()},
        Case{"OverlapJoined", kByName, QStringLiteral(R"([FileAs] < "G" OR [FileAs] >= "C")"),
             QStringLiteral("0..1")},
        Case{"TouchingJoined", kByName, QStringLiteral(R"([FileAs] < "C" OR [FileAs] >= "C")"),
             QStringLiteral("0..1")},
        Case{"InsideJoined", kByName,
             QStringLiteral(R"([FileAs] < "M" OR [FileAs] >= "B" AND [FileAs] < "C")"),
             QStringLiteral("0..0M")},
        Case{"Company", kByCompany,
             QStringLiteral(R"([CompanyName] >= "A" AND [CompanyName] < "b")"),
             QStringLiteral("1A..1B")},
        Case{"OneCompany", kByCompany, QStringLiteral(R"([CompanyName] = "Acme")"),
             QStringLiteral("1ACME..1ACME^")},
        Case{"CompanyOfACategory", kByCompany,
             QStringLiteral(R"([CompanyName] >= "A" AND [Categories] = "")"),
             QStringLiteral("3|A..3^")},
        Case{"NameInTheOrderByCompany", kByCompany, QStringLiteral(R"([FileAs] = "Kim")"),
             QStringLiteral("none")},
        Case{"CompanyInTheOrderByName", kByName, QStringLiteral(R"([CompanyName] = "A")"),
             QStringLiteral("none")}),
    [](const auto& testCase) { return testCase.param.Name; });

TEST(KeyRanges, WithoutARestrictionItIsTheWholeOrder) {
  EXPECT_EQ(Shown(ContactRanges({})), QStringLiteral("0..1"));
  EXPECT_EQ(Shown(ContactRanges({.Order = kByCompany, .Restriction = nullptr})),
            QStringLiteral("1..2"));
}

TEST(KeyRanges, SeveralCategoriesAreRangesOfEach) {
  const auto several = SeveralCategoryRanges(
      Restricted(QStringLiteral(R"([Categories] = "Work,a,Work" AND [FileAs] < "B")"), kByName));
  ASSERT_TRUE(several);
  ASSERT_EQ(several->size(), 2U);
  EXPECT_EQ(Shown((*several)[0].Ranges), QStringLiteral("2Work|..2Work|B"));
  EXPECT_EQ((*several)[0].PrefixSize, 6);
  EXPECT_EQ(Shown((*several)[1].Ranges), QStringLiteral("2a|..2a|B"));
  EXPECT_EQ((*several)[1].PrefixSize, 3);
}

TEST(KeyRanges, OneCategoryOrNoneIsNotSeveral) {
  EXPECT_FALSE(SeveralCategoryRanges({}));
  for (const char16_t* text : {u"[Categories] = \"A\"", u"[Categories] = \"A,A\"",
                               u"[Categories] = \"\"", u"[FileAs] = \"A\""}) {
    EXPECT_FALSE(SeveralCategoryRanges(Restricted(QString::fromUtf16(text), kByName)));
  }
}

TEST(KeyRanges, SubjectsCompareAsTheyAre) {
  EXPECT_EQ(
      Shown(SubjectRanges(*ParseRestriction(u"[Subject] >= \"(Kim)\" AND [Subject] < \"(Kin)\""))),
      QStringLiteral("4(Kim)..4(Kin)"));
  EXPECT_EQ(Shown(SubjectRanges(*ParseRestriction(u"[Categories] = \"A\""))),
            QStringLiteral("none"));
}

}  // namespace
}  // namespace quill
