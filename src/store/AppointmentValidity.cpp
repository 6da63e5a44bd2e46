#include "store/AppointmentValidity.h"

#include <array>
#include <utility>

#include "store/AutomationDate.h"

namespace quill {

namespace {

using enum RecurrenceType;

template <typename... Types>
constexpr unsigned Those(Types... types) {
  return ((1U << static_cast<unsigned>(types)) | ...);
}

// A range that a member has to be in for patterns of some types.
struct MemberRange {
  int RecurrencePattern::*Member;
  int Lowest;
  int Highest;
  unsigned Types;
  QStringView Reason;
};

constexpr std::array<MemberRange, 7> kRanges{{
    {&RecurrencePattern::Interval, 1, 999, Those(Daily), u"the interval is out of range"},
    {&RecurrencePattern::Interval, 1, 99, Those(Weekly, Monthly, MonthlyNth),
     u"the interval is out of range"},
    {&RecurrencePattern::DayOfMonth, 1, 31, Those(Monthly, Yearly),
     u"the day of the month is out of range"},
    {&RecurrencePattern::MonthOfYear, 1, 12, Those(Yearly, YearlyNth),
     u"the month is out of range"},
    {&RecurrencePattern::Instance, 1, 5, Those(MonthlyNth, YearlyNth),
     u"the instance is out of range"},
    {&RecurrencePattern::DayOfWeekMask, 1, 255, Those(Weekly), u"the mask is out of range"},
    {&RecurrencePattern::DayOfWeekMask, 1, 127, Those(MonthlyNth, YearlyNth),
     u"the mask is out of range"},
}};

bool IsMissed(const MemberRange& range, const RecurrencePattern& pattern) {
  const int value = pattern.*range.Member;
  return (range.Types & Those(pattern.Type)) != 0 &&
         (value < range.Lowest || value > range.Highest);
}

bool EndsByDate(const RecurrencePattern& pattern) {
  return !pattern.NoEndDate && pattern.Occurrences <= 0;
}

// The date that stands for none would come back as none.
bool IsDate(const CalendarDate& date) {
  return ToAutomationDate(date).value_or(kEmptyAutomationDate) != kEmptyAutomationDate;
}

bool IsDate(QDate date) { return IsDate(MakeCalendarDate(date, QTime(0, 0))); }

// Automation dates themselves are no measure: before 1899-12-30 they are not in the order of time.
bool IsEarlier(const CalendarDate& a, const CalendarDate& b) {
  return std::pair(DayOf(a), TimeOfDay(a)) < std::pair(DayOf(b), TimeOfDay(b));
}

}  // namespace

std::optional<QString> WhyNotSavable(const RecurrencePattern& pattern) {
  if (!IsKnown(pattern.Type)) return QStringLiteral("the recurrence has an unknown type");
  if (!IsDate(pattern.PatternStartDate)) return QStringLiteral("the recurrence has no start date");
  if (!pattern.StartTime.isValid() || !pattern.EndTime.isValid()) {
    return QStringLiteral("the recurrence has no start time or no end time");
  }
  if (EndsByDate(pattern) && !IsDate(pattern.PatternEndDate)) {
    return QStringLiteral("the recurrence has no end date");
  }
  if (EndsByDate(pattern) && pattern.PatternEndDate < pattern.PatternStartDate) {
    return QStringLiteral("the recurrence ends before it starts");
  }
  for (const MemberRange& range : kRanges) {
    if (IsMissed(range, pattern)) return range.Reason.toString();
  }
  return std::nullopt;
}

std::optional<QString> WhyNotSavable(const AppointmentItem& item) {
  if (!IsDate(item.Start)) return QStringLiteral("there is no start");
  if (!IsDate(item.End)) return QStringLiteral("there is no end");
  if (IsEarlier(item.End, item.Start)) return QStringLiteral("the end is before the start");
  return item.Recurrence ? WhyNotSavable(*item.Recurrence) : std::nullopt;
}

}  // namespace quill
