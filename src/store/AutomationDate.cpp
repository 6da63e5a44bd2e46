#include "store/AutomationDate.h"

#include <cmath>

namespace quill {

namespace {

constexpr qint64 kJulianDayZero = 2415019;  // 1899-12-30
constexpr qint64 kDay = 86'400'000;         // milliseconds
constexpr auto kMillisecondsPerDay = static_cast<double>(kDay);
constexpr double kFirstDate = -657434.0;   // 0100-01-01
constexpr double kEndOfDates = 2958466.0;  // 10000-01-01
constexpr int kFirstContactYear = 1900;
constexpr int kLastContactYear = 2999;

}  // namespace

CalendarDate MakeCalendarDate(QDate date, QTime time) {
  const auto part = [](int value) { return static_cast<quint16>(value); };
  if (!date.isValid() || !time.isValid()) return {};
  return {.Year = part(date.year()),
          .Month = part(date.month()),
          .DayOfWeek = part(date.dayOfWeek() % 7),
          .Day = part(date.day()),
          .Hour = part(time.hour()),
          .Minute = part(time.minute()),
          .Second = part(time.second()),
          .Millisecond = part(time.msec())};
}

QDate DayOf(const CalendarDate& date) { return {date.Year, date.Month, date.Day}; }

QTime TimeOfDay(const CalendarDate& date) {
  return {date.Hour, date.Minute, date.Second, date.Millisecond};
}

std::optional<CalendarDate> ToCalendarDate(double automationDate) {
  if (!(automationDate > kFirstDate - 1 && automationDate < kEndOfDates)) return std::nullopt;
  double days = std::trunc(automationDate);
  qint64 milliseconds = std::llround(std::abs(automationDate - days) * kMillisecondsPerDay);
  if (milliseconds >= static_cast<qint64>(kMillisecondsPerDay)) {
    milliseconds = 0;
    days += 1;
  }
  const QDate date = QDate::fromJulianDay(kJulianDayZero + static_cast<qint64>(days));
  if (date.year() > 9999) return std::nullopt;
  return MakeCalendarDate(date, QTime::fromMSecsSinceStartOfDay(static_cast<int>(milliseconds)));
}

std::optional<double> ToAutomationDate(const CalendarDate& date) {
  if (date.Year == 0) return kEmptyAutomationDate;
  const QDate day = DayOf(date);
  const QTime time = TimeOfDay(date);
  if (!day.isValid() || !time.isValid() || date.Year < 100 || date.Year > 9999) {
    return std::nullopt;
  }
  const auto days = static_cast<double>(day.toJulianDay() - kJulianDayZero);
  const double fraction = time.msecsSinceStartOfDay() / kMillisecondsPerDay;
  return days < 0 ? days - fraction : days + fraction;
}

qint64 MillisecondsBetween(const CalendarDate& from, const CalendarDate& to) {
  return (DayOf(from).daysTo(DayOf(to)) * kDay) + TimeOfDay(from).msecsTo(TimeOfDay(to));
}

CalendarDate ToContactDate(double automationDate) {
  const CalendarDate date = ToCalendarDate(automationDate).value_or(CalendarDate{});
  const bool kept = date.Year >= kFirstContactYear && date.Year <= kLastContactYear;
  return kept ? date : CalendarDate{};
}

}  // namespace quill
