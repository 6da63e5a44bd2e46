#include "store/RecurrencePattern.h"

#include "store/AppointmentItem.h"
#include "store/AutomationDate.h"
#include "store/RecurrenceDates.h"

namespace quill {

bool IsKnown(RecurrenceType type) {
  switch (type) {
    case RecurrenceType::Daily:
    case RecurrenceType::Weekly:
    case RecurrenceType::Monthly:
    case RecurrenceType::MonthlyNth:
    case RecurrenceType::Yearly:
    case RecurrenceType::YearlyNth:
      return true;
  }
  return false;
}

bool IsYearly(RecurrenceType type) {
  return type == RecurrenceType::Yearly || type == RecurrenceType::YearlyNth;
}

int WeekdayBit(QDate date) { return date.isValid() ? 1 << (date.dayOfWeek() % 7) : 0; }

int WeekOfMonth(QDate date) { return ((date.day() - 1) / 7) + 1; }

RecurrencePattern PatternOf(const AppointmentItem& item) {
  if (item.Recurrence) return *item.Recurrence;
  RecurrencePattern pattern;
  const QDate day = DayOf(item.Start);
  if (!day.isValid()) return pattern;
  pattern.PatternStartDate = day;
  pattern.StartTime = TimeOfDay(item.Start);
  pattern.EndTime = TimeOfDay(item.End);
  pattern.Duration = item.Duration;
  pattern.DayOfWeekMask = WeekdayBit(day);
  pattern.DayOfMonth = day.day();
  pattern.Instance = WeekOfMonth(day);
  pattern.MonthOfYear = day.month();
  return pattern;
}

void PutPatternEndDate(RecurrencePattern& pattern, QDate date) {
  pattern.PatternEndDate = date;
  pattern.Occurrences = 0;
}

void PutOccurrences(RecurrencePattern& pattern, int occurrences) {
  pattern.Occurrences = occurrences;
  pattern.PatternEndDate = LastOccurrence(pattern);
}

RecurrencePattern Settled(RecurrencePattern pattern) {
  if (IsYearly(pattern.Type)) pattern.Interval = 1;
  if (!pattern.NoEndDate && pattern.Occurrences > 0) {
    pattern.PatternEndDate = LastOccurrence(pattern);
  }
  return pattern;
}

}  // namespace quill
