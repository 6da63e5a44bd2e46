// The nine quick choices of how an appointment recurs: their texts, which speak of the day it
// starts, the pattern each one writes, and which one a stored pattern is shown as.
#pragma once

#include <QDate>
#include <QStringList>

#include "store/AppointmentItem.h"

namespace quill {

// In the order of the list.
enum class RecurrenceChoice {
  Once,
  Everyday,
  EveryWeek,
  Weekdays,
  EveryMonth,
  EveryMonthNth,
  EveryYear,
  EveryYearNth,
  EditPattern,  // any other pattern
};

inline constexpr int kMondayToFriday = 62;  // as a mask of weekdays
inline constexpr int kDefaultOccurrences = 10;

// The texts of all nine; start is the appointment's first day.
QStringList RecurrenceChoiceTexts(QDate start);

// Writes the choice into the item. Once: it does not recur. EditPattern: it recurs as the pattern
// in hand says. Any other: the choice's pattern, without an end, from the item's start, end and
// duration; every member is written, whatever the type needs, but those of the end.
void PutRecurrence(AppointmentItem& item, RecurrenceChoice choice, RecurrencePattern pattern);

// The pattern begins on the item's first day and has its times and length; the rest stays.
void PutMoments(RecurrencePattern& pattern, const AppointmentItem& item);

// The pattern with which the wizard begins for an appointment that does not recur: weekly on the
// item's first day, without an end, and 10 times should it get one.
RecurrencePattern DefaultPattern(const AppointmentItem& item);

// What a stored pattern is shown as. Day of the month, instance and month are not looked at:
// intended.
RecurrenceChoice ChoiceOf(const RecurrencePattern& pattern, QDate start);
// Whether the choice is shown with the weekday of the start, whatever the pattern's mask is.
bool ShowsStartWeekday(RecurrenceChoice choice);

}  // namespace quill
