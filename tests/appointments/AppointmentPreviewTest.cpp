#include "appointments/AppointmentPreview.h"

#include <gtest/gtest.h>

#include <ostream>

#include "store/AutomationDate.h"

namespace quill {
namespace {

const QDate kDay(2004, 9, 15);  // a Wednesday
const QDate kNextDay(2004, 9, 16);

struct Span {
  QTime From;
  QDate LastDay;
  QTime To;
};

AppointmentItem ItemWith(const Span& span) {
  return {.Subject = QStringLiteral("(Kim) tea"),
          .Start = MakeCalendarDate(kDay, span.From),
          .End = MakeCalendarDate(span.LastDay, span.To)};
}

struct SingleCase {
  const char* Name;
  Span When;
  bool AllDay;
  QStringList Lines;
};

void PrintTo(const SingleCase& row, std::ostream* out) { *out << row.Name; }

class SingleAppointment : public testing::TestWithParam<SingleCase> {};

TEST_P(SingleAppointment, SaysWhenItIs) {
  AppointmentItem item = ItemWith(GetParam().When);
  item.AllDayEvent = GetParam().AllDay;
  EXPECT_EQ(PreviewOf(item).Lines, GetParam().Lines);
}

const QString kMorning = QStringLiteral("2004.09.15(Wed),AM 9:05");
INSTANTIATE_TEST_SUITE_P(
    Timed, SingleAppointment,
    testing::Values(SingleCase{"no length", {{9, 5}, kDay, {9, 5}}, false, {kMorning}},
                    SingleCase{"the same day",
                               {{9, 5}, kDay, {14, 30}},
                               false,
                               {kMorning, QStringLiteral("~ 2004.09.15(Wed),PM 2:30")}},
                    SingleCase{"the same time of the next day",
                               {{9, 5}, kNextDay, {9, 5}},
                               false,
                               {kMorning, QStringLiteral("~ 2004.09.16(Thu),AM 9:05")}},
                    SingleCase{"an end before the start",
                               {{9, 5}, kDay, {8, 0}},
                               false,
                               {kMorning, QStringLiteral("~ 2004.09.15(Wed),AM 8:00")}},
                    SingleCase{"midnight to noon",
                               {{0, 0}, kDay, {12, 0}},
                               false,
                               {QStringLiteral("2004.09.15(Wed),AM 12:00"),
                                QStringLiteral("~ 2004.09.15(Wed),PM 12:00")}}));
INSTANTIATE_TEST_SUITE_P(AllDay, SingleAppointment,
                         testing::Values(SingleCase{"one day",
                                                    {{0, 0}, kDay, {0, 0}},
                                                    true,
                                                    {QStringLiteral("2004.09.15(Wed)"),
                                                     QStringLiteral("All Day Event")}},
                                         SingleCase{"one day whatever its times",
                                                    {{9, 5}, kDay, {14, 30}},
                                                    true,
                                                    {QStringLiteral("2004.09.15(Wed)"),
                                                     QStringLiteral("All Day Event")}},
                                         SingleCase{
                                             "several days",
                                             {{0, 0}, kNextDay, {0, 0}},
                                             true,
                                             {QStringLiteral("2004.09.15(Wed) ~ 2004.09.16(Thu)"),
                                              QStringLiteral("All Day Event")}}));

// Weekly on Mondays and Wednesdays, every second week; the pattern's days are not the item's.
AppointmentItem RecurringItem(const Span& span) {
  AppointmentItem item = ItemWith(span);
  item.Recurrence = RecurrencePattern{.PatternStartDate = QDate(2004, 9, 20),
                                      .PatternEndDate = QDate(2005, 1, 31),
                                      .Interval = 2,
                                      .DayOfWeekMask = 10};
  return item;
}

TEST(RecurringPreview, BeginsWithThePatternInWords) {
  const AppointmentItem item = RecurringItem({{9, 5}, kDay, {9, 5}});
  EXPECT_EQ(PreviewOf(item).Lines,
            QStringList({QStringLiteral("Every 2 week(s) onMon.,Wed."),
                         QStringLiteral("from 2004.09.20"), QStringLiteral("at AM 9:05")}));
}

TEST(RecurringPreview, SpeaksOfThePatternsEndOnlyWhenItHasOne) {
  AppointmentItem item = RecurringItem({{9, 5}, kDay, {9, 5}});
  item.Recurrence->NoEndDate = false;
  EXPECT_EQ(PreviewOf(item).Lines[1], QStringLiteral("from 2004.09.20 until 2005.01.31"));
  item.Recurrence->PatternEndDate = {};
  EXPECT_EQ(PreviewOf(item).Lines[1], QStringLiteral("from 2004.09.20"));
}

struct LengthCase {
  Span When;
  const char16_t* Text;
};

void PrintTo(const LengthCase& row, std::ostream* out) {
  *out << QString::fromUtf16(row.Text).toStdString();
}

class RecurringLength : public testing::TestWithParam<LengthCase> {};

TEST_P(RecurringLength, IsInWholeHours) {
  EXPECT_EQ(PreviewOf(RecurringItem(GetParam().When)).Lines[2],
            QString::fromUtf16(GetParam().Text));
}

TEST_P(RecurringLength, GivesWayToAnAllDayEvent) {
  AppointmentItem item = RecurringItem(GetParam().When);
  item.AllDayEvent = true;
  EXPECT_EQ(PreviewOf(item).Lines[2], QStringLiteral("All Day Event"));
}

INSTANTIATE_TEST_SUITE_P(
    Spans, RecurringLength,
    testing::Values(LengthCase{{{14, 0}, kDay, {14, 0}}, u"at PM 2:00"},
                    LengthCase{{{14, 0}, kDay, {14, 59}}, u"at PM 2:00"},
                    LengthCase{{{14, 0}, kDay, {15, 0}}, u"at PM 2:00 for 1 hour(s)"},
                    LengthCase{{{14, 0}, kDay, {16, 59}}, u"at PM 2:00 for 2 hour(s)"},
                    LengthCase{{{14, 0}, kNextDay, {13, 0}}, u"at PM 2:00 for 23 hour(s)"},
                    LengthCase{{{14, 0}, kNextDay, {14, 0}}, u"at PM 2:00 for 24 hour(s)"},
                    LengthCase{{{14, 0}, kDay, {13, 30}}, u"at PM 2:00"},
                    LengthCase{{{14, 0}, kDay, {12, 30}}, u"at PM 2:00 for -1 hour(s)"}));

TEST(AppointmentPreview, HasTheStoredSubjectWhole) {
  AppointmentItem item = ItemWith({{9, 5}, kDay, {9, 5}});
  item.Subject = QStringLiteral("(김철수) 차\r\n마시기");
  EXPECT_EQ(PreviewOf(item).Subject, item.Subject);
}

}  // namespace
}  // namespace quill
