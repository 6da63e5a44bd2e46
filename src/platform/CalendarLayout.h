// One month of a calendar as painted rows: buttons for month and year, the heads of the weekdays,
// six weeks from Sunday on. Pure layout, in logical pixels of the calendar.
#pragma once

#include <QDate>
#include <QSize>

#include <optional>
#include <vector>

#include "platform/PaintedRow.h"

namespace quill {

// The days that can be chosen, both inclusive.
inline QDate FirstCalendarDate() { return {1900, 1, 1}; }
inline QDate LastCalendarDate() { return {2999, 12, 31}; }
// The nearest of these days.
QDate KeepInCalendar(QDate date);

// Keys of the rows that are no days. The others have the day's Julian day number.
inline constexpr int kCalendarTextKey = 0;
inline constexpr int kPreviousMonthKey = 1;
inline constexpr int kNextMonthKey = 2;
inline constexpr int kTenYearsBackKey = 3;
inline constexpr int kPreviousYearKey = 4;
inline constexpr int kNextYearKey = 5;
inline constexpr int kTenYearsOnKey = 6;

struct CalendarModel {
  QDate Current;  // valid and among the days; its month is the one that is shown
  QDate Today;
  int Pressed = -1;  // the key under the pen, -1 none
};

// The days of the months before and after fill the weeks up.
std::vector<PaintedRow> LayOutCalendar(const CalendarModel& model, QSize size);

// The day that a row with this key stands for, nothing for the others.
std::optional<QDate> DayOfCalendarKey(int key);
// Where a button's key leads to from this day; the day itself for other keys.
QDate DateAfterCalendarButton(QDate from, int key);
// Where one of Qt's keys leads to; nothing for keys that do not move.
std::optional<QDate> DateAfterCalendarKey(QDate from, int key, Qt::KeyboardModifiers modifiers);

}  // namespace quill
