// Dates as the store holds them: automation dates, a double that counts days since 1899-12-30 with
// the time of day as its fraction (before that day the fraction still counts forwards, so -1.25 is
// 1899-12-29 06:00). Times are local, to the millisecond.
#pragma once

#include <QDateTime>

#include <optional>

#include "store/ContactRecord.h"

namespace quill {

inline constexpr double kEmptyAutomationDate = 949998.0;  // 4501-01-01: the store's "no date"

// Nothing for a number that is no date of the years 100 to 9999.
std::optional<CalendarDate> ToCalendarDate(double automationDate);
// Year 0 gives the empty date; nothing for parts that make no date or time. The day of the week is
// not looked at.
std::optional<double> ToAutomationDate(const CalendarDate& date);

// The parts of a day and a time of that day; the empty date when one of them is none. The other way
// round each is invalid when the parts make none.
CalendarDate MakeCalendarDate(QDate date, QTime time);
QDate DayOf(const CalendarDate& date);
QTime TimeOfDay(const CalendarDate& date);

// From one to the other; negative when the other is before. Both have a day and a time.
qint64 MillisecondsBetween(const CalendarDate& from, const CalendarDate& to);

// A contact's date: outside the years 1900 to 2999 there is none, which covers the empty date.
CalendarDate ToContactDate(double automationDate);

}  // namespace quill
