#include "store/RecurrencePattern.h"

#include <gtest/gtest.h>

#include "store/AppointmentItem.h"
#include "store/AutomationDate.h"

namespace quill {
namespace {

using enum RecurrenceType;

struct TypeCase {
  int Number;
  bool Known;
  bool Yearly;
};

class EveryType : public testing::TestWithParam<TypeCase> {};

TEST_P(EveryType, IsKnownOrNotAndYearlyOrNot) {
  const auto type = static_cast<RecurrenceType>(GetParam().Number);
  EXPECT_EQ(IsKnown(type), GetParam().Known);
  EXPECT_EQ(IsYearly(type), GetParam().Yearly);
}

INSTANTIATE_TEST_SUITE_P(Numbers, EveryType,
                         testing::Values(TypeCase{-1, false, false}, TypeCase{0, true, false},
                                         TypeCase{1, true, false}, TypeCase{2, true, false},
                                         TypeCase{3, true, false}, TypeCase{4, false, false},
                                         TypeCase{5, true, true}, TypeCase{6, true, true},
                                         TypeCase{7, false, false}));

TEST(RecurrencePattern, EveryWeekdayHasItsBit) {
  const QDate sunday(2004, 2, 1);
  for (int day = 0; day < 7; ++day) EXPECT_EQ(WeekdayBit(sunday.addDays(day)), 1 << day);
  EXPECT_EQ(WeekdayBit(QDate()), 0);
}

TEST(RecurrencePattern, AWeekOfTheMonthHasSevenDays) {
  for (int day = 1; day <= 31; ++day) {
    const int week = day <= 7 ? 1 : day <= 14 ? 2 : day <= 21 ? 3 : day <= 28 ? 4 : 5;
    EXPECT_EQ(WeekOfMonth(QDate(2004, 1, day)), week) << day;
  }
}

AppointmentItem TuesdayItem() {
  AppointmentItem item;
  item.Start = MakeCalendarDate(QDate(2004, 3, 30), QTime(10, 30, 15));
  item.End = MakeCalendarDate(QDate(2004, 3, 31), QTime(9, 0, 5));
  item.Duration = 1349;
  return item;
}

TEST(RecurrencePattern, AFreshOneIsWeeklyOnTheItemsDayWithoutAnEnd) {
  const AppointmentItem item = TuesdayItem();
  const RecurrencePattern expected{.Type = Weekly,
                                   .StartTime = QTime(10, 30, 15),
                                   .EndTime = QTime(9, 0, 5),
                                   .PatternStartDate = QDate(2004, 3, 30),
                                   .Duration = 1349,
                                   .Occurrences = 0,
                                   .PatternEndDate = QDate(),
                                   .NoEndDate = true,
                                   .Interval = 1,
                                   .DayOfWeekMask = 4,
                                   .DayOfMonth = 30,
                                   .Instance = 5,
                                   .MonthOfYear = 3};
  EXPECT_EQ(PatternOf(item), expected);
  EXPECT_FALSE(item.Recurrence);
}

TEST(RecurrencePattern, OfAnItemThatRecursIsItsOwn) {
  AppointmentItem item = TuesdayItem();
  item.Recurrence = RecurrencePattern{.Type = Daily, .Interval = 3};
  EXPECT_EQ(PatternOf(item), (RecurrencePattern{.Type = Daily, .Interval = 3}));
}

TEST(RecurrencePattern, AFreshOneOfAnItemWithoutAStartHasNoStartEither) {
  EXPECT_EQ(PatternOf(AppointmentItem()), RecurrencePattern());
  EXPECT_FALSE(RecurrencePattern().PatternStartDate.isValid());
}

RecurrencePattern EndingPattern() {
  return {.Type = Daily, .PatternStartDate = QDate(2004, 2, 1), .NoEndDate = false, .Interval = 2};
}

TEST(RecurrencePattern, AnEndDateTakesTheNumberOfOccurrencesAway) {
  RecurrencePattern pattern = EndingPattern();
  pattern.Occurrences = 10;
  PutPatternEndDate(pattern, QDate(2004, 9, 15));
  EXPECT_EQ(pattern.PatternEndDate, QDate(2004, 9, 15));
  EXPECT_EQ(pattern.Occurrences, 0);
  EXPECT_FALSE(pattern.NoEndDate);
}

TEST(RecurrencePattern, AnEndDateLeavesNoEndDateAsItIs) {
  RecurrencePattern pattern = EndingPattern();
  pattern.NoEndDate = true;
  PutPatternEndDate(pattern, QDate(2004, 9, 15));
  EXPECT_TRUE(pattern.NoEndDate);
}

TEST(RecurrencePattern, OccurrencesDeriveTheEndDate) {
  RecurrencePattern pattern = EndingPattern();
  PutOccurrences(pattern, 3);
  EXPECT_EQ(pattern.Occurrences, 3);
  EXPECT_EQ(pattern.PatternEndDate, QDate(2004, 2, 5));
}

TEST(RecurrencePattern, NoOccurrencesEndOnTheStartDate) {
  for (const int occurrences : {0, -3}) {
    RecurrencePattern pattern = EndingPattern();
    PutOccurrences(pattern, occurrences);
    EXPECT_EQ(pattern.Occurrences, occurrences);
    EXPECT_EQ(pattern.PatternEndDate, QDate(2004, 2, 1));
  }
}

TEST(RecurrencePattern, OneThatNeverHappensEndsOnTheStartDate) {
  RecurrencePattern pattern = EndingPattern();
  pattern.Type = Weekly;
  pattern.DayOfWeekMask = 128;
  PutOccurrences(pattern, 5);
  EXPECT_EQ(pattern.PatternEndDate, QDate(2004, 2, 1));
}

TEST(RecurrencePattern, SettlingDerivesTheEndFromWhatWasPutLater) {
  RecurrencePattern pattern = EndingPattern();
  PutOccurrences(pattern, 3);
  pattern.Interval = 10;
  pattern.PatternStartDate = QDate(2004, 3, 1);
  EXPECT_EQ(Settled(pattern).PatternEndDate, QDate(2004, 3, 21));
  EXPECT_EQ(Settled(pattern).Occurrences, 3);
  EXPECT_EQ(Settled(pattern).Interval, 10);
}

TEST(RecurrencePattern, SettlingLeavesAnEndByDate) {
  RecurrencePattern pattern = EndingPattern();
  PutPatternEndDate(pattern, QDate(2004, 9, 15));
  EXPECT_EQ(Settled(pattern), pattern);
}

TEST(RecurrencePattern, SettlingWithoutAnEndChangesNeitherNumberNorDate) {
  RecurrencePattern pattern = EndingPattern();
  pattern.NoEndDate = true;
  pattern.Occurrences = 10;
  pattern.PatternEndDate = QDate(2001, 1, 1);
  EXPECT_EQ(Settled(pattern), pattern);
}

TEST(RecurrencePattern, SettlingMakesAYearlyIntervalOne) {
  for (const RecurrenceType type : {Yearly, YearlyNth}) {
    EXPECT_EQ(Settled({.Type = type, .Interval = 7}).Interval, 1);
  }
  for (const RecurrenceType type : {Daily, Weekly, Monthly, MonthlyNth}) {
    EXPECT_EQ(Settled({.Type = type, .Interval = 7}).Interval, 7);
  }
}

}  // namespace
}  // namespace quill
