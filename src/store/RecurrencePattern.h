// How an appointment recurs: a plain value that can hold whatever a store's file holds, sensible or
// not. What may be saved stands in AppointmentValidity.h, on which days it happens in
// RecurrenceDates.h.
//
//   Type                       what counts
//   0 daily                    Interval (days)
//   1 weekly                   Interval (weeks), DayOfWeekMask; weeks begin on Sunday
//   2 monthly                  Interval (months), DayOfMonth
//   3 monthly, nth weekday     Interval (months), Instance, DayOfWeekMask
//   5 yearly                   MonthOfYear, DayOfMonth
//   6 yearly, nth weekday      MonthOfYear, Instance, DayOfWeekMask
//
// A yearly pattern's interval is always 1: saving stores that. The other members are kept as they
// were put. With NoEndDate there is no end, whatever Occurrences and PatternEndDate hold; it
// changes neither. Otherwise the pattern ends after Occurrences when that is above 0, else with
// PatternEndDate.
#pragma once

#include <QDate>
#include <QTime>

namespace quill {

struct AppointmentItem;

enum class RecurrenceType : int {
  Daily = 0,
  Weekly = 1,
  Monthly = 2,
  MonthlyNth = 3,
  Yearly = 5,
  YearlyNth = 6,
};

struct RecurrencePattern {
  RecurrenceType Type = RecurrenceType::Weekly;  // the file may hold other numbers
  QTime StartTime{0, 0};
  QTime EndTime{0, 0};
  QDate PatternStartDate = {};
  int Duration = 0;           // minutes
  int Occurrences = 0;        // 0: not by number
  QDate PatternEndDate = {};  // invalid: none
  bool NoEndDate = true;
  int Interval = 1;       // every so many days, weeks or months
  int DayOfWeekMask = 0;  // a sum of Sunday 1, Monday 2, ... Saturday 64
  int DayOfMonth = 1;     // 1-31
  int Instance = 1;       // 1-5
  int MonthOfYear = 1;    // 1-12

  bool operator==(const RecurrencePattern&) const = default;
};

bool IsKnown(RecurrenceType type);
// Whether the pattern happens once a year, at most.
bool IsYearly(RecurrenceType type);

// The date's bit of a mask of weekdays; 0 for an invalid date.
int WeekdayBit(QDate date);
// Which week of its month the date is in, 1 to 5.
int WeekOfMonth(QDate date);

// The item's pattern, or the one that a fresh pattern starts with: weekly on the item's day,
// without an end. The item itself recurs as little as before.
RecurrencePattern PatternOf(const AppointmentItem& item);

// An end by date: there is no number of occurrences any more.
void PutPatternEndDate(RecurrencePattern& pattern, QDate date);
// An end by number: PatternEndDate becomes the date of the last occurrence, as the pattern stands
// now (see LastOccurrence).
void PutOccurrences(RecurrencePattern& pattern, int occurrences);

// The pattern as it is saved: Interval 1 when it is yearly, and the date of an end by number
// found anew, as the members that it follows from may have been put later.
RecurrencePattern Settled(RecurrencePattern pattern);

}  // namespace quill
