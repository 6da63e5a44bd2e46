#include "editor/AreaCode.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

const Settings kOn{
    .AreaCode = 1, .AreaCodeValue = QStringLiteral("02"), .AreaCodePrefix = QStringLiteral("02-")};

struct PageCase {
  RowSet Set;
  int First;  // of the rows that take a number; -1 when none does
  int Last;
};

class AreaCodeRows : public testing::TestWithParam<PageCase> {};

TEST_P(AreaCodeRows, OnlyRowsOfNumbersArePrefilledAndCleared) {
  const PageCase& page = GetParam();
  for (int row = -1; row <= kPageRowCount; ++row) {
    const bool isNumber = page.First >= 0 && row >= page.First && row <= page.Last;
    EXPECT_EQ(IsNumberRow(page.Set, row), isNumber) << row;
    EXPECT_EQ(ShouldPrefill(page.Set, row, {}, kOn), isNumber) << row;
    EXPECT_EQ(TextAfterEdit(page.Set, row, QStringLiteral("02-"), kOn),
              isNumber ? QString() : QStringLiteral("02-"))
        << row;
  }
}

INSTANTIATE_TEST_SUITE_P(Sets, AreaCodeRows,
                         testing::Values(PageCase{RowSet::Basic, 4, 7},
                                         PageCase{RowSet::Detail, 0, 3},
                                         PageCase{RowSet::NameParts, -1, -1},
                                         PageCase{RowSet::WorkAddress, -1, -1},
                                         PageCase{RowSet::HomeAddress, -1, -1}));

TEST(AreaCode, SwitchedOffItPrefillsNothingAndStillClearsThePrefix) {
  Settings off = kOn;
  off.AreaCode = 0;
  EXPECT_FALSE(ShouldPrefill(RowSet::Basic, 4, {}, off));
  EXPECT_EQ(TextAfterEdit(RowSet::Basic, 4, QStringLiteral("02-"), off), QString());
}

TEST(AreaCode, ARowThatHoldsANumberIsNeverChanged) {
  EXPECT_FALSE(ShouldPrefill(RowSet::Basic, 4, QStringLiteral("010-1"), kOn));
  EXPECT_FALSE(ShouldPrefill(RowSet::Basic, 4, QStringLiteral("02-"), kOn));
  EXPECT_EQ(TextAfterEdit(RowSet::Basic, 4, QStringLiteral("02-1"), kOn), QStringLiteral("02-1"));
}

TEST(AreaCode, WithoutACodeNothingIsPrefilled) {
  const Settings settings{.AreaCode = 1};
  EXPECT_FALSE(ShouldPrefill(RowSet::Detail, 0, {}, settings));
  EXPECT_EQ(TextAfterEdit(RowSet::Detail, 0, QStringLiteral("-"), settings), QStringLiteral("-"));
}

}  // namespace
}  // namespace quill
