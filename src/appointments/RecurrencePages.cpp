#include "appointments/RecurrencePages.h"

#include <algorithm>
#include <limits>

#include "appointments/RecurrenceChoice.h"
#include "appointments/RecurrenceNames.h"

namespace quill {

namespace {

constexpr int kDaysToDefaultEnd = 61;
constexpr int kMostOffered = 10;  // occurrences

constexpr std::array kIntervals = {1, 2, 3, 4, 5, 10, 15, 20};
constexpr std::array<QStringView, 5> kInstanceNames = {u"First", u"Second", u"Third", u"Fourth",
                                                       u"Fifth"};
constexpr std::array<QStringView, 12> kMonthNames = {
    u"January", u"February", u"March",     u"April",   u"May",      u"June",
    u"July",    u"August",   u"September", u"October", u"November", u"December"};

QStringList NumbersTo(int last) {
  QStringList numbers;
  for (int number = 1; number <= last; ++number) numbers.append(QString::number(number));
  return numbers;
}

template <class Names>
QStringList ListOf(const Names& names) {
  QStringList list;
  for (const QStringView name : names) list.append(name.toString());
  return list;
}

RecurrenceKind KindOf(RecurrenceType type) {
  switch (type) {
    case RecurrenceType::Daily:
      return RecurrenceKind::Daily;
    case RecurrenceType::Weekly:
      return RecurrenceKind::Weekly;
    case RecurrenceType::Monthly:
    case RecurrenceType::MonthlyNth:
      return RecurrenceKind::Monthly;
    case RecurrenceType::Yearly:
    case RecurrenceType::YearlyNth:
      return RecurrenceKind::Yearly;
  }
  return RecurrenceKind::Daily;
}

DayRule RuleOf(bool byWeekday) { return byWeekday ? DayRule::ByWeekday : DayRule::ByDay; }

bool IsOn(int mask, std::size_t day) { return (mask & (1 << day)) != 0; }

WeekDayToggles TogglesOf(int mask) {
  WeekDayToggles days{};
  for (std::size_t day = 0; day < days.size(); ++day) days[day] = IsOn(mask, day);
  return days;
}

int FirstWeekday(int mask, QDate start) {
  const WeekDayToggles days = TogglesOf(mask);
  const auto first = std::find(days.begin(), days.end(), true);
  return first == days.end() ? start.dayOfWeek() % 7 : static_cast<int>(first - days.begin());
}

// Intended: the day that is shown is stored as the next one, Saturday as a bit that names no day.
int WeeklyMaskOf(const WeekDayToggles& days) {
  int mask = 0;
  for (std::size_t day = 0; day < days.size(); ++day)
    if (days[day]) mask |= 1 << (day + 1);
  return mask;
}

void WriteMonthly(const PatternEntries& entries, RecurrencePattern& pattern) {
  if (entries.Monthly == DayRule::ByDay) {
    pattern.Type = RecurrenceType::Monthly;
    pattern.Interval = NumberIn(entries.MonthDayInterval);
    pattern.DayOfMonth = NumberIn(entries.MonthDay);
  } else {
    pattern.Type = RecurrenceType::MonthlyNth;
    pattern.Interval = NumberIn(entries.MonthWeekdayInterval);
    pattern.Instance = entries.MonthInstance + 1;
    pattern.DayOfWeekMask = 1 << entries.MonthWeekday;
  }
}

void WriteYearly(const PatternEntries& entries, RecurrencePattern& pattern) {
  if (entries.Yearly == DayRule::ByDay) {
    pattern.Type = RecurrenceType::Yearly;
    pattern.MonthOfYear = entries.YearMonth + 1;
    pattern.DayOfMonth = NumberIn(entries.YearDay);
  } else {
    pattern.Type = RecurrenceType::YearlyNth;
    pattern.MonthOfYear = entries.YearWeekdayMonth + 1;
    pattern.Instance = entries.YearInstance + 1;
    pattern.DayOfWeekMask = 1 << entries.YearWeekday;
  }
}

bool IsDigit(QChar letter) { return letter >= u'0' && letter <= u'9'; }

}  // namespace

QStringList OfferedIntervals() {
  QStringList intervals;
  for (const int interval : kIntervals) intervals.append(QString::number(interval));
  return intervals;
}

QStringList OfferedDays() { return NumbersTo(31); }

QStringList OfferedOccurrences() { return NumbersTo(kMostOffered); }

QStringList InstanceNames() { return ListOf(kInstanceNames); }

QStringList WeekdayNames() { return ListOf(kWeekdayNames); }

QStringList MonthNames() { return ListOf(kMonthNames); }

PatternEntries LoadPatternPage(const RecurrencePattern& pattern, QDate start) {
  const QString interval = QString::number(pattern.Interval);
  const QString day = QString::number(pattern.DayOfMonth);
  const int instance = WeekOfMonth(start) - 1;
  const int weekday = FirstWeekday(pattern.DayOfWeekMask, start);
  const int month = std::clamp(pattern.MonthOfYear, 1, static_cast<int>(kMonthNames.size())) - 1;
  return {.Kind = KindOf(pattern.Type),
          .DailyInterval = interval,
          .WeeklyInterval = interval,
          .Days = TogglesOf(pattern.DayOfWeekMask),
          .Monthly = RuleOf(pattern.Type == RecurrenceType::MonthlyNth),
          .MonthDay = day,
          .MonthDayInterval = interval,
          .MonthInstance = instance,
          .MonthWeekday = weekday,
          .MonthWeekdayInterval = interval,
          .Yearly = RuleOf(pattern.Type == RecurrenceType::YearlyNth),
          .YearMonth = month,
          .YearDay = day,
          .YearInstance = instance,
          .YearWeekday = weekday,
          .YearWeekdayMonth = month};
}

void WritePatternPage(const PatternEntries& entries, RecurrencePattern& pattern) {
  switch (entries.Kind) {
    case RecurrenceKind::Daily:
      pattern.Type = RecurrenceType::Daily;
      pattern.Interval = NumberIn(entries.DailyInterval);
      return;
    case RecurrenceKind::Weekly:
      pattern.Type = RecurrenceType::Weekly;
      pattern.Interval = NumberIn(entries.WeeklyInterval);
      pattern.DayOfWeekMask = WeeklyMaskOf(entries.Days);
      return;
    case RecurrenceKind::Monthly:
      return WriteMonthly(entries, pattern);
    case RecurrenceKind::Yearly:
      return WriteYearly(entries, pattern);
  }
}

RangeEntries LoadRangePage(const RecurrencePattern& pattern, QDate start) {
  const QDate first = pattern.PatternStartDate.isValid() ? pattern.PatternStartDate : start;
  RangeEntries entries{.Date = first.addDays(kDaysToDefaultEnd),
                       .Occurrences = QString::number(kDefaultOccurrences)};
  if (pattern.NoEndDate) return entries;
  if (pattern.Occurrences > 0) {
    entries.End = RangeEnd::AfterOccurrences;
    entries.Occurrences = QString::number(pattern.Occurrences);
  } else {
    entries.End = RangeEnd::OnDate;
    if (pattern.PatternEndDate.isValid()) entries.Date = pattern.PatternEndDate;
  }
  return entries;
}

void WriteRangePage(const RangeEntries& entries, RecurrencePattern& pattern) {
  pattern.NoEndDate = entries.End == RangeEnd::Never;
  if (entries.End == RangeEnd::OnDate) PutPatternEndDate(pattern, entries.Date);
  if (entries.End == RangeEnd::AfterOccurrences)
    PutOccurrences(pattern, NumberIn(entries.Occurrences));
}

DayToggled ToggleDay(WeekDayToggles& days, int day) {
  bool& isOn = days.at(static_cast<std::size_t>(day));
  isOn = !isOn;
  if (std::find(days.begin(), days.end(), true) != days.end()) return DayToggled::Done;
  isOn = true;
  return DayToggled::LastDayStays;
}

int NumberIn(QStringView text) {
  text = text.trimmed();
  const bool isNegative = text.startsWith(u'-');
  if (isNegative || text.startsWith(u'+')) text = text.mid(1);
  constexpr qint64 kLeast = std::numeric_limits<int>::min();
  qint64 number = 0;  // kept on the side below 0, which is the longer one
  for (const QChar letter : text) {
    if (!IsDigit(letter)) break;
    number = std::max(number * 10 - (letter.unicode() - u'0'), kLeast);
  }
  if (isNegative) return static_cast<int>(number);
  return static_cast<int>(std::min<qint64>(-number, std::numeric_limits<int>::max()));
}

}  // namespace quill
