// On which days a recurrence pattern happens.
//
// The first period (day, week, month, year) is the one that PatternStartDate lies in, and Interval
// counts periods from there; days of it before PatternStartDate do not count. A day of the month
// past the month's end falls on its last day. An instance is the nth day of the month among the
// days of the mask, 5 the last one. Bits of the mask above Saturday name no day.
//
// Dates are reckoned: nothing is walked through but the days of one month, so numbers of any size
// take the same time. No date is later than kLastRecurrenceDate.
#pragma once

#include <QDate>

#include <optional>
#include <vector>

#include "store/RecurrencePattern.h"

namespace quill {

inline const QDate kLastRecurrenceDate(9999, 12, 31);

// The date of an occurrence, counted from 1; nothing for a pattern that never happens (a mask
// without a day, an unknown type, numbers out of range) and for numbers below 1. One beyond
// kLastRecurrenceDate is given as that date.
std::optional<QDate> OccurrenceDate(const RecurrencePattern& pattern, int number);

// The dates from first to last, both included, on which the pattern happens, ascending: none for
// a pattern that never happens and for invalid dates. They end as the pattern does; one whose end
// date is missing goes on. What has gone by since the pattern's start costs nothing: the time taken
// is that of the dates returned.
std::vector<QDate> OccurrencesBetween(const RecurrencePattern& pattern, QDate first, QDate last);

// The date of the last one of Occurrences; PatternStartDate when there is none.
QDate LastOccurrence(const RecurrencePattern& pattern);

}  // namespace quill
