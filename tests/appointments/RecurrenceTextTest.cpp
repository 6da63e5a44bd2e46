#include "appointments/RecurrenceText.h"

#include <gtest/gtest.h>

#include <ostream>

#include "store/AutomationDate.h"

namespace quill {
namespace {

constexpr auto kOther = RecurrenceChoice::EditPattern;
constexpr auto kWeekdaysChoice = RecurrenceChoice::Weekdays;

// On the 15th of September 2004, the third Wednesday, unless it says otherwise.
struct TextCase {
  AppointmentInfo Info;
  const char16_t* Text;
  QDate Start = QDate(2004, 9, 15);
};

void PrintTo(const TextCase& row, std::ostream* out) {
  *out << QString::fromUtf16(row.Text).toStdString();
}

class StoredRecurrence : public testing::TestWithParam<TextCase> {};

TEST_P(StoredRecurrence, ReadsSo) {
  AppointmentInfo info = GetParam().Info;
  info.Start = MakeCalendarDate(GetParam().Start, QTime(10, 0));
  info.Recurring = true;
  EXPECT_EQ(RecurrenceText(info), QString::fromUtf16(GetParam().Text));
}

INSTANTIATE_TEST_SUITE_P(
    Daily, StoredRecurrence,
    testing::Values(TextCase{{.Choice = RecurrenceChoice::Everyday, .Type = 0}, u"Everyday"},
                    TextCase{{.Choice = kOther, .Type = 0, .Interval = 3}, u"Every 3 days"},
                    TextCase{{.Choice = kOther, .Type = 0, .DayMask = 62}, u"Everyday"}));
INSTANTIATE_TEST_SUITE_P(
    MondayToFriday, StoredRecurrence,
    testing::Values(
        TextCase{{.Choice = kWeekdaysChoice, .Type = 0, .DayMask = 62}, u"Every Weekdays(Mon-Fri)"},
        TextCase{{.Choice = kWeekdaysChoice, .Type = 1, .DayMask = 62}, u"Every Weekdays(Mon-Fri)"},
        TextCase{{.Choice = kWeekdaysChoice, .Type = 1, .DayMask = 62, .Interval = 0},
                 u"Every 0 Weekdays(Mon-Fri)"},
        TextCase{{.Choice = kOther, .Type = 1, .DayMask = 62}, u"Every Mon.,Tue.,Wed.,Thu.,Fri."}));
INSTANTIATE_TEST_SUITE_P(
    Weekly, StoredRecurrence,
    testing::Values(TextCase{{.Choice = RecurrenceChoice::EveryWeek, .Type = 1, .DayMask = 8},
                             u"Every Wed."},
                    TextCase{{.Choice = kOther, .Type = 1, .DayMask = 10, .Interval = 2},
                             u"Every 2 week(s) onMon.,Wed."},
                    TextCase{{.Choice = kOther, .Type = 1, .DayMask = 65}, u"Every Sun.,Sat."},
                    TextCase{{.Choice = kOther, .Type = 1, .DayMask = 127, .Interval = 4},
                             u"Every 4 week(s) onSun.,Mon.,Tue.,Wed.,Thu.,Fri.,Sat."},
                    TextCase{{.Choice = kOther, .Type = 1, .DayMask = 0}, u"Every"},
                    TextCase{{.Choice = kOther, .Type = 1, .DayMask = 128}, u"Every"},
                    TextCase{{.Choice = kOther, .Type = 1, .DayMask = 0, .Interval = 2},
                             u"Every 2 week(s) o"}));
INSTANTIATE_TEST_SUITE_P(
    Monthly, StoredRecurrence,
    testing::Values(TextCase{{.Choice = RecurrenceChoice::EveryMonth, .Type = 2, .DayOfMonth = 15},
                             u"Day 15 of every month"},
                    TextCase{{.Choice = kOther, .Type = 2, .Interval = 2, .DayOfMonth = 31},
                             u"Day 31 of every 2 months"}));
// The stored instance and mask say nothing.
INSTANTIATE_TEST_SUITE_P(
    MonthlyNth, StoredRecurrence,
    testing::Values(TextCase{{.Choice = RecurrenceChoice::EveryMonthNth, .Type = 3, .DayMask = 8},
                             u"The 3rd Wed. of every month"},
                    TextCase{
                        {.Choice = kOther, .Type = 3, .DayMask = 1, .Interval = 3, .Instance = 1},
                        u"The 3rd Wed. of every 3 months"},
                    TextCase{{.Choice = kOther, .Type = 3, .DayMask = 1, .Instance = 1},
                             u"The 5th Sun. of every month",
                             QDate(2004, 2, 29)}));
INSTANTIATE_TEST_SUITE_P(Yearly, StoredRecurrence,
                         testing::Values(TextCase{{.Choice = RecurrenceChoice::EveryYear,
                                                   .Type = 5,
                                                   .DayOfMonth = 3,
                                                   .MonthOfYear = 1},
                                                  u"Sep. 15 of every year"},
                                         TextCase{{.Choice = kOther, .Type = 5, .Interval = 4},
                                                  u"Feb. 29 of every year",
                                                  QDate(2004, 2, 29)}));
INSTANTIATE_TEST_SUITE_P(YearlyNth, StoredRecurrence,
                         testing::Values(TextCase{{.Choice = RecurrenceChoice::EveryYearNth,
                                                   .Type = 6,
                                                   .DayMask = 1,
                                                   .Instance = 5,
                                                   .MonthOfYear = 1},
                                                  u"The 3rd Wed. of every Sep."},
                                         TextCase{{.Choice = kOther, .Type = 6},
                                                  u"The 5th Mon. of every May.",
                                                  QDate(2004, 5, 31)}));
INSTANTIATE_TEST_SUITE_P(
    OfNoKnownType, StoredRecurrence,
    testing::Values(TextCase{{.Choice = kOther, .Type = 4}, u"By a pattern of its own"},
                    TextCase{{.Choice = kOther, .Type = 7}, u"By a pattern of its own"},
                    TextCase{{.Choice = kOther, .Type = -1}, u"By a pattern of its own"}));

TEST(RecurrenceText, WhatDoesNotRecurIsOnce) {
  AppointmentInfo info{.Type = 0};
  EXPECT_EQ(RecurrenceText(info), QStringLiteral("Once"));
}

}  // namespace
}  // namespace quill
