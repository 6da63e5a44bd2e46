// The dates of patterns beside those that another reckoner, libical, finds for the same rule. Where
// a pattern does what no plain rule does, the rule is composed: a day past a month's end is the
// last one of the 28th to that day which the month has.
#include <gtest/gtest.h>

#include <QStringList>

#include <libical/ical.h>

#include <array>

#include "store/RecurrenceDates.h"

namespace quill {
namespace {

using enum RecurrenceType;

constexpr int kYears = 10;
constexpr int kShortestMonth = 28;
constexpr int kLastInstance = 5;

QString DaysText(int mask) {
  static constexpr std::array<QStringView, 7> kNames = {u"SU", u"MO", u"TU", u"WE",
                                                        u"TH", u"FR", u"SA"};
  QStringList days;
  for (std::size_t day = 0; day < kNames.size(); ++day) {
    if (mask & (1 << day)) days.append(kNames[day].toString());
  }
  return days.join(u',');
}

QString ByDayOfMonth(int day) {
  if (day <= kShortestMonth) return QStringLiteral(";BYMONTHDAY=%1").arg(day);
  QStringList days;
  for (int each = kShortestMonth; each <= day; ++each) days.append(QString::number(each));
  return QStringLiteral(";BYMONTHDAY=%1;BYSETPOS=-1").arg(days.join(u','));
}

QString ByInstance(const RecurrencePattern& pattern) {
  return QStringLiteral(";BYDAY=%1;BYSETPOS=%2")
      .arg(DaysText(pattern.DayOfWeekMask))
      .arg(pattern.Instance == kLastInstance ? -1 : pattern.Instance);
}

QString Period(const char* name, int interval) {
  return QStringLiteral("FREQ=%1;INTERVAL=%2").arg(QLatin1String(name)).arg(interval);
}

QString InMonth(const RecurrencePattern& pattern) {
  return QStringLiteral("FREQ=YEARLY;BYMONTH=%1").arg(pattern.MonthOfYear);
}

QString RuleWithoutEnd(const RecurrencePattern& pattern) {
  switch (pattern.Type) {
    case Daily:
      return Period("DAILY", pattern.Interval);
    case Weekly:
      return Period("WEEKLY", pattern.Interval) +
             QStringLiteral(";BYDAY=%1;WKST=SU").arg(DaysText(pattern.DayOfWeekMask));
    case Monthly:
      return Period("MONTHLY", pattern.Interval) + ByDayOfMonth(pattern.DayOfMonth);
    case MonthlyNth:
      return Period("MONTHLY", pattern.Interval) + ByInstance(pattern);
    case Yearly:
      return InMonth(pattern) + ByDayOfMonth(pattern.DayOfMonth);
    case YearlyNth:
      return InMonth(pattern) + ByInstance(pattern);
  }
  return {};
}

QString RuleOf(const RecurrencePattern& pattern) {
  const QString rule = RuleWithoutEnd(pattern);
  if (pattern.NoEndDate) return rule;
  if (pattern.Occurrences > 0) return rule + QStringLiteral(";COUNT=%1").arg(pattern.Occurrences);
  return rule + QStringLiteral(";UNTIL=") + pattern.PatternEndDate.toString(u"yyyyMMdd");
}

icaltimetype IcalDate(QDate date) {
  icaltimetype time = icaltime_null_time();
  time.is_date = 1;
  time.year = date.year();
  time.month = date.month();
  time.day = date.day();
  return time;
}

// The rule's dates from first to last.
std::vector<QDate> IcalDates(const RecurrencePattern& pattern, QDate first, QDate last) {
  const QByteArray rule = RuleOf(pattern).toLatin1();
  icalrecur_iterator* const dates = icalrecur_iterator_new(
      icalrecurrencetype_from_string(rule.constData()), IcalDate(pattern.PatternStartDate));
  std::vector<QDate> found;
  if (!dates) {
    ADD_FAILURE() << "no rule: " << rule.constData();
    return found;
  }
  for (;;) {
    const icaltimetype time = icalrecur_iterator_next(dates);
    const QDate date(time.year, time.month, time.day);
    if (icaltime_is_null_time(time) || date > last) break;
    if (date >= first) found.push_back(date);
  }
  icalrecur_iterator_free(dates);
  return found;
}

std::string Text(QDate date) { return date.toString(Qt::ISODate).toStdString(); }

std::string Texts(const std::vector<QDate>& dates) {
  std::string texts;
  for (const QDate date : dates) texts += ' ' + Text(date);
  return texts;
}

// Returns how many dates there are in both.
std::size_t ExpectAgreement(const RecurrencePattern& pattern, QDate first, QDate last) {
  const std::vector<QDate> expected = IcalDates(pattern, first, last);
  const std::vector<QDate> dates = OccurrencesBetween(pattern, first, last);
  if (dates == expected) return dates.size();
  ADD_FAILURE() << RuleOf(pattern).toStdString() << " from " << Text(pattern.PatternStartDate)
                << "\nours:  " << Texts(dates) << "\ntheirs:" << Texts(expected);
  return 0;
}

// Beginnings and ends of months and years, leap days, and each weekday among them.
const std::array kStarts = {QDate(2000, 2, 29),  QDate(2003, 1, 1),  QDate(2003, 1, 31),
                            QDate(2003, 2, 28),  QDate(2004, 2, 1),  QDate(2004, 2, 29),
                            QDate(2004, 4, 30),  QDate(2005, 8, 15), QDate(2007, 12, 31),
                            QDate(2096, 11, 28), QDate(1999, 10, 9)};
constexpr std::array kIntervals = {1, 2, 3, 5, 12, 99};
// Each day, Monday and Wednesday, the workdays, the weekend, every day.
constexpr std::array kMasks = {1, 2, 4, 8, 16, 32, 64, 10, 62, 65, 127};

std::vector<RecurrencePattern> WithIntervals(RecurrencePattern pattern) {
  if (IsYearly(pattern.Type)) return {pattern};
  std::vector<RecurrencePattern> patterns;
  for (const int interval : kIntervals) {
    pattern.Interval = interval;
    patterns.push_back(pattern);
  }
  return patterns;
}

// What a pattern can say besides its type, its start, its interval and its end.
std::vector<RecurrencePattern> DaysInMonth(int month) {
  std::vector<RecurrencePattern> patterns;
  for (int day = 1; day <= 31; ++day) patterns.push_back({.DayOfMonth = day, .MonthOfYear = month});
  return patterns;
}

std::vector<RecurrencePattern> InstancesInMonth(int month) {
  std::vector<RecurrencePattern> patterns;
  for (const int mask : kMasks) {
    for (int instance = 1; instance <= kLastInstance; ++instance)
      patterns.push_back({.DayOfWeekMask = mask, .Instance = instance, .MonthOfYear = month});
  }
  return patterns;
}

std::vector<RecurrencePattern> Days(RecurrenceType type, int month) {
  if (type == Daily) return {RecurrencePattern{}};
  if (type == Monthly || type == Yearly) return DaysInMonth(month);
  if (type == MonthlyNth || type == YearlyNth) return InstancesInMonth(month);
  std::vector<RecurrencePattern> patterns;
  patterns.reserve(kMasks.size());
  for (const int mask : kMasks) patterns.push_back({.DayOfWeekMask = mask});
  return patterns;
}

std::vector<RecurrencePattern> Kinds(RecurrenceType type) {
  std::vector<RecurrencePattern> kinds;
  for (int month = 1; month <= (IsYearly(type) ? 12 : 1); ++month) {
    for (RecurrencePattern pattern : Days(type, month)) {
      pattern.Type = type;
      const auto more = WithIntervals(pattern);
      kinds.insert(kinds.end(), more.begin(), more.end());
    }
  }
  return kinds;
}

class PatternsOfAType : public testing::TestWithParam<RecurrenceType> {
 protected:
  // Until the first one fails.
  template <typename Check>
  void ForEachPattern(Check check) {
    for (RecurrencePattern pattern : Kinds(GetParam())) {
      for (const QDate start : kStarts) {
        pattern.PatternStartDate = start;
        check(pattern);
        if (HasFailure()) return;
      }
    }
  }
};

TEST_P(PatternsOfAType, HappenForTenYearsAsTheRuleDoes) {
  ForEachPattern([](const RecurrencePattern& pattern) {
    const QDate start = pattern.PatternStartDate;
    EXPECT_GT(ExpectAgreement(pattern, start, start.addYears(kYears)), 0U);
  });
}

TEST_P(PatternsOfAType, HappenInAMonthOfALaterYearAsTheRuleDoes) {
  ForEachPattern([](const RecurrencePattern& pattern) {
    const QDate first = pattern.PatternStartDate.addYears(7).addDays(3);
    ExpectAgreement(pattern, first, first.addDays(31));
  });
}

TEST_P(PatternsOfAType, EndAfterANumberAsTheRuleDoes) {
  ForEachPattern([](RecurrencePattern pattern) {
    const QDate start = pattern.PatternStartDate;
    pattern.NoEndDate = false;
    pattern.Occurrences = 4;
    EXPECT_GT(ExpectAgreement(pattern, start, start.addYears(kYears)), 0U);
  });
}

TEST_P(PatternsOfAType, EndWithADateAsTheRuleDoes) {
  ForEachPattern([](RecurrencePattern pattern) {
    const QDate start = pattern.PatternStartDate;
    pattern.NoEndDate = false;
    pattern.PatternEndDate = start.addMonths(13);
    ExpectAgreement(pattern, start, start.addYears(kYears));
  });
}

std::string TypeName(const testing::TestParamInfo<RecurrenceType>& row) {
  static constexpr std::array kNames = {"Daily", "Weekly", "Monthly",  "MonthlyNth",
                                        "",      "Yearly", "YearlyNth"};
  return kNames[static_cast<std::size_t>(row.param)];
}

INSTANTIATE_TEST_SUITE_P(RecurrenceExpansion, PatternsOfAType,
                         testing::Values(Daily, Weekly, Monthly, MonthlyNth, Yearly, YearlyNth),
                         TypeName);

TEST(RecurrenceExpansion, TheRulesOfOddDaysAreComposed) {
  EXPECT_EQ(RuleOf({.Type = Monthly, .DayOfMonth = 30}),
            QStringLiteral("FREQ=MONTHLY;INTERVAL=1;BYMONTHDAY=28,29,30;BYSETPOS=-1"));
  EXPECT_EQ(RuleOf({.Type = YearlyNth, .DayOfWeekMask = 62, .Instance = 5, .MonthOfYear = 2}),
            QStringLiteral("FREQ=YEARLY;BYMONTH=2;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=-1"));
}

}  // namespace
}  // namespace quill
