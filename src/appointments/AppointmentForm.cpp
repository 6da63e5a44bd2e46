#include "appointments/AppointmentForm.h"

#include <algorithm>
#include <limits>

#include "store/AutomationDate.h"

namespace quill {

namespace {

constexpr AlarmTime kNewAlarm = {12, AlarmUnit::Hours};
// Sums of LED 1, dialog 4, sound 8 and repeat 16.
constexpr int kSilentAlarm = 21;
constexpr int kSoundingAlarm = 29;
constexpr double kMillisecondsInDay = 86'400'000;

Moment MomentOf(const CalendarDate& date) { return {DayOf(date), TimeOfDay(date)}; }

CalendarDate DateOf(const Moment& moment) { return MakeCalendarDate(moment.Date, moment.Time); }

// Whole minutes. What a span in days lacks by rounding is not taken for a minute less.
int MinutesBetween(const CalendarDate& start, const CalendarDate& end) {
  constexpr double kMinutesInDay = 1440;
  constexpr double kRounding = 5.787037037037037e-6;
  constexpr double kMost = std::numeric_limits<int>::max();
  if (start.Year == 0 || end.Year == 0) return 0;
  const double days = static_cast<double>(MillisecondsBetween(start, end)) / kMillisecondsInDay;
  return static_cast<int>(std::clamp(days * kMinutesInDay + kRounding, -kMost, kMost));
}

QDate DayAfter(const Moment& start, qint64 milliseconds) {
  constexpr auto kDay = static_cast<qint64>(kMillisecondsInDay);
  const qint64 sinceMidnight = start.Time.msecsSinceStartOfDay() + milliseconds;
  const bool isBefore = sinceMidnight % kDay < 0;
  return start.Date.addDays((sinceMidnight / kDay) - (isBefore ? 1 : 0));
}

// It keeps the span of the appointment itself.
void TakePatternDay(const AppointmentItem& item, AppointmentForm& form) {
  const RecurrencePattern& pattern = *item.Recurrence;
  form.Start = {pattern.PatternStartDate, pattern.StartTime};
  form.End = {DayAfter(form.Start, MillisecondsBetween(item.Start, item.End)), pattern.EndTime};
}

void PutAlarm(const AppointmentForm& form, AppointmentItem& item) {
  item.ReminderSet = form.Alarm == Alarm::Yes;
  item.ReminderMinutesBeforeStart = item.ReminderSet ? MinutesOf(form.Before) : 0;
  if (!item.ReminderSet) return;
  const bool sounds = !form.Sound.isEmpty();
  item.ReminderSoundFile = sounds ? std::optional(form.Sound) : std::nullopt;
  item.ReminderOptions = sounds ? kSoundingAlarm : kSilentAlarm;
}

}  // namespace

AppointmentForm NewAppointmentForm(const QString& subject, const QDateTime& now) {
  const Moment start = {now.date(), {now.time().hour(), now.time().minute() >= 30 ? 30 : 0}};
  return {.Subject = subject, .Start = start, .End = start, .Before = kNewAlarm};
}

AppointmentForm FormOf(const AppointmentItem& item) {
  AppointmentForm form{.Subject = item.Subject,
                       .Start = MomentOf(item.Start),
                       .End = MomentOf(item.End),
                       .AllDay = item.AllDayEvent,
                       .Alarm = item.ReminderSet ? Alarm::Yes : Alarm::No,
                       .Before = AlarmTimeOf(item.ReminderMinutesBeforeStart),
                       .Sound = item.ReminderSoundFile.value_or(QString())};
  if (!item.Recurrence) return form;
  form.Recurrence = ChoiceOf(*item.Recurrence, form.Start.Date);
  TakePatternDay(item, form);
  return form;
}

void FollowStart(AppointmentForm& form) { form.End = std::max(form.Start, form.End); }

void PutForm(const AppointmentForm& form, AppointmentItem& item) {
  item.Subject = form.Subject;
  item.Location.clear();
  item.Categories.clear();
  item.Start = DateOf(form.Start);
  item.End = DateOf(form.End);
  item.Duration = MinutesBetween(item.Start, item.End);
  item.AllDayEvent = form.AllDay;
  item.Sensitivity = 0;
  item.BusyStatus = kBusy;
  PutAlarm(form, item);
}

}  // namespace quill
