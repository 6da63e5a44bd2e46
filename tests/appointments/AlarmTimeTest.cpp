#include "appointments/AlarmTime.h"

#include <gtest/gtest.h>

#include <limits>

namespace quill {
namespace {

struct MinutesCase {
  int Minutes;
  AlarmTime Shown;
};

class AlarmMinutes : public testing::TestWithParam<MinutesCase> {};

TEST_P(AlarmMinutes, AreShownInTheLargestUnitWithoutARest) {
  EXPECT_EQ(AlarmTimeOf(GetParam().Minutes), GetParam().Shown);
  EXPECT_EQ(MinutesOf(GetParam().Shown), GetParam().Minutes);
}

INSTANTIATE_TEST_SUITE_P(All, AlarmMinutes,
                         testing::Values(MinutesCase{0, {0, AlarmUnit::Minutes}},
                                         MinutesCase{1, {1, AlarmUnit::Minutes}},
                                         MinutesCase{59, {59, AlarmUnit::Minutes}},
                                         MinutesCase{60, {1, AlarmUnit::Hours}},
                                         MinutesCase{90, {90, AlarmUnit::Minutes}},
                                         MinutesCase{120, {2, AlarmUnit::Hours}},
                                         MinutesCase{720, {12, AlarmUnit::Hours}},
                                         MinutesCase{1439, {1439, AlarmUnit::Minutes}},
                                         MinutesCase{1440, {1, AlarmUnit::Days}},
                                         MinutesCase{1500, {25, AlarmUnit::Hours}},
                                         MinutesCase{2880, {2, AlarmUnit::Days}}));

TEST(AlarmTime, LessThanNoneIsNone) {
  EXPECT_EQ(AlarmTimeOf(-1440), (AlarmTime{0, AlarmUnit::Minutes}));
}

TEST(AlarmTime, MoreThanANumberHoldsIsTheMostItHolds) {
  constexpr int kMost = std::numeric_limits<int>::max();
  EXPECT_EQ(MinutesOf({kMost, AlarmUnit::Days}), kMost);
  EXPECT_EQ(MinutesOf({kMost, AlarmUnit::Minutes}), kMost);
}

}  // namespace
}  // namespace quill
