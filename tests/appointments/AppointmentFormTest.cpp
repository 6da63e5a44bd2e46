#include "appointments/AppointmentForm.h"

#include <gtest/gtest.h>

#include "store/AutomationDate.h"

namespace quill {
namespace {

const QDate kDay(2004, 2, 3);  // a Tuesday

Moment At(int hour, int minute = 0, int days = 0) {
  return {kDay.addDays(days), QTime(hour, minute)};
}

CalendarDate Stored(const Moment& moment) { return MakeCalendarDate(moment.Date, moment.Time); }

struct NowCase {
  QTime Now;
  QTime Start;
};

class NewAppointmentTime : public testing::TestWithParam<NowCase> {};

TEST_P(NewAppointmentTime, IsTheLastFullOrHalfHour) {
  const AppointmentForm form = NewAppointmentForm({}, QDateTime(kDay, GetParam().Now));
  EXPECT_EQ(form.Start, (Moment{kDay, GetParam().Start}));
  EXPECT_EQ(form.End, form.Start);
}

INSTANTIATE_TEST_SUITE_P(All, NewAppointmentTime,
                         testing::Values(NowCase{{10, 30, 59, 999}, {10, 30}},
                                         NowCase{{10, 29, 59}, {10, 0}},
                                         NowCase{{10, 47}, {10, 30}}, NowCase{{10, 12}, {10, 0}},
                                         NowCase{{10, 0}, {10, 0}}, NowCase{{0, 0}, {0, 0}},
                                         NowCase{{23, 59}, {23, 30}}));

TEST(NewAppointmentForm, BeginsOnceWithoutAnAlarmThatWouldBeTwelveHoursBefore) {
  const AppointmentForm form =
      NewAppointmentForm(QStringLiteral("(김철수)"), QDateTime(kDay, QTime(9, 0)));
  EXPECT_EQ(form, (AppointmentForm{.Subject = QStringLiteral("(김철수)"),
                                   .Start = At(9),
                                   .End = At(9),
                                   .Before = {12, AlarmUnit::Hours}}));
  EXPECT_EQ(form.Alarm, Alarm::No);
  EXPECT_EQ(form.Recurrence, RecurrenceChoice::Once);
}

TEST(FormOf, ShowsAStoredAppointment) {
  const AppointmentForm form = FormOf({.Subject = QStringLiteral("(Kim) tea"),
                                       .Start = Stored(At(9, 15)),
                                       .End = Stored(At(10, 45, 1)),
                                       .AllDayEvent = true,
                                       .ReminderSet = true,
                                       .ReminderSoundFile = QStringLiteral("Bell.wav"),
                                       .ReminderMinutesBeforeStart = 120});
  EXPECT_EQ(form, (AppointmentForm{.Subject = QStringLiteral("(Kim) tea"),
                                   .Start = At(9, 15),
                                   .End = At(10, 45, 1),
                                   .AllDay = true,
                                   .Alarm = Alarm::Yes,
                                   .Before = {2, AlarmUnit::Hours},
                                   .Sound = QStringLiteral("Bell.wav")}));
}

TEST(FormOf, KeepsSeconds) {
  AppointmentItem item;
  item.Start = MakeCalendarDate(kDay, QTime(9, 0, 31));
  EXPECT_EQ(FormOf(item).Start.Time, QTime(9, 0, 31));
}

// An appointment that recurs weekly from kDay on.
AppointmentItem Recurring(const Moment& start, const Moment& end) {
  AppointmentItem item{.Start = Stored(start), .End = Stored(end)};
  item.Recurrence = RecurrencePattern{.StartTime = start.Time,
                                      .EndTime = end.Time,
                                      .PatternStartDate = kDay,
                                      .DayOfWeekMask = WeekdayBit(start.Date)};
  return item;
}

TEST(FormOf, OneThatRecursStandsOnTheFirstDayOfItsPattern) {
  const AppointmentForm form = FormOf(Recurring(At(9, 0, 14), At(10, 30, 14)));
  EXPECT_EQ(form.Start, At(9));
  EXPECT_EQ(form.End, At(10, 30));
  EXPECT_EQ(form.Recurrence, RecurrenceChoice::EveryWeek);
}

TEST(FormOf, OneThatRecursTakesItsTimesFromThePattern) {
  AppointmentItem item = Recurring(At(9), At(10));
  item.Recurrence->StartTime = QTime(11, 0);
  item.Recurrence->EndTime = QTime(12, 0);
  EXPECT_EQ(FormOf(item).Start, At(11));
  EXPECT_EQ(FormOf(item).End, At(12));
}

TEST(FormOf, OneThatRecursForDaysKeepsItsSpan) {
  const AppointmentForm form = FormOf(Recurring(At(9, 0, 7), At(10, 0, 9)));
  EXPECT_EQ(form.Start, At(9));
  EXPECT_EQ(form.End, At(10, 0, 2));
}

TEST(FormOf, OneThatRecursOverMidnightEndsTheNextDay) {
  const AppointmentForm form = FormOf(Recurring(At(23, 0, 7), At(1, 0, 8)));
  EXPECT_EQ(form.Start, At(23));
  EXPECT_EQ(form.End, At(1, 0, 1));
}

TEST(FormOf, OneThatEndsBeforeItStartsIsShownSo) {
  const AppointmentForm form = FormOf(Recurring(At(1, 0, 7), At(23, 0, 6)));
  EXPECT_EQ(form.End, At(23, 0, -1));
}

TEST(FormOf, AnyOtherPatternIsOneToBeEdited) {
  AppointmentItem item = Recurring(At(9), At(10));
  item.Recurrence->Interval = 2;
  EXPECT_EQ(FormOf(item).Recurrence, RecurrenceChoice::EditPattern);
}

struct FollowCase {
  Moment Start;
  Moment End;
  Moment Followed;
};

class EndOfAppointment : public testing::TestWithParam<FollowCase> {};

TEST_P(EndOfAppointment, FollowsALaterStart) {
  AppointmentForm form{.Start = GetParam().Start, .End = GetParam().End};
  FollowStart(form);
  EXPECT_EQ(form.Start, GetParam().Start);
  EXPECT_EQ(form.End, GetParam().Followed);
}

INSTANTIATE_TEST_SUITE_P(All, EndOfAppointment,
                         testing::Values(FollowCase{At(9), At(10), At(10)},
                                         FollowCase{At(9), At(9), At(9)},
                                         FollowCase{At(11), At(10), At(11)},
                                         FollowCase{At(9, 0, 1), At(10), At(9, 0, 1)},
                                         FollowCase{At(11), At(10, 0, 1), At(10, 0, 1)}));

AppointmentForm Tea() {
  return {.Subject = QStringLiteral("(Kim) tea"),
          .Start = At(9),
          .End = At(10, 30),
          .Before = {2, AlarmUnit::Hours}};
}

TEST(PutForm, WritesWhatIsShownAndResetsWhatIsNot) {
  AppointmentItem item{.Location = QStringLiteral("here"),
                       .Categories = QStringLiteral("Friends"),
                       .Sensitivity = 2,
                       .BusyStatus = 0,
                       .BodyInk = "ink",
                       .Uid = QStringLiteral("uid"),
                       .CarriedLines = QStringLiteral("X:1\n")};
  AppointmentForm form = Tea();
  form.AllDay = true;
  PutForm(form, item);
  EXPECT_EQ(item, (AppointmentItem{.Subject = QStringLiteral("(Kim) tea"),
                                   .Start = Stored(At(9)),
                                   .End = Stored(At(10, 30)),
                                   .Duration = 90,
                                   .AllDayEvent = true,
                                   .BusyStatus = 2,
                                   .BodyInk = "ink",
                                   .Uid = QStringLiteral("uid"),
                                   .CarriedLines = QStringLiteral("X:1\n")}));
}

struct DurationCase {
  Moment Start;
  Moment End;
  int Minutes;
};

class DurationOfForm : public testing::TestWithParam<DurationCase> {};

TEST_P(DurationOfForm, IsInWholeMinutesTruncated) {
  AppointmentForm form = Tea();
  form.Start = GetParam().Start;
  form.End = GetParam().End;
  AppointmentItem item;
  PutForm(form, item);
  EXPECT_EQ(item.Duration, GetParam().Minutes);
}

INSTANTIATE_TEST_SUITE_P(All, DurationOfForm,
                         testing::Values(DurationCase{At(9), At(9), 0},
                                         DurationCase{At(9), At(9, 30), 30},
                                         DurationCase{At(0, 10), At(0, 39), 29},
                                         DurationCase{At(9), {kDay, QTime(9, 29, 59)}, 29},
                                         DurationCase{At(9), At(9, 0, 1), 1440},
                                         DurationCase{At(23, 59), At(0, 1, 1), 2}));

// No span that the clock can show is a minute short for being reckoned in days.
TEST(PutForm, AMinuteIsNeverLostByRounding) {
  AppointmentForm form = Tea();
  AppointmentItem item;
  for (int minutes = 0; minutes < 1440; ++minutes) {
    form.Start = At(0);
    form.End = {kDay, QTime(0, 0).addSecs(minutes * 60)};
    PutForm(form, item);
    ASSERT_EQ(item.Duration, minutes);
  }
}

TEST(PutForm, TheDurationOfLongAgoIsReckonedAsThatOfToday) {
  AppointmentForm form = Tea();
  form.Start = {QDate(1604, 5, 5), QTime(9, 0)};
  form.End = {QDate(1604, 5, 5), QTime(9, 30)};
  AppointmentItem item;
  PutForm(form, item);
  EXPECT_EQ(item.Duration, 30);
}

TEST(FormOf, WhatIsNoDateInTheStoreIsNoneInTheForm) {
  AppointmentItem item;
  item.Start = {.Year = 2004, .Month = 13, .Day = 40, .Hour = 30};
  item.Recurrence = RecurrencePattern{};
  EXPECT_FALSE(FormOf(item).Start.Date.isValid());
  EXPECT_FALSE(FormOf(item).End.Date.isValid());
  item.Recurrence.reset();
  EXPECT_FALSE(FormOf(item).Start.Date.isValid());
  EXPECT_FALSE(FormOf(item).Start.Time.isValid());
}

TEST(PutForm, WhatIsNoMomentHasNoDuration) {
  AppointmentItem item{.Duration = 5};
  PutForm({.Subject = QStringLiteral("x")}, item);
  EXPECT_EQ(item.Duration, 0);
}

TEST(PutForm, AnAlarmWithASoundHasAllItsOptions) {
  AppointmentForm form = Tea();
  form.Alarm = Alarm::Yes;
  form.Sound = QStringLiteral("Bell.wav");
  AppointmentItem item;
  PutForm(form, item);
  EXPECT_TRUE(item.ReminderSet);
  EXPECT_EQ(item.ReminderSoundFile, QStringLiteral("Bell.wav"));
  EXPECT_EQ(item.ReminderOptions, 29);
  EXPECT_EQ(item.ReminderMinutesBeforeStart, 120);
}

TEST(PutForm, AnAlarmWithoutASoundHasNoneAndNoOptionForIt) {
  AppointmentForm form = Tea();
  form.Alarm = Alarm::Yes;
  AppointmentItem item{.ReminderSoundFile = QStringLiteral("Bell.wav")};
  PutForm(form, item);
  EXPECT_EQ(item.ReminderSoundFile, std::nullopt);
  EXPECT_EQ(item.ReminderOptions, 21);
}

TEST(PutForm, WithoutAnAlarmTheMinutesAreNoneAndSoundAndOptionsStay) {
  AppointmentItem item{.ReminderSet = true,
                       .ReminderSoundFile = QStringLiteral("Bell.wav"),
                       .ReminderOptions = 29,
                       .ReminderMinutesBeforeStart = 60};
  AppointmentForm form = Tea();
  form.Sound = QStringLiteral("Other.wav");
  PutForm(form, item);
  EXPECT_FALSE(item.ReminderSet);
  EXPECT_EQ(item.ReminderMinutesBeforeStart, 0);
  EXPECT_EQ(item.ReminderSoundFile, QStringLiteral("Bell.wav"));
  EXPECT_EQ(item.ReminderOptions, 29);
}

TEST(PutForm, LeavesTheRecurrenceAlone) {
  AppointmentItem item = Recurring(At(9), At(10));
  const auto before = item.Recurrence;
  PutForm(Tea(), item);
  EXPECT_EQ(item.Recurrence, before);
}

}  // namespace
}  // namespace quill
