#include "appointments/RecurrenceNames.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

struct WeekdayCase {
  int Day;  // of February 2004, which begins on a Sunday
  const char16_t* Name;
  const char16_t* Abbrev;
};

class WeekdayNames : public testing::TestWithParam<WeekdayCase> {};

TEST_P(WeekdayNames, AreTheDays) {
  const DayNames names = NamesOf({2004, 2, GetParam().Day});
  EXPECT_EQ(names.Weekday, QString::fromUtf16(GetParam().Name));
  EXPECT_EQ(names.WeekdayAbbrev, QString::fromUtf16(GetParam().Abbrev));
  EXPECT_EQ(names.Day, GetParam().Day);
}

INSTANTIATE_TEST_SUITE_P(
    Days, WeekdayNames,
    testing::Values(WeekdayCase{1, u"Sunday", u"Sun."}, WeekdayCase{2, u"Monday", u"Mon."},
                    WeekdayCase{3, u"Tuesday", u"Tue."}, WeekdayCase{4, u"Wednesday", u"Wed."},
                    WeekdayCase{5, u"Thursday", u"Thu."}, WeekdayCase{6, u"Friday", u"Fri."},
                    WeekdayCase{7, u"Saturday", u"Sat."}));

struct OrdinalCase {
  int Day;
  const char16_t* Ordinal;
};

class Ordinals : public testing::TestWithParam<OrdinalCase> {};

TEST_P(Ordinals, CountTheWeeksOfTheMonth) {
  EXPECT_EQ(NamesOf({2004, 10, GetParam().Day}).Ordinal, QString::fromUtf16(GetParam().Ordinal));
}

INSTANTIATE_TEST_SUITE_P(Days, Ordinals,
                         testing::Values(OrdinalCase{1, u"1st"}, OrdinalCase{7, u"1st"},
                                         OrdinalCase{8, u"2nd"}, OrdinalCase{14, u"2nd"},
                                         OrdinalCase{15, u"3rd"}, OrdinalCase{21, u"3rd"},
                                         OrdinalCase{22, u"4th"}, OrdinalCase{28, u"4th"},
                                         OrdinalCase{29, u"5th"}, OrdinalCase{30, u"5th"},
                                         OrdinalCase{31, u"5th"}));

TEST(RecurrenceNames, MonthsAreAbbreviatedWithAPeriodAlsoMay) {
  const QStringList expected = {
      QStringLiteral("Jan."), QStringLiteral("Feb."), QStringLiteral("Mar."),
      QStringLiteral("Apr."), QStringLiteral("May."), QStringLiteral("Jun."),
      QStringLiteral("Jul."), QStringLiteral("Aug."), QStringLiteral("Sep."),
      QStringLiteral("Oct."), QStringLiteral("Nov."), QStringLiteral("Dec.")};
  QStringList names;
  for (int month = 1; month <= 12; ++month) names.append(NamesOf({2004, month, 1}).MonthAbbrev);
  EXPECT_EQ(names, expected);
}

TEST(RecurrenceNames, MondayToFridayHasAName) {
  EXPECT_EQ(kMondayToFridayText, u"Weekdays(Mon-Fri)");
}

TEST(RecurrenceNames, AnInvalidDayHasNone) {
  const DayNames names = NamesOf({});
  EXPECT_EQ(names.Weekday + names.WeekdayAbbrev + names.Ordinal + names.MonthAbbrev, QString());
  EXPECT_EQ(names.Day, 0);
}

}  // namespace
}  // namespace quill
