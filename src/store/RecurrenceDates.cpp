#include "store/RecurrenceDates.h"

#include <algorithm>
#include <array>
#include <limits>

namespace quill {

namespace {

constexpr int kDaysInWeek = 7;
constexpr int kMonthsInYear = 12;
constexpr int kLastInstance = 5;
constexpr int kEveryDay = 127;
constexpr int kMoreDaysThanThereAre = 4'000'000;  // in the years 1 to 9999

int DaysOfMask(const RecurrencePattern& pattern) { return pattern.DayOfWeekMask & kEveryDay; }

bool IsWithin(int value, int lowest, int highest) { return value >= lowest && value <= highest; }

// The reckoned dates below are nothing where they lie beyond kLastRecurrenceDate.

std::optional<QDate> AddDays(QDate date, qint64 days) {
  if (days > date.daysTo(kLastRecurrenceDate)) return std::nullopt;
  return date.addDays(days);
}

// The days of the mask as distances from Sunday, ascending.
struct WeekDays {
  std::array<int, kDaysInWeek> Distances{};
  int Count = 0;
};

WeekDays DaysFrom(int mask, int firstDistance) {
  WeekDays days;
  for (int distance = firstDistance; distance < kDaysInWeek; ++distance) {
    if (mask & (1 << distance)) days.Distances[static_cast<std::size_t>(days.Count++)] = distance;
  }
  return days;
}

std::optional<QDate> WeeklyDate(const RecurrencePattern& pattern, int number) {
  const int startDistance = pattern.PatternStartDate.dayOfWeek() % kDaysInWeek;
  const qint64 toSunday = -startDistance;
  const WeekDays first = DaysFrom(DaysOfMask(pattern), startDistance);
  const WeekDays whole = DaysFrom(DaysOfMask(pattern), 0);
  const auto at = [](const WeekDays& days, int index) {
    return days.Distances[static_cast<std::size_t>(index)];
  };
  int index = number - 1;
  if (index < first.Count) {
    return AddDays(pattern.PatternStartDate, toSunday + at(first, index));
  }
  index -= first.Count;
  const qint64 interval = std::min(pattern.Interval, kMoreDaysThanThereAre);
  const qint64 weeks = (index / whole.Count + 1) * interval;
  return AddDays(pattern.PatternStartDate,
                 toSunday + weeks * kDaysInWeek + at(whole, index % whole.Count));
}

QDate DayInMonth(QDate month, int day) {
  return {month.year(), month.month(), std::min(day, month.daysInMonth())};
}

// The days of a mask repeat every week, so the nth of them is found week by week: an instance of a
// mask with many days lies in the first week or two. From the end when it is the last one.
QDate InstanceInMonth(QDate month, const RecurrencePattern& pattern) {
  const bool last = pattern.Instance == kLastInstance;
  const int step = last ? -1 : 1;
  QDate date(month.year(), month.month(), last ? month.daysInMonth() : 1);
  int left = last ? 1 : pattern.Instance;
  while (!(DaysOfMask(pattern) & WeekdayBit(date)) || --left > 0) date = date.addDays(step);
  return date;
}

bool IsByWeekday(RecurrenceType type) {
  return type == RecurrenceType::MonthlyNth || type == RecurrenceType::YearlyNth;
}

// The pattern's one day in a month that is counted from the year 0.
QDate DateInMonth(const RecurrencePattern& pattern, qint64 month) {
  const QDate first(static_cast<int>(month / kMonthsInYear),
                    static_cast<int>(month % kMonthsInYear) + 1, 1);
  return IsByWeekday(pattern.Type) ? InstanceInMonth(first, pattern)
                                   : DayInMonth(first, pattern.DayOfMonth);
}

bool HasDayInMonth(const RecurrencePattern& pattern) {
  if (IsYearly(pattern.Type) && !IsWithin(pattern.MonthOfYear, 1, kMonthsInYear)) return false;
  if (!IsByWeekday(pattern.Type)) return IsWithin(pattern.DayOfMonth, 1, 31);
  return DaysOfMask(pattern) != 0 && IsWithin(pattern.Instance, 1, kLastInstance);
}

std::optional<QDate> MonthlyDate(const RecurrencePattern& pattern, int number) {
  const bool yearly = IsYearly(pattern.Type);
  const QDate start = pattern.PatternStartDate;
  const qint64 firstMonth =
      qint64{start.year()} * kMonthsInYear + (yearly ? pattern.MonthOfYear : start.month()) - 1;
  const qint64 step = yearly ? kMonthsInYear : pattern.Interval;
  const qint64 passed = DateInMonth(pattern, firstMonth) < start ? 1 : 0;
  const qint64 month = firstMonth + (number - 1 + passed) * step;
  if (month / kMonthsInYear > kLastRecurrenceDate.year()) return std::nullopt;
  return DateInMonth(pattern, month);
}

bool Repeats(const RecurrencePattern& pattern) {
  return pattern.PatternStartDate.isValid() && pattern.PatternStartDate.year() > 0 &&
         pattern.PatternStartDate <= kLastRecurrenceDate &&
         (IsYearly(pattern.Type) || pattern.Interval >= 1);
}

bool Happens(const RecurrencePattern& pattern) {
  if (!IsKnown(pattern.Type) || !Repeats(pattern)) return false;
  if (pattern.Type == RecurrenceType::Daily) return true;
  if (pattern.Type == RecurrenceType::Weekly) return DaysOfMask(pattern) != 0;
  return HasDayInMonth(pattern);
}

// Of a pattern that happens, counted from 1.
std::optional<QDate> ReckonDate(const RecurrencePattern& pattern, int number) {
  switch (pattern.Type) {
    case RecurrenceType::Daily:
      return AddDays(pattern.PatternStartDate, qint64{number - 1} * pattern.Interval);
    case RecurrenceType::Weekly:
      return WeeklyDate(pattern, number);
    default:
      return MonthlyDate(pattern, number);
  }
}

// The number of the first occurrence on a date or after it. Dates ascend with their numbers, so a
// few of them tell.
int NumberFrom(const RecurrencePattern& pattern, QDate date) {
  int low = 1;
  int high = kMoreDaysThanThereAre;
  while (low < high) {
    const int middle = low + (high - low) / 2;
    const auto reckoned = ReckonDate(pattern, middle);
    if (reckoned && *reckoned < date) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low;
}

bool EndsByNumber(const RecurrencePattern& pattern) {
  return !pattern.NoEndDate && pattern.Occurrences > 0;
}

QDate EndOf(const RecurrencePattern& pattern) {
  const bool byDate = !pattern.NoEndDate && pattern.Occurrences <= 0;
  return byDate && pattern.PatternEndDate.isValid() ? pattern.PatternEndDate : kLastRecurrenceDate;
}

}  // namespace

std::optional<QDate> OccurrenceDate(const RecurrencePattern& pattern, int number) {
  if (number < 1 || !Happens(pattern)) return std::nullopt;
  return ReckonDate(pattern, number).value_or(kLastRecurrenceDate);
}

std::vector<QDate> OccurrencesBetween(const RecurrencePattern& pattern, QDate first, QDate last) {
  std::vector<QDate> dates;
  if (!first.isValid() || !last.isValid() || !Happens(pattern)) return dates;
  const QDate end = std::min(last, EndOf(pattern));
  const int lastNumber =
      EndsByNumber(pattern) ? pattern.Occurrences : std::numeric_limits<int>::max();
  for (int number = NumberFrom(pattern, first); number <= lastNumber; ++number) {
    const auto date = ReckonDate(pattern, number);
    if (!date || *date > end) break;
    dates.push_back(*date);
  }
  return dates;
}

QDate LastOccurrence(const RecurrencePattern& pattern) {
  return OccurrenceDate(pattern, pattern.Occurrences).value_or(pattern.PatternStartDate);
}

}  // namespace quill
