// The two pages of the recurrence wizard as plain values: what their controls show of a pattern,
// and what they write into one. Instances, weekdays and months are places in their lists, from 0
// on; numbers are texts as they were typed.
#pragma once

#include <QDate>
#include <QStringList>

#include <array>

#include "store/RecurrencePattern.h"

namespace quill {

enum class RecurrenceKind { Daily, Weekly, Monthly, Yearly };
enum class DayRule { ByDay, ByWeekday };

using WeekDayToggles = std::array<bool, 7>;  // Sunday first

struct PatternEntries {
  RecurrenceKind Kind = RecurrenceKind::Daily;
  QString DailyInterval = {};
  QString WeeklyInterval = {};
  WeekDayToggles Days = {};
  DayRule Monthly = DayRule::ByDay;
  QString MonthDay = {};
  QString MonthDayInterval = {};
  int MonthInstance = 0;
  int MonthWeekday = 0;
  QString MonthWeekdayInterval = {};
  DayRule Yearly = DayRule::ByDay;
  int YearMonth = 0;
  QString YearDay = {};
  int YearInstance = 0;
  int YearWeekday = 0;
  int YearWeekdayMonth = 0;
};

enum class RangeEnd { Never, OnDate, AfterOccurrences };

struct RangeEntries {
  RangeEnd End = RangeEnd::Never;
  QDate Date = {};
  QString Occurrences = {};
};

// What the lists offer.
QStringList OfferedIntervals();
QStringList OfferedDays();
QStringList OfferedOccurrences();
QStringList InstanceNames();
QStringList WeekdayNames();
QStringList MonthNames();

// start: the appointment's first day. An unknown type is shown as a daily one. The instances are
// those of the start, whatever the pattern's is: intended. A weekday is the first one of the mask,
// the start's when it names none.
PatternEntries LoadPatternPage(const RecurrencePattern& pattern, QDate start);
// Writes what its kind needs and nothing else.
void WritePatternPage(const PatternEntries& entries, RecurrencePattern& pattern);

// What does not count begins with 61 days after the pattern's first day, and 10 times.
RangeEntries LoadRangePage(const RecurrencePattern& pattern, QDate start);
// After WritePatternPage: the date of the last of so many occurrences follows from what that wrote.
void WriteRangePage(const RangeEntries& entries, RecurrencePattern& pattern);

// Turns a day over. The last one that is on stays on: then the answer is LastDayStays.
enum class DayToggled { Done, LastDayStays };
DayToggled ToggleDay(WeekDayToggles& days, int day);

// The whole number that a text begins with, blanks aside; 0 when there is none. Beyond what an int
// holds it is the greatest or the least.
int NumberIn(QStringView text);

}  // namespace quill
