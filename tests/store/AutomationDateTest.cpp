#include "store/AutomationDate.h"

#include <gtest/gtest.h>

#include <limits>

namespace quill {
namespace {

struct DateCase {
  double Automation;
  CalendarDate Date;
};

class AutomationDateCase : public testing::TestWithParam<DateCase> {};

TEST_P(AutomationDateCase, BecomesTheDate) {
  EXPECT_EQ(ToCalendarDate(GetParam().Automation), GetParam().Date);
}

TEST_P(AutomationDateCase, ComesFromTheDate) {
  const auto automation = ToAutomationDate(GetParam().Date);
  ASSERT_TRUE(automation);
  EXPECT_DOUBLE_EQ(*automation, GetParam().Automation);
}

INSTANTIATE_TEST_SUITE_P(
    Dates, AutomationDateCase,
    testing::Values(
        DateCase{-657434.0, {100, 1, 5, 1, 0, 0, 0, 0}},
        DateCase{-1.25, {1899, 12, 5, 29, 6, 0, 0, 0}},
        DateCase{-1.0, {1899, 12, 5, 29, 0, 0, 0, 0}}, DateCase{0.0, {1899, 12, 6, 30, 0, 0, 0, 0}},
        DateCase{1.0, {1899, 12, 0, 31, 0, 0, 0, 0}}, DateCase{2.0, {1900, 1, 1, 1, 0, 0, 0, 0}},
        DateCase{60.0, {1900, 2, 3, 28, 0, 0, 0, 0}}, DateCase{61.0, {1900, 3, 4, 1, 0, 0, 0, 0}},
        DateCase{36585.0, {2000, 2, 2, 29, 0, 0, 0, 0}},
        DateCase{38245.395833333336, {2004, 9, 3, 15, 9, 30, 0, 0}},
        DateCase{38245.99999998843, {2004, 9, 3, 15, 23, 59, 59, 999}},
        DateCase{401768.0, {2999, 12, 2, 31, 0, 0, 0, 0}},
        DateCase{2958465.0, {9999, 12, 5, 31, 0, 0, 0, 0}}));

TEST(AutomationDate, EveryMillisecondTenSecondsApartSurvives) {
  CalendarDate date{.Year = 2004, .Month = 2, .DayOfWeek = 0, .Day = 29};
  for (int second = 0; second < 24 * 3600; second += 10) {
    date.Hour = static_cast<quint16>(second / 3600);
    date.Minute = static_cast<quint16>(second / 60 % 60);
    date.Second = static_cast<quint16>(second % 60);
    date.Millisecond = static_cast<quint16>(second / 10 % 1000);
    ASSERT_EQ(ToCalendarDate(*ToAutomationDate(date)), date) << second;
  }
}

TEST(AutomationDate, APieceOfAMillisecondBeforeMidnightIsTheNextDay) {
  EXPECT_EQ(ToCalendarDate(38245.9999999999), (CalendarDate{2004, 9, 4, 16, 0, 0, 0, 0}));
}

TEST(AutomationDate, NoDateIsTheEmptyDate) {
  EXPECT_EQ(ToAutomationDate(CalendarDate{}), 949998.0);
  EXPECT_EQ(ToAutomationDate(CalendarDate{.Year = 0, .Month = 5, .Day = 6}), 949998.0);
  EXPECT_EQ(ToCalendarDate(949998.0), (CalendarDate{4501, 1, 6, 1, 0, 0, 0, 0}));
}

class NoAutomationDate : public testing::TestWithParam<double> {};

TEST_P(NoAutomationDate, IsNoDate) {
  EXPECT_FALSE(ToCalendarDate(GetParam()));
  EXPECT_EQ(ToContactDate(GetParam()), CalendarDate{});
}

INSTANTIATE_TEST_SUITE_P(Numbers, NoAutomationDate,
                         testing::Values(-657435.0, 2958466.0, 2958465.9999999999, 1e300, -1e300,
                                         std::numeric_limits<double>::infinity(),
                                         -std::numeric_limits<double>::infinity(),
                                         std::numeric_limits<double>::quiet_NaN()));

class NoCalendarDate : public testing::TestWithParam<CalendarDate> {};

TEST_P(NoCalendarDate, HasNoNumber) { EXPECT_FALSE(ToAutomationDate(GetParam())); }

INSTANTIATE_TEST_SUITE_P(Parts, NoCalendarDate,
                         testing::Values(CalendarDate{2004, 0, 0, 1, 0, 0, 0, 0},
                                         CalendarDate{2004, 13, 0, 1, 0, 0, 0, 0},
                                         CalendarDate{2004, 1, 0, 0, 0, 0, 0, 0},
                                         CalendarDate{2003, 2, 0, 29, 0, 0, 0, 0},
                                         CalendarDate{2004, 1, 0, 1, 24, 0, 0, 0},
                                         CalendarDate{2004, 1, 0, 1, 0, 60, 0, 0},
                                         CalendarDate{2004, 1, 0, 1, 0, 0, 60, 0},
                                         CalendarDate{2004, 1, 0, 1, 0, 0, 0, 1000},
                                         CalendarDate{99, 1, 0, 1, 0, 0, 0, 0},
                                         CalendarDate{10000, 1, 0, 1, 0, 0, 0, 0}));

TEST(AutomationDate, TheDayOfTheWeekIsNotLookedAt) {
  EXPECT_EQ(ToAutomationDate({2000, 2, 6, 29, 0, 0, 0, 0}), 36585.0);
}

struct WindowCase {
  double Automation;
  int Year;
};

class ContactDateWindow : public testing::TestWithParam<WindowCase> {};

TEST_P(ContactDateWindow, KeepsTheYears1900To2999) {
  EXPECT_EQ(ToContactDate(GetParam().Automation).Year, GetParam().Year);
}

INSTANTIATE_TEST_SUITE_P(Edges, ContactDateWindow,
                         testing::Values(WindowCase{0.0, 0}, WindowCase{1.99999, 0},
                                         WindowCase{2.0, 1900}, WindowCase{401768.0, 2999},
                                         WindowCase{401768.999, 2999}, WindowCase{401769.0, 0},
                                         WindowCase{949998.0, 0}, WindowCase{-5.0, 0}));

TEST(CalendarDate, IsMadeOfADayAndATimeAndGivesThemBack) {
  const CalendarDate date = MakeCalendarDate(QDate(2004, 2, 1), QTime(10, 30, 5, 125));
  EXPECT_EQ(date, (CalendarDate{2004, 2, 0, 1, 10, 30, 5, 125}));
  EXPECT_EQ(MakeCalendarDate(QDate(2004, 2, 7), QTime(0, 0)).DayOfWeek, 6);
  EXPECT_EQ(DayOf(date), QDate(2004, 2, 1));
  EXPECT_EQ(TimeOfDay(date), QTime(10, 30, 5, 125));
}

TEST(CalendarDate, OfWhatIsNoneIsEmpty) {
  EXPECT_EQ(MakeCalendarDate(QDate(), QTime(10, 0)), CalendarDate());
  EXPECT_EQ(MakeCalendarDate(QDate(2004, 2, 1), QTime()), CalendarDate());
  EXPECT_FALSE(DayOf({}).isValid());
  EXPECT_FALSE(TimeOfDay({.Hour = 24}).isValid());
}

}  // namespace
}  // namespace quill
