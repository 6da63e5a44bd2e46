#include "store/RecurrenceDates.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <limits>

namespace quill {
namespace {

using enum RecurrenceType;

constexpr int kHuge = std::numeric_limits<int>::max();

RecurrencePattern Starting(const char* start, RecurrencePattern pattern) {
  pattern.PatternStartDate = QDate::fromString(QString::fromLatin1(start), Qt::ISODate);
  return pattern;
}

RecurrencePattern OnDay(RecurrenceType type, int day, int month) {
  return {.Type = type, .DayOfMonth = day, .MonthOfYear = month};
}

RecurrencePattern OnInstance(RecurrenceType type, int instance, int mask, int month) {
  return {.Type = type, .DayOfWeekMask = mask, .Instance = instance, .MonthOfYear = month};
}

RecurrencePattern Every(int interval, RecurrencePattern pattern) {
  pattern.Interval = interval;
  return pattern;
}

RecurrencePattern WeeklyOn(int mask) { return {.Type = Weekly, .DayOfWeekMask = mask}; }

struct DatesCase {
  const char* Name;
  RecurrencePattern Pattern;
  const char* FirstDates;
};

class FirstDates : public testing::TestWithParam<DatesCase> {};

TEST_P(FirstDates, FollowFromThePattern) {
  const QStringList expected = QString::fromLatin1(GetParam().FirstDates).split(u' ');
  for (int number = 1; number <= expected.size(); ++number) {
    const auto date = OccurrenceDate(GetParam().Pattern, number);
    ASSERT_TRUE(date);
    EXPECT_EQ(date->toString(Qt::ISODate), expected[number - 1]) << number;
  }
}

// 2004-02-01 is a Sunday, 2004 a leap year.
INSTANTIATE_TEST_SUITE_P(
    Patterns, FirstDates,
    testing::Values(
        DatesCase{"EveryDay", Starting("2004-02-28", {.Type = Daily}),
                  "2004-02-28 2004-02-29 2004-03-01"},
        DatesCase{"EveryDayOutsideALeapYear", Starting("2003-02-28", {.Type = Daily}),
                  "2003-02-28 2003-03-01"},
        DatesCase{"EveryTenDays", Starting("2004-02-25", Every(10, {.Type = Daily})),
                  "2004-02-25 2004-03-06 2004-03-16"},
        DatesCase{"Every999Days", Starting("2004-02-25", Every(999, {.Type = Daily})),
                  "2004-02-25 2006-11-20 2009-08-15"},
        DatesCase{"OnTheStartsDay", Starting("2004-02-03", WeeklyOn(4)),
                  "2004-02-03 2004-02-10 2004-02-17"},
        DatesCase{"OnADayAfterTheStarts", Starting("2004-02-03", WeeklyOn(32)),
                  "2004-02-06 2004-02-13"},
        DatesCase{"OnADayBeforeTheStarts", Starting("2004-02-03", WeeklyOn(2)),
                  "2004-02-09 2004-02-16"},
        DatesCase{"OnWeekdaysFromASaturday", Starting("2004-02-07", WeeklyOn(62)),
                  "2004-02-09 2004-02-10 2004-02-11 2004-02-12 2004-02-13 2004-02-16"},
        DatesCase{"OnEveryWeekday", Starting("2004-02-05", WeeklyOn(127)),
                  "2004-02-05 2004-02-06 2004-02-07 2004-02-08"},
        DatesCase{"Every2WeeksOnMondayAndWednesday", Starting("2004-02-02", Every(2, WeeklyOn(10))),
                  "2004-02-02 2004-02-04 2004-02-16 2004-02-18 2004-03-01"},
        DatesCase{"Every2WeeksFromATuesday", Starting("2004-02-03", Every(2, WeeklyOn(10))),
                  "2004-02-04 2004-02-16 2004-02-18"},
        DatesCase{"Every2WeeksFromAThursday", Starting("2004-02-05", Every(2, WeeklyOn(10))),
                  "2004-02-16 2004-02-18 2004-03-01"},
        DatesCase{"Every2WeeksFromASunday", Starting("2004-02-01", Every(2, WeeklyOn(3))),
                  "2004-02-01 2004-02-02 2004-02-15 2004-02-16"},
        DatesCase{"Every99Weeks", Starting("2004-02-02", Every(99, WeeklyOn(2))),
                  "2004-02-02 2005-12-26"},
        DatesCase{"WithABitBeyondSaturday", Starting("2004-02-03", WeeklyOn(128 + 4)),
                  "2004-02-03 2004-02-10"},
        DatesCase{"Monthly", Starting("2004-02-15", OnDay(Monthly, 15, 1)),
                  "2004-02-15 2004-03-15 2004-04-15"},
        DatesCase{"MonthlyOnTheLast", Starting("2004-01-31", OnDay(Monthly, 31, 1)),
                  "2004-01-31 2004-02-29 2004-03-31 2004-04-30"},
        DatesCase{"MonthlyOnTheLastOutsideALeapYear", Starting("2003-01-31", OnDay(Monthly, 31, 1)),
                  "2003-01-31 2003-02-28"},
        DatesCase{"MonthlyOnADayThatIsOver", Starting("2004-11-20", OnDay(Monthly, 15, 1)),
                  "2004-12-15 2005-01-15"},
        DatesCase{"MonthlyOnADayToCome", Starting("2004-11-20", OnDay(Monthly, 25, 1)),
                  "2004-11-25 2004-12-25"},
        DatesCase{"Every5Months", Starting("2004-11-20", Every(5, OnDay(Monthly, 31, 1))),
                  "2004-11-30 2005-04-30 2005-09-30 2006-02-28"},
        DatesCase{"Every2MonthsOnADayThatIsOver",
                  Starting("2004-11-20", Every(2, OnDay(Monthly, 15, 1))), "2005-01-15 2005-03-15"},
        DatesCase{"OnTheSecondTuesday", Starting("2004-02-01", OnInstance(MonthlyNth, 2, 4, 1)),
                  "2004-02-10 2004-03-09 2004-04-13"},
        DatesCase{"OnTheSecondTuesdayThatIsOver",
                  Starting("2004-02-11", OnInstance(MonthlyNth, 2, 4, 1)), "2004-03-09 2004-04-13"},
        DatesCase{"OnTheFirstSunday", Starting("2004-02-01", OnInstance(MonthlyNth, 1, 1, 1)),
                  "2004-02-01 2004-03-07"},
        DatesCase{"OnTheFourthSaturday", Starting("2004-02-01", OnInstance(MonthlyNth, 4, 64, 1)),
                  "2004-02-28 2004-03-27"},
        DatesCase{"OnTheLastSunday", Starting("2004-02-01", OnInstance(MonthlyNth, 5, 1, 1)),
                  "2004-02-29 2004-03-28 2004-04-25 2004-05-30"},
        DatesCase{"OnTheLastFriday", Starting("2004-01-01", OnInstance(MonthlyNth, 5, 32, 1)),
                  "2004-01-30 2004-02-27 2004-03-26 2004-04-30"},
        DatesCase{"OnTheThirdWorkday", Starting("2004-02-01", OnInstance(MonthlyNth, 3, 62, 1)),
                  "2004-02-04 2004-03-03 2004-04-05"},
        DatesCase{"OnTheLastWorkday", Starting("2004-02-01", OnInstance(MonthlyNth, 5, 62, 1)),
                  "2004-02-27 2004-03-31"},
        DatesCase{"OnTheLastDay", Starting("2004-02-01", OnInstance(MonthlyNth, 5, 127, 1)),
                  "2004-02-29 2004-03-31 2004-04-30"},
        DatesCase{"OnTheFirstMondayEvery3Months",
                  Starting("2004-02-01", Every(3, OnInstance(MonthlyNth, 1, 2, 1))),
                  "2004-02-02 2004-05-03 2004-08-02"},
        DatesCase{"Yearly", Starting("2004-02-01", OnDay(Yearly, 15, 3)), "2004-03-15 2005-03-15"},
        DatesCase{"YearlyOnADayThatIsOver", Starting("2004-04-01", OnDay(Yearly, 15, 3)),
                  "2005-03-15 2006-03-15"},
        DatesCase{"YearlyOnALeapDay", Starting("2004-02-29", OnDay(Yearly, 29, 2)),
                  "2004-02-29 2005-02-28 2006-02-28 2007-02-28 2008-02-29"},
        DatesCase{"YearlyWhateverTheInterval",
                  Starting("2004-02-01", Every(4, OnDay(Yearly, 1, 2))), "2004-02-01 2005-02-01"},
        DatesCase{"YearlyWithAnIntervalOfNone",
                  Starting("2004-02-01", Every(0, OnDay(Yearly, 1, 2))), "2004-02-01 2005-02-01"},
        DatesCase{"YearlyInDecember", Starting("2004-12-31", OnDay(Yearly, 31, 12)),
                  "2004-12-31 2005-12-31"},
        DatesCase{"OnTheFirstSundayOfFebruary",
                  Starting("2004-02-01", OnInstance(YearlyNth, 1, 1, 2)), "2004-02-01 2005-02-06"},
        DatesCase{"OnTheLastThursdayOfNovember",
                  Starting("2004-12-01", OnInstance(YearlyNth, 5, 16, 11)),
                  "2005-11-24 2006-11-30"},
        DatesCase{"BeforeTheStoresFirstDay", Starting("1899-12-29", {.Type = Daily}),
                  "1899-12-29 1899-12-30 1899-12-31"}),
    [](const auto& row) { return std::string(row.param.Name); });

struct CountCase {
  const char* Name;
  RecurrencePattern Pattern;
  int Number;
  const char* Date;
};

class FarDate : public testing::TestWithParam<CountCase> {};

TEST_P(FarDate, IsReckonedAndNeverBeyondTheLastYear) {
  RecurrencePattern pattern = GetParam().Pattern;
  pattern.Occurrences = GetParam().Number;
  EXPECT_EQ(LastOccurrence(pattern).toString(Qt::ISODate), QString::fromLatin1(GetParam().Date));
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, FarDate,
    testing::Values(
        CountCase{"TenThousandDays", Starting("2004-02-01", {.Type = Daily}), 10001, "2031-06-19"},
        CountCase{"AThousandWeeks", Starting("2004-02-01", WeeklyOn(1)), 1001, "2023-04-02"},
        CountCase{"AThousandMonths", Starting("2004-01-31", OnDay(Monthly, 31, 1)), 1001,
                  "2087-05-31"},
        CountCase{"TheLastDayThereIs", Starting("9999-12-30", {.Type = Daily}), 2, "9999-12-31"},
        CountCase{"ADayTooFar", Starting("9999-12-30", {.Type = Daily}), 3, "9999-12-31"},
        CountCase{"TheLastMonthThereIs", Starting("9999-11-15", OnDay(Monthly, 15, 1)), 2,
                  "9999-12-15"},
        CountCase{"AMonthTooFar", Starting("9999-11-15", OnDay(Monthly, 15, 1)), 3, "9999-12-31"},
        CountCase{"AWeekTooFar", Starting("9999-12-30", WeeklyOn(1)), 1, "9999-12-31"},
        CountCase{"HugelyDaily", Starting("2004-02-01", Every(kHuge, {.Type = Daily})), kHuge,
                  "9999-12-31"},
        CountCase{"HugelyWeekly", Starting("2004-02-01", Every(kHuge, WeeklyOn(127))), kHuge,
                  "9999-12-31"},
        CountCase{"HugelyMonthly", Starting("2004-02-01", Every(kHuge, OnDay(Monthly, 1, 1))),
                  kHuge, "9999-12-31"},
        CountCase{"HugelyYearly", Starting("2004-02-01", OnInstance(YearlyNth, 5, 1, 12)), kHuge,
                  "9999-12-31"},
        CountCase{"AHugeIntervalOnce", Starting("2004-02-04", Every(kHuge, WeeklyOn(8))), 1,
                  "2004-02-04"}),
    [](const auto& row) { return std::string(row.param.Name); });

QString DatesText(const std::vector<QDate>& dates) {
  QStringList texts;
  for (const QDate date : dates) texts.append(date.toString(Qt::ISODate));
  return texts.join(u' ');
}

RecurrencePattern Times(int occurrences, RecurrencePattern pattern) {
  pattern.NoEndDate = false;
  pattern.Occurrences = occurrences;
  return pattern;
}

RecurrencePattern Until(const char* end, RecurrencePattern pattern) {
  pattern.NoEndDate = false;
  pattern.PatternEndDate = QDate::fromString(QString::fromLatin1(end), Qt::ISODate);
  return pattern;
}

RecurrencePattern WithoutEnd(RecurrencePattern pattern) {
  pattern.NoEndDate = true;
  return pattern;
}

const RecurrencePattern kDaily = Starting("2004-02-01", {.Type = Daily});
const RecurrencePattern kLastOfMonth = Starting("2004-01-31", OnDay(Monthly, 31, 1));

struct BetweenCase {
  const char* Name;
  RecurrencePattern Pattern;
  QDate First;
  QDate Last;
  const char* Dates;
};

class BetweenDates : public testing::TestWithParam<BetweenCase> {};

TEST_P(BetweenDates, AreTheOccurrencesOfBothDaysAndThoseBetween) {
  const BetweenCase& row = GetParam();
  EXPECT_EQ(DatesText(OccurrencesBetween(row.Pattern, row.First, row.Last)),
            QString::fromLatin1(row.Dates));
}

INSTANTIATE_TEST_SUITE_P(
    Patterns, BetweenDates,
    testing::Values(
        BetweenCase{"FromTheStart", kDaily, QDate(2004, 2, 1), QDate(2004, 2, 3),
                    "2004-02-01 2004-02-02 2004-02-03"},
        BetweenCase{"FromBeforeTheStart", kDaily, QDate(-4000, 1, 1), QDate(2004, 2, 2),
                    "2004-02-01 2004-02-02"},
        BetweenCase{"WhollyBeforeTheStart", kDaily, QDate(2003, 2, 1), QDate(2004, 1, 31), ""},
        BetweenCase{"OnOneDay", kDaily, QDate(2504, 2, 28), QDate(2504, 2, 28), "2504-02-28"},
        BetweenCase{"OnADayBetweenTwo", kLastOfMonth, QDate(2004, 3, 1), QDate(2004, 3, 30), ""},
        BetweenCase{"Backwards", kDaily, QDate(2004, 2, 3), QDate(2004, 2, 1), ""},
        BetweenCase{"FromNoDay", kDaily, QDate(), QDate(2004, 2, 1), ""},
        BetweenCase{"ToNoDay", kDaily, QDate(2004, 2, 1), QDate(), ""},
        BetweenCase{"AcrossALeapDay", kLastOfMonth, QDate(2008, 1, 31), QDate(2008, 3, 31),
                    "2008-01-31 2008-02-29 2008-03-31"},
        BetweenCase{"AMonthsFifthInstance", Starting("2004-02-01", OnInstance(MonthlyNth, 5, 1, 1)),
                    QDate(2004, 8, 1), QDate(2004, 9, 30), "2004-08-29 2004-09-26"},
        BetweenCase{"TheLastOfANumber", Times(3, kDaily), QDate(2004, 2, 2), QDate(2005, 2, 1),
                    "2004-02-02 2004-02-03"},
        BetweenCase{"BehindTheLastOfANumber", Times(3, kDaily), QDate(2004, 2, 4),
                    QDate(2005, 2, 1), ""},
        BetweenCase{"ANumberWinsOverADate", Times(3, Until("2004-02-02", kDaily)),
                    QDate(2004, 2, 2), QDate(2005, 2, 1), "2004-02-02 2004-02-03"},
        BetweenCase{"OnTheEndDateToo", Until("2004-02-02", kDaily), QDate(2004, 2, 1),
                    QDate(2005, 2, 1), "2004-02-01 2004-02-02"},
        BetweenCase{"TheEndDateWithANumberOfNone", Times(0, Until("2004-02-02", kDaily)),
                    QDate(2004, 2, 1), QDate(2005, 2, 1), "2004-02-01 2004-02-02"},
        BetweenCase{"BehindTheEndDate", Until("2004-02-02", kDaily), QDate(2004, 2, 3),
                    QDate(2005, 2, 1), ""},
        BetweenCase{"WithAnEndDateThatIsMissing", Times(0, kDaily), QDate(2004, 2, 9),
                    QDate(2004, 2, 10), "2004-02-09 2004-02-10"},
        BetweenCase{"WithoutAnEndTheNumberDoesNotCount", WithoutEnd(Times(3, kDaily)),
                    QDate(2004, 2, 9), QDate(2004, 2, 9), "2004-02-09"},
        BetweenCase{"WithoutAnEndTheEndDateDoesNotCount", WithoutEnd(Until("2004-02-02", kDaily)),
                    QDate(2004, 2, 9), QDate(2004, 2, 9), "2004-02-09"},
        BetweenCase{"TheLastDaysThereAre", Starting("0001-01-01", {.Type = Daily}),
                    QDate(9999, 12, 30), QDate(12000, 1, 1), "9999-12-30 9999-12-31"},
        BetweenCase{"NoDayInsteadOfOneTooFar", Starting("9999-12-30", WeeklyOn(1)),
                    QDate(9999, 12, 1), QDate(12000, 1, 1), ""},
        BetweenCase{"NoMonthInsteadOfOneTooFar", Starting("9999-11-15", OnDay(Monthly, 15, 1)),
                    QDate(9999, 12, 1), QDate(12000, 1, 1), "9999-12-15"},
        BetweenCase{"AllOfAHugeInterval", Starting("0001-01-01", Every(kHuge, WeeklyOn(127))),
                    QDate(1, 1, 1), QDate(9999, 12, 31),
                    "0001-01-01 0001-01-02 0001-01-03 0001-01-04 0001-01-05 0001-01-06"},
        BetweenCase{"AHugeNumber", Times(kHuge, Every(1'000'000, kDaily)), QDate(2004, 2, 2),
                    QDate(9999, 12, 31), "4741-12-29 7479-11-25"}),
    [](const auto& row) { return std::string(row.param.Name); });

class NeverHappens : public testing::TestWithParam<RecurrencePattern> {};

TEST_P(NeverHappens, AndEndsOnItsStartDate) {
  RecurrencePattern pattern = GetParam();
  pattern.Occurrences = 5;
  EXPECT_FALSE(OccurrenceDate(pattern, 1));
  EXPECT_FALSE(OccurrenceDate(pattern, 5));
  EXPECT_EQ(LastOccurrence(pattern), pattern.PatternStartDate);
}

RecurrencePattern WithInterval(RecurrenceType type, int interval) {
  return Starting("2004-02-01", {.Type = type, .Interval = interval, .DayOfWeekMask = 1});
}

INSTANTIATE_TEST_SUITE_P(
    Patterns, NeverHappens,
    testing::Values(Starting("2004-02-01", WeeklyOn(128)), Starting("2004-02-01", WeeklyOn(0)),
                    Starting("2004-02-01", OnInstance(MonthlyNth, 1, 128, 1)),
                    Starting("2004-02-01", OnInstance(MonthlyNth, 0, 1, 1)),
                    Starting("2004-02-01", OnInstance(MonthlyNth, 6, 1, 1)),
                    Starting("2004-02-01", OnInstance(YearlyNth, 1, 0, 1)),
                    Starting("2004-02-01", OnInstance(YearlyNth, 1, 1, 13)),
                    Starting("2004-02-01", OnDay(Monthly, 0, 1)),
                    Starting("2004-02-01", OnDay(Monthly, 32, 1)),
                    Starting("2004-02-01", OnDay(Yearly, 1, 0)), WithInterval(Daily, 0),
                    WithInterval(Daily, -1), WithInterval(Weekly, 0), WithInterval(Monthly, -5),
                    WithInterval(MonthlyNth, 0),
                    Starting("2004-02-01", {.Type = static_cast<RecurrenceType>(4)}),
                    RecurrencePattern{.Type = Daily}, Starting("-0044-03-15", {.Type = Daily}),
                    RecurrencePattern{.Type = Monthly, .PatternStartDate = QDate(-44, 3, 15)},
                    RecurrencePattern{.Type = Daily, .PatternStartDate = QDate(10000, 1, 1)}));

TEST_P(NeverHappens, BetweenAnyDates) {
  EXPECT_TRUE(OccurrencesBetween(GetParam(), QDate(-4000, 1, 1), QDate(2010, 1, 1)).empty());
}

TEST(RecurrenceDates, ANumberBelowOneNamesNoDate) {
  const RecurrencePattern pattern = Starting("2004-02-01", {.Type = Daily});
  EXPECT_FALSE(OccurrenceDate(pattern, 0));
  EXPECT_FALSE(OccurrenceDate(pattern, std::numeric_limits<int>::min()));
}

}  // namespace
}  // namespace quill
