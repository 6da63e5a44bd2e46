#include "store/RestrictionMatch.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

struct MatchCase {
  const char* Restriction;
  bool Satisfied;
};

class RestrictionMatch : public testing::TestWithParam<MatchCase> {};

TEST_P(RestrictionMatch, FollowsTheStoresComparison) {
  ContactRecord record;
  record[ContactField::FileAs] = QStringLiteral("Hill");
  record[ContactField::CompanyName] = QStringLiteral("Acme");
  record[ContactField::Categories] = QStringLiteral("Work, Friends");
  const auto node = ParseRestriction(QString::fromLatin1(GetParam().Restriction));
  ASSERT_TRUE(node);
  EXPECT_EQ(SatisfiesRestriction(record, *node), GetParam().Satisfied) << GetParam().Restriction;
}

INSTANTIATE_TEST_SUITE_P(
    Comparisons, RestrictionMatch,
    testing::Values(
        MatchCase{"[FileAs] = \"hILL\"", true}, MatchCase{"[FileAs] = \"Hil\"", false},
        MatchCase{"[FileAs] >= \"hill\"", true}, MatchCase{"[FileAs] >= \"HILM\"", false},
        MatchCase{"[FileAs] < \"hill\"", false}, MatchCase{"[FileAs] < \"HILM\"", true},
        MatchCase{"[CompanyName] = \"ACME\"", true}, MatchCase{"[CompanyName] = \"Hill\"", false},
        MatchCase{"[Categories] = \"Friends\"", true},
        MatchCase{"[Categories] = \"friends\"", false},
        MatchCase{"[Categories] = \"Golf,Work\"", true}, MatchCase{"[Categories] = \"\"", false},
        MatchCase{"[Categories] >= \"Work\"", true}, MatchCase{"[Categories] < \"work\"", true},
        MatchCase{"[Subject] >= \"\"", false}));

INSTANTIATE_TEST_SUITE_P(
    Sequences, RestrictionMatch,
    testing::Values(MatchCase{"[FileAs] >= \"G\" AND [FileAs] < \"M\"", true},
                    MatchCase{"[FileAs] >= \"A\" AND [FileAs] < \"G\"", false},
                    MatchCase{"[FileAs] >= \"Y\" OR [FileAs] < \"A\"", false},
                    MatchCase{"[FileAs] >= \"Y\" OR [FileAs] < \"I\"", true},
                    MatchCase{"([FileAs] >= \"Y\" OR [FileAs] < \"I\") AND [Categories] = \"Golf\"",
                              false}));

TEST(RestrictionMatchOfNothing, HoldsForEverythingOrNothing) {
  EXPECT_TRUE(SatisfiesRestriction({}, {.Kind = RestrictionKind::And}));
  EXPECT_FALSE(SatisfiesRestriction({}, {.Kind = RestrictionKind::Or}));
}

}  // namespace
}  // namespace quill
