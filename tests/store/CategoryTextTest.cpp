#include "store/CategoryText.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

struct MatchCase {
  QString Chosen;
  QString Categories;
  bool Matches;
};

class CategoryMatch : public testing::TestWithParam<MatchCase> {};

TEST_P(CategoryMatch, ComparesTheNames) {
  const MatchCase& match = GetParam();
  EXPECT_EQ(CategoriesMatch(match.Chosen, match.Categories), match.Matches)
      << match.Chosen.toStdString() << " / " << match.Categories.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CategoryMatch,
    testing::Values(MatchCase{QStringLiteral("Friends"), QStringLiteral("Work, Friends"), true},
                    MatchCase{QStringLiteral("Work"), QStringLiteral("Work,Friends"), true},
                    MatchCase{QStringLiteral("Friends"), QStringLiteral("Work,   Friends"), true},
                    MatchCase{QStringLiteral("friends"), QStringLiteral("Work, Friends"), false},
                    MatchCase{QStringLiteral("Friend"), QStringLiteral("Friends"), false},
                    MatchCase{QStringLiteral("Friends"), QStringLiteral("Friend"), false},
                    MatchCase{QStringLiteral("Friends"), QStringLiteral("Friends "), false},
                    MatchCase{QStringLiteral("Old Friends"), QStringLiteral("Old Friends"), true},
                    MatchCase{QStringLiteral("Work, Club"), QStringLiteral("Family, Club"), true},
                    MatchCase{QStringLiteral("Work,Club"), QStringLiteral("Family"), false},
                    MatchCase{QStringLiteral("동창회"), QStringLiteral("회사, 동창회"), true},
                    MatchCase{QString(), QString(), true},
                    MatchCase{QString(), QStringLiteral("Work"), false},
                    MatchCase{QString(), QStringLiteral(" "), false},
                    MatchCase{QStringLiteral("Work"), QString(), false},
                    MatchCase{QStringLiteral("Work,"), QStringLiteral("Club,"), false},
                    MatchCase{u"Work,No Categories"_qs, u"No Categories, Club"_qs, false},
                    MatchCase{u"Work,No Categories"_qs, u"No Categories, Work"_qs, true},
                    MatchCase{u"Work,No Categories"_qs, QString(), false},
                    MatchCase{QStringLiteral(","), QString(), false}));

TEST(CategoryText, SplitsAtCommasAndSkipsLeadingBlanks) {
  EXPECT_EQ(SplitCategories(u"Work,  Old Friends ,,  , Club"),
            QStringList(
                {QStringLiteral("Work"), QStringLiteral("Old Friends "), QStringLiteral("Club")}));
  EXPECT_TRUE(SplitCategories(u"").isEmpty());
}

TEST(CategoryText, JoinsWithACommaAndABlank) {
  EXPECT_EQ(JoinCategories({QStringLiteral("Work"), QStringLiteral("Club")}),
            QStringLiteral("Work, Club"));
  EXPECT_EQ(JoinCategories({}), QString());
}

struct ChangeCase {
  QString Before;
  QString From;
  QString To;  // empty: it is removed
  QString After;
};

class CategoryTextChange : public testing::TestWithParam<ChangeCase> {};

TEST_P(CategoryTextChange, LeavesTheOtherNamesAsTheyAre) {
  const ChangeCase& change = GetParam();
  EXPECT_EQ(change.To.isEmpty() ? RemoveFromCategories(change.Before, change.From)
                                : RenameInCategories(change.Before, change.From, change.To),
            change.After);
}

INSTANTIATE_TEST_SUITE_P(
    Removed, CategoryTextChange,
    testing::Values(ChangeCase{u"Work"_qs, u"Work"_qs, {}, {}},
                    ChangeCase{u"Work, Club"_qs, u"Work"_qs, {}, u"Club"_qs},
                    ChangeCase{
                        u"Work,  Club ,Old Friends"_qs, u"Club "_qs, {}, u"Work,Old Friends"_qs},
                    ChangeCase{u"A,  B,C, D"_qs, u"C"_qs, {}, u"A,  B, D"_qs},
                    ChangeCase{u"Work,Club, Work"_qs, u"Work"_qs, {}, u"Club"_qs},
                    ChangeCase{u"Workers,work"_qs, u"Work"_qs, {}, u"Workers,work"_qs},
                    ChangeCase{{}, u"Work"_qs, {}, {}}));
INSTANTIATE_TEST_SUITE_P(
    Renamed, CategoryTextChange,
    testing::Values(ChangeCase{u"Work"_qs, u"Work"_qs, u"Job"_qs, u"Job"_qs},
                    ChangeCase{u"Club,  Work, A"_qs, u"Work"_qs, u"Job"_qs, u"Club,  Job, A"_qs},
                    ChangeCase{u"Job, Work, A"_qs, u"Work"_qs, u"Job"_qs, u"Job, A"_qs},
                    ChangeCase{u"Work,A, Work"_qs, u"Work"_qs, u"Job"_qs, u"Job,A"_qs},
                    ChangeCase{u"Workers"_qs, u"Work"_qs, u"Job"_qs, u"Workers"_qs}));

TEST(CategoryText, AListHoldsEachNameOnceAndOnlyWhatIsOneName) {
  EXPECT_EQ(ValidCategories({QStringLiteral("Work"), QString(), QStringLiteral("가족"),
                             QStringLiteral("A,B"), QStringLiteral(" Lead"), QStringLiteral("Work"),
                             QStringLiteral("No Categories"), QStringLiteral("Show All"),
                             QStringLiteral("work"), QStringLiteral("no categories"),
                             QStringLiteral("Trail "), QStringLiteral(" ")}),
            QStringList({QStringLiteral("Work"), QStringLiteral("가족"), QStringLiteral("work"),
                         QStringLiteral("no categories"), QStringLiteral("Trail ")}));
}

}  // namespace
}  // namespace quill
