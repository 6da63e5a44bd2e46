#include "appointments/RecurrenceText.h"

#include "appointments/RecurrenceNames.h"
#include "store/AutomationDate.h"

namespace quill {

namespace {

QString WeekdaysText(int interval) {
  if (interval == 1) return QStringLiteral("Every ") + kMondayToFridayText.toString();
  return QStringLiteral("Every %1 %2").arg(interval).arg(kMondayToFridayText);
}

QString DailyText(int interval) {
  if (interval == 1) return QStringLiteral("Everyday");
  return QStringLiteral("Every %1 days").arg(interval);
}

QString WeeklyText(int interval, int dayMask) {
  QString text = interval == 1 ? QStringLiteral("Every ")
                               : QStringLiteral("Every %1 week(s) on").arg(interval);
  for (std::size_t day = 0; day < kWeekdayAbbrevs.size(); ++day)
    if (dayMask & (1 << day)) text += kWeekdayAbbrevs[day].toString() + u',';
  text.chop(1);
  return text;
}

QString MonthPeriod(int interval) {
  if (interval == 1) return QStringLiteral("every month");
  return QStringLiteral("every %1 months").arg(interval);
}

}  // namespace

QString RecurrenceText(const AppointmentInfo& info) {
  if (!info.Recurring) return QStringLiteral("Once");
  const auto type = static_cast<RecurrenceType>(info.Type);
  const DayNames start = NamesOf(DayOf(info.Start));
  switch (type) {
    case RecurrenceType::Daily:
    case RecurrenceType::Weekly:
      if (info.Choice == RecurrenceChoice::Weekdays) return WeekdaysText(info.Interval);
      return type == RecurrenceType::Daily ? DailyText(info.Interval)
                                           : WeeklyText(info.Interval, info.DayMask);
    case RecurrenceType::Monthly:
      return QStringLiteral("Day %1 of %2").arg(info.DayOfMonth).arg(MonthPeriod(info.Interval));
    case RecurrenceType::MonthlyNth:
      return QStringLiteral("The %1 %2 of %3")
          .arg(start.Ordinal, start.WeekdayAbbrev, MonthPeriod(info.Interval));
    case RecurrenceType::Yearly:
      return QStringLiteral("%1 %2 of every year").arg(start.MonthAbbrev).arg(start.Day);
    case RecurrenceType::YearlyNth:
      return QStringLiteral("The %1 %2 of every %3")
          .arg(start.Ordinal, start.WeekdayAbbrev, start.MonthAbbrev);
  }
  return QStringLiteral("By a pattern of its own");
}

}  // namespace quill
