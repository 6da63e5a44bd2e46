#include "appointments/RecurrenceChoice.h"

#include <array>

#include "appointments/RecurrenceNames.h"
#include "store/AutomationDate.h"

namespace quill {

namespace {

// The choices that write a pattern of their own, from Everyday on.
constexpr std::array kTypes = {RecurrenceType::Daily,      RecurrenceType::Weekly,
                               RecurrenceType::Weekly,     RecurrenceType::Monthly,
                               RecurrenceType::MonthlyNth, RecurrenceType::Yearly,
                               RecurrenceType::YearlyNth};

RecurrenceType TypeOf(RecurrenceChoice choice) {
  return kTypes[static_cast<std::size_t>(choice) - 1];
}

RecurrenceChoice PlainChoiceOf(RecurrenceType type) {
  switch (type) {
    case RecurrenceType::Daily:
      return RecurrenceChoice::Everyday;
    case RecurrenceType::Weekly:
      return RecurrenceChoice::EveryWeek;
    case RecurrenceType::Monthly:
      return RecurrenceChoice::EveryMonth;
    case RecurrenceType::MonthlyNth:
      return RecurrenceChoice::EveryMonthNth;
    case RecurrenceType::Yearly:
      return RecurrenceChoice::EveryYear;
    case RecurrenceType::YearlyNth:
      return RecurrenceChoice::EveryYearNth;
  }
  return RecurrenceChoice::EditPattern;
}

bool RunsMondayToFriday(const RecurrencePattern& pattern) {
  const bool byDayOrWeek =
      pattern.Type == RecurrenceType::Daily || pattern.Type == RecurrenceType::Weekly;
  return byDayOrWeek && pattern.DayOfWeekMask == kMondayToFriday;
}

}  // namespace

QStringList RecurrenceChoiceTexts(QDate start) {
  const DayNames names = NamesOf(start);
  return {QStringLiteral("Once"),
          QStringLiteral("Everyday"),
          QStringLiteral("Every ") + names.Weekday,
          kMondayToFridayText.toString(),
          QStringLiteral("Day %1 of every month").arg(names.Day),
          QStringLiteral("The %1 %2 of every month").arg(names.Ordinal, names.WeekdayAbbrev),
          QStringLiteral("%1 %2 of every year").arg(names.MonthAbbrev).arg(names.Day),
          QStringLiteral("The %1 %2 of every %3")
              .arg(names.Ordinal, names.WeekdayAbbrev, names.MonthAbbrev),
          QStringLiteral("<Edit Pattern...>")};
}

void PutRecurrence(AppointmentItem& item, RecurrenceChoice choice, RecurrencePattern pattern) {
  if (choice == RecurrenceChoice::Once) return item.Recurrence.reset();
  if (choice != RecurrenceChoice::EditPattern) {
    const QDate day = DayOf(item.Start);
    pattern.Type = TypeOf(choice);
    PutMoments(pattern, item);
    pattern.NoEndDate = true;
    pattern.Interval = 1;
    pattern.DayOfWeekMask =
        choice == RecurrenceChoice::Weekdays ? kMondayToFriday : WeekdayBit(day);
    pattern.DayOfMonth = day.day();
    pattern.Instance = WeekOfMonth(day);
    pattern.MonthOfYear = day.month();
  }
  item.Recurrence = pattern;
}

void PutMoments(RecurrencePattern& pattern, const AppointmentItem& item) {
  pattern.PatternStartDate = DayOf(item.Start);
  pattern.StartTime = TimeOfDay(item.Start);
  pattern.EndTime = TimeOfDay(item.End);
  pattern.Duration = item.Duration;
}

RecurrencePattern DefaultPattern(const AppointmentItem& item) {
  RecurrencePattern pattern = PatternOf(item);
  PutOccurrences(pattern, kDefaultOccurrences);
  return pattern;
}

bool ShowsStartWeekday(RecurrenceChoice choice) {
  return choice == RecurrenceChoice::Everyday || choice == RecurrenceChoice::EveryMonth ||
         choice == RecurrenceChoice::EveryYear;
}

RecurrenceChoice ChoiceOf(const RecurrencePattern& pattern, QDate start) {
  if (!pattern.NoEndDate || pattern.Interval > 1) return RecurrenceChoice::EditPattern;
  if (RunsMondayToFriday(pattern)) return RecurrenceChoice::Weekdays;
  const RecurrenceChoice choice = PlainChoiceOf(pattern.Type);
  const bool isOnDay = ShowsStartWeekday(choice) || pattern.DayOfWeekMask == WeekdayBit(start) ||
                       pattern.DayOfWeekMask == kMondayToFriday;
  return isOnDay ? choice : RecurrenceChoice::EditPattern;
}

}  // namespace quill
