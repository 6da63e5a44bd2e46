#include "appointments/AppointmentInfo.h"

#include "store/AppointmentStore.h"
#include "store/AutomationDate.h"

namespace quill {

namespace {

void TakeReminder(const AppointmentItem& item, AppointmentInfo& info) {
  info.ReminderOn = item.ReminderSet;
  if (!item.ReminderSet) return;
  info.ReminderSoundFile = item.ReminderSoundFile.value_or(QString());
  info.ReminderMinutes = item.ReminderMinutesBeforeStart;
}

void TakePattern(const RecurrencePattern& pattern, QDate start, AppointmentInfo& info) {
  info.Recurring = true;
  info.Choice = ChoiceOf(pattern, start);
  info.Type = static_cast<int>(pattern.Type);
  info.DayMask = ShowsStartWeekday(info.Choice) ? WeekdayBit(start) : pattern.DayOfWeekMask;
  info.Interval = pattern.Interval;
  info.DayOfMonth = pattern.DayOfMonth;
  info.Instance = pattern.Instance;
  info.MonthOfYear = pattern.MonthOfYear;
}

void TakeSingleDay(QDate start, AppointmentInfo& info) {
  info.DayMask = WeekdayBit(start);
  info.DayOfMonth = start.day();
  info.Instance = (start.day() - 1) / 7;
  info.MonthOfYear = start.month();
}

}  // namespace

AppointmentInfo InfoOf(const AppointmentItem& item) {
  AppointmentInfo info{.Subject = item.Subject,
                       .Location = item.Location,
                       .Categories = item.Categories,
                       .Start = item.Start,
                       .End = item.End,
                       .Sensitive = item.Sensitivity != 0,
                       .AllDay = item.AllDayEvent,
                       .Oid = item.Id};
  TakeReminder(item, info);
  const QDate start = DayOf(item.Start);
  item.Recurrence ? TakePattern(*item.Recurrence, start, info) : TakeSingleDay(start, info);
  return info;
}

Oid LoadAppointmentInfo(Oid oid, AppointmentInfo& info) {
  const auto item = OpenAppointment(oid);
  if (!item) return 0;
  info = InfoOf(*item);
  return info.Oid;
}

}  // namespace quill
