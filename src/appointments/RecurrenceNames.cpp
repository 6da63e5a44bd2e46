#include "appointments/RecurrenceNames.h"

#include "store/RecurrencePattern.h"

namespace quill {

DayNames NamesOf(QDate day) {
  if (!day.isValid()) return {};
  const auto weekday = static_cast<std::size_t>(day.dayOfWeek() % 7);
  return {.Weekday = kWeekdayNames[weekday].toString(),
          .WeekdayAbbrev = kWeekdayAbbrevs[weekday].toString(),
          .Ordinal = kOrdinalNames[static_cast<std::size_t>(WeekOfMonth(day) - 1)].toString(),
          .MonthAbbrev = kMonthAbbrevs[static_cast<std::size_t>(day.month() - 1)].toString(),
          .Day = day.day()};
}

}  // namespace quill
