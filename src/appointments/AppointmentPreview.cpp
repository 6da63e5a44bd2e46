#include "appointments/AppointmentPreview.h"

#include "appointments/AppointmentInfo.h"
#include "appointments/RecurrenceText.h"
#include "platform/DatePictures.h"
#include "store/AutomationDate.h"

namespace quill {

namespace {

constexpr QStringView kAllDay = u"All Day Event";
constexpr qint64 kHour = 3'600'000;  // milliseconds

QString TimeText(const CalendarDate& moment) {
  return FormatTime(TimeOfDay(moment), kHalfOfDayTimePicture);
}

QString DayText(const CalendarDate& moment) {
  return FormatDate(DayOf(moment), kWeekdayDatePicture);
}

QString MomentText(const CalendarDate& moment) { return DayText(moment) + u',' + TimeText(moment); }

bool IsSameDay(const AppointmentItem& item) { return DayOf(item.Start) == DayOf(item.End); }

QStringList AllDayLines(const AppointmentItem& item) {
  QString days = DayText(item.Start);
  if (!IsSameDay(item)) days += QStringLiteral(" ~ ") + DayText(item.End);
  return {days, kAllDay.toString()};
}

QStringList TimedLines(const AppointmentItem& item) {
  QStringList lines{MomentText(item.Start)};
  const bool hasEnd = !IsSameDay(item) || TimeOfDay(item.Start) != TimeOfDay(item.End);
  if (hasEnd) lines.append(QStringLiteral("~ ") + MomentText(item.End));
  return lines;
}

QString RangeText(const RecurrencePattern& pattern) {
  const QString first = FormatDate(pattern.PatternStartDate, kDatePicture);
  const QString last =
      pattern.NoEndDate ? QString() : FormatDate(pattern.PatternEndDate, kDatePicture);
  const QString from = QStringLiteral("from ") + first;
  return last.isEmpty() ? from : from + QStringLiteral(" until ") + last;
}

qint64 WholeHours(const AppointmentItem& item) {
  return MillisecondsBetween(item.Start, item.End) / kHour;
}

QString LengthText(const AppointmentItem& item) {
  if (item.AllDayEvent) return kAllDay.toString();
  const QString at = QStringLiteral("at ") + TimeText(item.Start);
  const qint64 hours = WholeHours(item);
  return hours == 0 ? at : at + QStringLiteral(" for %1 hour(s)").arg(hours);
}

}  // namespace

AppointmentPreview PreviewOf(const AppointmentItem& item) {
  AppointmentPreview preview{.Subject = item.Subject};
  if (item.Recurrence)
    preview.Lines = {RecurrenceText(InfoOf(item)), RangeText(*item.Recurrence), LengthText(item)};
  else
    preview.Lines = item.AllDayEvent ? AllDayLines(item) : TimedLines(item);
  return preview;
}

}  // namespace quill
