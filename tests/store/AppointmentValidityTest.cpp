#include "store/AppointmentValidity.h"

#include <gtest/gtest.h>

#include <limits>

#include "store/AutomationDate.h"

namespace quill {
namespace {

using enum RecurrenceType;

AppointmentItem Meeting() {
  AppointmentItem item;
  item.Start = MakeCalendarDate(QDate(2004, 2, 1), QTime(10, 0));
  item.End = MakeCalendarDate(QDate(2004, 2, 1), QTime(11, 0));
  return item;
}

AppointmentItem Between(QDateTime start, QDateTime end) {
  AppointmentItem item;
  item.Start = MakeCalendarDate(start.date(), start.time());
  item.End = MakeCalendarDate(end.date(), end.time());
  return item;
}

QDateTime At(int year, int month, int day, int hour) {
  return {QDate(year, month, day), QTime(hour, 0), Qt::UTC};
}

struct SpanCase {
  const char* Name;
  AppointmentItem Item;
  bool Savable;
};

class Span : public testing::TestWithParam<SpanCase> {};

TEST_P(Span, IsSavableUnlessItEndsBeforeItStarts) {
  EXPECT_EQ(!WhyNotSavable(GetParam().Item), GetParam().Savable);
}

CalendarDate NoSuchDate() { return {.Year = 2004, .Month = 13, .Day = 1}; }

AppointmentItem With(CalendarDate AppointmentItem::*member, CalendarDate date) {
  AppointmentItem item = Meeting();
  item.*member = date;
  return item;
}

const CalendarDate kStandsForNone{.Year = 4501, .Month = 1, .Day = 1};

INSTANTIATE_TEST_SUITE_P(
    Spans, Span,
    testing::Values(
        SpanCase{"AnHour", Meeting(), true},
        SpanCase{"Nothing", Between(At(2004, 2, 1, 10), At(2004, 2, 1, 10)), true},
        SpanCase{"BackAnHour", Between(At(2004, 2, 1, 10), At(2004, 2, 1, 9)), false},
        SpanCase{"BackADay", Between(At(2004, 2, 2, 9), At(2004, 2, 1, 10)), false},
        SpanCase{"OnADayBeforeTheFirst", Between(At(1899, 12, 28, 6), At(1899, 12, 28, 18)), true},
        SpanCase{"BackOnADayBeforeTheFirst", Between(At(1899, 12, 28, 18), At(1899, 12, 28, 6)),
                 false},
        SpanCase{"NoStart", With(&AppointmentItem::Start, {}), false},
        SpanCase{"NoEnd", With(&AppointmentItem::End, {}), false},
        SpanCase{"StartOfPartsThatMakeNone", With(&AppointmentItem::Start, NoSuchDate()), false},
        SpanCase{"EndOfPartsThatMakeNone", With(&AppointmentItem::End, NoSuchDate()), false},
        SpanCase{"EndThatStandsForNone", With(&AppointmentItem::End, kStandsForNone), false}),
    [](const auto& row) { return std::string(row.param.Name); });

RecurrencePattern Pattern(RecurrenceType type) {
  return {.Type = type, .PatternStartDate = QDate(2004, 2, 1), .DayOfWeekMask = 1};
}

TEST(AppointmentValidity, LooksAtThePatternToo) {
  AppointmentItem item = Meeting();
  item.Recurrence = Pattern(Weekly);
  EXPECT_FALSE(WhyNotSavable(item));
  item.Recurrence->DayOfWeekMask = 0;
  EXPECT_EQ(WhyNotSavable(item), QStringLiteral("the mask is out of range"));
}

TEST(AppointmentValidity, EveryRefusalHasAReason) {
  AppointmentItem item = Meeting();
  item.End = {};
  EXPECT_EQ(WhyNotSavable(item), QStringLiteral("there is no end"));
  EXPECT_FALSE(IsSavable(Pattern(static_cast<RecurrenceType>(4))));
  EXPECT_EQ(WhyNotSavable(Pattern(static_cast<RecurrenceType>(4))),
            QStringLiteral("the recurrence has an unknown type"));
}

struct RangeCase {
  int RecurrencePattern::*Member;
  RecurrenceType Type;
  int Lowest;
  int Highest;
};

class Range : public testing::TestWithParam<RangeCase> {
 protected:
  static bool Allows(int value) {
    RecurrencePattern pattern = Pattern(GetParam().Type);
    pattern.*GetParam().Member = value;
    return IsSavable(pattern);
  }
};

TEST_P(Range, IsAllowedFromItsLowestToItsHighest) {
  const RangeCase& range = GetParam();
  EXPECT_TRUE(Allows(range.Lowest));
  EXPECT_TRUE(Allows(range.Highest));
  if (range.Lowest > std::numeric_limits<int>::min()) {
    EXPECT_FALSE(Allows(range.Lowest - 1));
    EXPECT_FALSE(Allows(std::numeric_limits<int>::min()));
  }
  if (range.Highest < std::numeric_limits<int>::max()) {
    EXPECT_FALSE(Allows(range.Highest + 1));
    EXPECT_FALSE(Allows(std::numeric_limits<int>::max()));
  }
}

constexpr int kAnyLow = std::numeric_limits<int>::min();
constexpr int kAnyHigh = std::numeric_limits<int>::max();

INSTANTIATE_TEST_SUITE_P(
    Intervals, Range,
    testing::Values(RangeCase{&RecurrencePattern::Interval, Daily, 1, 999},
                    RangeCase{&RecurrencePattern::Interval, Weekly, 1, 99},
                    RangeCase{&RecurrencePattern::Interval, Monthly, 1, 99},
                    RangeCase{&RecurrencePattern::Interval, MonthlyNth, 1, 99},
                    RangeCase{&RecurrencePattern::Interval, Yearly, kAnyLow, kAnyHigh},
                    RangeCase{&RecurrencePattern::Interval, YearlyNth, kAnyLow, kAnyHigh}));
INSTANTIATE_TEST_SUITE_P(
    Masks, Range,
    testing::Values(RangeCase{&RecurrencePattern::DayOfWeekMask, Daily, kAnyLow, kAnyHigh},
                    RangeCase{&RecurrencePattern::DayOfWeekMask, Weekly, 1, 255},
                    RangeCase{&RecurrencePattern::DayOfWeekMask, Weekly, 1, 255},
                    RangeCase{&RecurrencePattern::DayOfWeekMask, Monthly, kAnyLow, kAnyHigh},
                    RangeCase{&RecurrencePattern::DayOfWeekMask, MonthlyNth, 1, 127},
                    RangeCase{&RecurrencePattern::DayOfWeekMask, Yearly, kAnyLow, kAnyHigh},
                    RangeCase{&RecurrencePattern::DayOfWeekMask, YearlyNth, 1, 127}));
INSTANTIATE_TEST_SUITE_P(
    DaysOfMonth, Range,
    testing::Values(RangeCase{&RecurrencePattern::DayOfMonth, Daily, kAnyLow, kAnyHigh},
                    RangeCase{&RecurrencePattern::DayOfMonth, Weekly, kAnyLow, kAnyHigh},
                    RangeCase{&RecurrencePattern::DayOfMonth, Monthly, 1, 31},
                    RangeCase{&RecurrencePattern::DayOfMonth, MonthlyNth, kAnyLow, kAnyHigh},
                    RangeCase{&RecurrencePattern::DayOfMonth, Yearly, 1, 31},
                    RangeCase{&RecurrencePattern::DayOfMonth, YearlyNth, kAnyLow, kAnyHigh}));
INSTANTIATE_TEST_SUITE_P(
    Months, Range,
    testing::Values(RangeCase{&RecurrencePattern::MonthOfYear, Monthly, kAnyLow, kAnyHigh},
                    RangeCase{&RecurrencePattern::MonthOfYear, MonthlyNth, kAnyLow, kAnyHigh},
                    RangeCase{&RecurrencePattern::MonthOfYear, Yearly, 1, 12},
                    RangeCase{&RecurrencePattern::MonthOfYear, YearlyNth, 1, 12}));
INSTANTIATE_TEST_SUITE_P(
    Instances, Range,
    testing::Values(RangeCase{&RecurrencePattern::Instance, Weekly, kAnyLow, kAnyHigh},
                    RangeCase{&RecurrencePattern::Instance, Monthly, kAnyLow, kAnyHigh},
                    RangeCase{&RecurrencePattern::Instance, MonthlyNth, 1, 5},
                    RangeCase{&RecurrencePattern::Instance, Yearly, kAnyLow, kAnyHigh},
                    RangeCase{&RecurrencePattern::Instance, YearlyNth, 1, 5}));

TEST(PatternValidity, AnyWeeklyMaskOfOneByteWithABitIsSavable) {
  for (int mask = 1; mask <= 255; ++mask) {
    RecurrencePattern pattern = Pattern(Weekly);
    pattern.DayOfWeekMask = mask;
    EXPECT_TRUE(IsSavable(pattern)) << mask;
  }
}

TEST(PatternValidity, OnlyTheSixTypesAreSavable) {
  for (int type = -1; type <= 8; ++type) {
    const bool known = type >= 0 && type <= 6 && type != 4;
    EXPECT_EQ(IsSavable(Pattern(static_cast<RecurrenceType>(type))), known) << type;
  }
  EXPECT_FALSE(IsSavable(Pattern(static_cast<RecurrenceType>(32))));
}

TEST(PatternValidity, AStartIsNeeded) {
  RecurrencePattern pattern = Pattern(Daily);
  pattern.PatternStartDate = {};
  EXPECT_FALSE(IsSavable(pattern));
  pattern.PatternStartDate = QDate(4501, 1, 1);
  EXPECT_FALSE(IsSavable(pattern));
}

TEST(PatternValidity, TimesOfDayAreNeeded) {
  for (QTime RecurrencePattern::*time :
       {&RecurrencePattern::StartTime, &RecurrencePattern::EndTime}) {
    RecurrencePattern pattern = Pattern(Daily);
    pattern.*time = {};
    EXPECT_FALSE(IsSavable(pattern));
  }
}

struct EndCase {
  bool NoEndDate;
  int Occurrences;
  QDate End;
  bool Savable;
};

class End : public testing::TestWithParam<EndCase> {};

TEST_P(End, CountsOnlyWhenThePatternEndsByDate) {
  RecurrencePattern pattern = Pattern(Daily);
  pattern.NoEndDate = GetParam().NoEndDate;
  pattern.Occurrences = GetParam().Occurrences;
  pattern.PatternEndDate = GetParam().End;
  EXPECT_EQ(IsSavable(pattern), GetParam().Savable);
}

const QDate kDayBefore(2004, 1, 31);
const QDate kSameDay(2004, 2, 1);

INSTANTIATE_TEST_SUITE_P(
    Ends, End,
    testing::Values(EndCase{false, 0, kSameDay, true}, EndCase{false, 0, kDayBefore, false},
                    EndCase{false, 0, QDate(), false}, EndCase{false, 0, QDate(4501, 1, 1), false},
                    EndCase{false, -1, kDayBefore, false}, EndCase{false, -1, kSameDay, true},
                    EndCase{false, 1, kDayBefore, true}, EndCase{false, 1, QDate(), true},
                    EndCase{true, 0, kDayBefore, true}, EndCase{true, 0, QDate(), true},
                    EndCase{true, 5, kDayBefore, true}));

}  // namespace
}  // namespace quill
