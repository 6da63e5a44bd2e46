#include "appointments/RecurrencePages.h"

#include <gtest/gtest.h>

#include <limits>

namespace quill {
namespace {

const QDate kTuesday(2004, 3, 30);  // the 5th of its month

// No two members that a page could mix up are the same.
RecurrencePattern Sample(RecurrenceType type) {
  return {.Type = type,
          .StartTime = QTime(10, 0),
          .EndTime = QTime(11, 0),
          .PatternStartDate = kTuesday,
          .Duration = 60,
          .Interval = 3,
          .DayOfWeekMask = 16,
          .DayOfMonth = 29,
          .Instance = 2,
          .MonthOfYear = 11};
}

PatternEntries Entries(RecurrenceKind kind) {
  return {.Kind = kind,
          .DailyInterval = u"2"_qs,
          .WeeklyInterval = u"4"_qs,
          .Days = {false, true, false, true, false, false, false},
          .MonthDay = u"17"_qs,
          .MonthDayInterval = u"5"_qs,
          .MonthInstance = 3,
          .MonthWeekday = 6,
          .MonthWeekdayInterval = u"7"_qs,
          .YearMonth = 1,
          .YearDay = u"28"_qs,
          .YearInstance = 4,
          .YearWeekday = 0,
          .YearWeekdayMonth = 8};
}

// What a page writes into the sample of another type.
RecurrencePattern Written(const PatternEntries& entries) {
  RecurrencePattern pattern = Sample(static_cast<RecurrenceType>(-1));
  WritePatternPage(entries, pattern);
  return pattern;
}

RecurrencePattern Changed(void (*change)(RecurrencePattern&)) {
  RecurrencePattern pattern = Sample(static_cast<RecurrenceType>(-1));
  change(pattern);
  return pattern;
}

TEST(RecurrencePages, TheListsOfferWhatTheySay) {
  EXPECT_EQ(OfferedIntervals(), (QStringList{u"1"_qs, u"2"_qs, u"3"_qs, u"4"_qs, u"5"_qs, u"10"_qs,
                                             u"15"_qs, u"20"_qs}));
  EXPECT_EQ(OfferedDays().size(), 31);
  EXPECT_EQ(OfferedDays().front(), u"1"_qs);
  EXPECT_EQ(OfferedDays().back(), u"31"_qs);
  EXPECT_EQ(OfferedOccurrences().size(), 10);
  EXPECT_EQ(OfferedOccurrences().front(), u"1"_qs);
  EXPECT_EQ(OfferedOccurrences().back(), u"10"_qs);
  EXPECT_EQ(InstanceNames(),
            (QStringList{u"First"_qs, u"Second"_qs, u"Third"_qs, u"Fourth"_qs, u"Fifth"_qs}));
  EXPECT_EQ(WeekdayNames(), (QStringList{u"Sunday"_qs, u"Monday"_qs, u"Tuesday"_qs, u"Wednesday"_qs,
                                         u"Thursday"_qs, u"Friday"_qs, u"Saturday"_qs}));
  EXPECT_EQ(MonthNames(),
            (QStringList{u"January"_qs, u"February"_qs, u"March"_qs, u"April"_qs, u"May"_qs,
                         u"June"_qs, u"July"_qs, u"August"_qs, u"September"_qs, u"October"_qs,
                         u"November"_qs, u"December"_qs}));
}

struct KindCase {
  int Type;
  RecurrenceKind Kind;
  DayRule Monthly;
  DayRule Yearly;
};

class LoadedType : public testing::TestWithParam<KindCase> {};

TEST_P(LoadedType, GivesTheKindAndTheRadioButtons) {
  const auto entries =
      LoadPatternPage(Sample(static_cast<RecurrenceType>(GetParam().Type)), kTuesday);
  EXPECT_EQ(entries.Kind, GetParam().Kind);
  EXPECT_EQ(entries.Monthly, GetParam().Monthly);
  EXPECT_EQ(entries.Yearly, GetParam().Yearly);
}

using enum RecurrenceKind;
using enum DayRule;

INSTANTIATE_TEST_SUITE_P(
    Types, LoadedType,
    testing::Values(KindCase{0, Daily, ByDay, ByDay}, KindCase{1, Weekly, ByDay, ByDay},
                    KindCase{2, Monthly, ByDay, ByDay}, KindCase{3, Monthly, ByWeekday, ByDay},
                    KindCase{5, Yearly, ByDay, ByDay}, KindCase{6, Yearly, ByDay, ByWeekday},
                    KindCase{4, Daily, ByDay, ByDay}, KindCase{7, Daily, ByDay, ByDay},
                    KindCase{-1, Daily, ByDay, ByDay}));

TEST(RecurrencePages, EveryListShowsWhatThePatternHoldsWhateverItsType) {
  const auto entries = LoadPatternPage(Sample(RecurrenceType::Daily), kTuesday);
  EXPECT_EQ(entries.DailyInterval, u"3"_qs);
  EXPECT_EQ(entries.WeeklyInterval, u"3"_qs);
  EXPECT_EQ(entries.MonthDayInterval, u"3"_qs);
  EXPECT_EQ(entries.MonthWeekdayInterval, u"3"_qs);
  EXPECT_EQ(entries.MonthDay, u"29"_qs);
  EXPECT_EQ(entries.YearDay, u"29"_qs);
  EXPECT_EQ(entries.MonthWeekday, 4);
  EXPECT_EQ(entries.YearWeekday, 4);
  EXPECT_EQ(entries.YearMonth, 10);
  EXPECT_EQ(entries.YearWeekdayMonth, 10);
}

TEST(RecurrencePages, InstancesBeginWithTheWeekOfTheStartNotWithThePatterns) {
  for (int day = 1; day <= 31; ++day) {
    const auto entries = LoadPatternPage(Sample(RecurrenceType::MonthlyNth), QDate(2004, 3, day));
    EXPECT_EQ(entries.MonthInstance, (day - 1) / 7) << day;
    EXPECT_EQ(entries.YearInstance, (day - 1) / 7) << day;
  }
}

struct MaskCase {
  int Mask;
  WeekDayToggles Days;
  int Weekday;
};

class LoadedMask : public testing::TestWithParam<MaskCase> {};

TEST_P(LoadedMask, GivesTheTogglesAndTheWeekday) {
  RecurrencePattern pattern = Sample(RecurrenceType::Weekly);
  pattern.DayOfWeekMask = GetParam().Mask;
  const auto entries = LoadPatternPage(pattern, kTuesday);
  EXPECT_EQ(entries.Days, GetParam().Days);
  EXPECT_EQ(entries.MonthWeekday, GetParam().Weekday);
  EXPECT_EQ(entries.YearWeekday, GetParam().Weekday);
}

constexpr WeekDayToggles kNoDay{};

INSTANTIATE_TEST_SUITE_P(
    Masks, LoadedMask,
    testing::Values(MaskCase{1, {true}, 0}, MaskCase{2, {false, true}, 1},
                    MaskCase{64, {false, false, false, false, false, false, true}, 6},
                    MaskCase{62, {false, true, true, true, true, true, false}, 1},
                    MaskCase{127, {true, true, true, true, true, true, true}, 0},
                    MaskCase{0, kNoDay, 2}, MaskCase{128, kNoDay, 2},
                    MaskCase{128 + 8, {false, false, false, true}, 3}));

TEST(RecurrencePages, AMonthThatThereIsNotIsShownAsTheNearest) {
  RecurrencePattern pattern = Sample(RecurrenceType::Yearly);
  for (const auto& [stored, shown] : {std::pair(0, 0), std::pair(13, 11), std::pair(12, 11)}) {
    pattern.MonthOfYear = stored;
    EXPECT_EQ(LoadPatternPage(pattern, kTuesday).YearMonth, shown) << stored;
    EXPECT_EQ(LoadPatternPage(pattern, kTuesday).YearWeekdayMonth, shown) << stored;
  }
}

TEST(RecurrencePages, DailyWritesItsTypeAndInterval) {
  EXPECT_EQ(Written(Entries(Daily)), Changed([](RecurrencePattern& pattern) {
              pattern.Type = RecurrenceType::Daily;
              pattern.Interval = 2;
            }));
}

TEST(RecurrencePages, WeeklyWritesItsTypeIntervalAndDays) {
  EXPECT_EQ(Written(Entries(Weekly)), Changed([](RecurrencePattern& pattern) {
              pattern.Type = RecurrenceType::Weekly;
              pattern.Interval = 4;
              pattern.DayOfWeekMask = 4 + 16;
            }));
}

TEST(RecurrencePages, MonthlyByDayWritesItsTypeIntervalAndDay) {
  EXPECT_EQ(Written(Entries(Monthly)), Changed([](RecurrencePattern& pattern) {
              pattern.Type = RecurrenceType::Monthly;
              pattern.Interval = 5;
              pattern.DayOfMonth = 17;
            }));
}

TEST(RecurrencePages, MonthlyByWeekdayWritesItsTypeIntervalInstanceAndWeekday) {
  PatternEntries entries = Entries(Monthly);
  entries.Monthly = ByWeekday;
  EXPECT_EQ(Written(entries), Changed([](RecurrencePattern& pattern) {
              pattern.Type = RecurrenceType::MonthlyNth;
              pattern.Interval = 7;
              pattern.Instance = 4;
              pattern.DayOfWeekMask = 64;
            }));
}

TEST(RecurrencePages, YearlyByDayWritesItsTypeMonthAndDayAndNoInterval) {
  EXPECT_EQ(Written(Entries(Yearly)), Changed([](RecurrencePattern& pattern) {
              pattern.Type = RecurrenceType::Yearly;
              pattern.MonthOfYear = 2;
              pattern.DayOfMonth = 28;
            }));
}

TEST(RecurrencePages, YearlyByWeekdayWritesItsTypeInstanceWeekdayAndMonthAndNoInterval) {
  PatternEntries entries = Entries(Yearly);
  entries.Yearly = ByWeekday;
  EXPECT_EQ(Written(entries), Changed([](RecurrencePattern& pattern) {
              pattern.Type = RecurrenceType::YearlyNth;
              pattern.Instance = 5;
              pattern.DayOfWeekMask = 1;
              pattern.MonthOfYear = 9;
            }));
}

class EveryToggle : public testing::TestWithParam<int> {};

TEST_P(EveryToggle, IsReadFromItsBitAndWrittenToTheNextOneAsIntended) {
  const int day = GetParam();
  RecurrencePattern pattern = Sample(RecurrenceType::Weekly);
  pattern.DayOfWeekMask = 1 << day;
  const auto entries = LoadPatternPage(pattern, kTuesday);
  EXPECT_TRUE(entries.Days[static_cast<std::size_t>(day)]);
  EXPECT_EQ(Written(entries).DayOfWeekMask, 1 << (day + 1));
}

INSTANTIATE_TEST_SUITE_P(SundayToSaturday, EveryToggle, testing::Range(0, 7));

TEST(RecurrencePages, WeeklyWithOnlySundayOnWritesMaskTwo) {
  PatternEntries entries = Entries(Weekly);
  entries.Days = {true};
  EXPECT_EQ(Written(entries).DayOfWeekMask, 2);
}

TEST(RecurrencePages, WeeklyWithoutADayWritesAnEmptyMask) {
  PatternEntries entries = Entries(Weekly);
  entries.Days = {};
  EXPECT_EQ(Written(entries).DayOfWeekMask, 0);
}

TEST(RecurrencePages, ATextThatIsNoNumberIsWrittenAsZero) {
  PatternEntries entries = Entries(Monthly);
  entries.MonthDay = u"last"_qs;
  entries.MonthDayInterval = QString();
  EXPECT_EQ(Written(entries).DayOfMonth, 0);
  EXPECT_EQ(Written(entries).Interval, 0);
}

RecurrencePattern Ending(bool never, int occurrences, QDate date) {
  RecurrencePattern pattern = Sample(RecurrenceType::Daily);
  pattern.NoEndDate = never;
  pattern.Occurrences = occurrences;
  pattern.PatternEndDate = date;
  return pattern;
}

const QDate kDefaultEnd(2004, 5, 30);  // 61 days after the pattern's start
const QDate kStoredEnd(2005, 1, 2);
const QDate kOtherStart(2004, 6, 1);

struct RangeCase {
  bool Never;
  int Occurrences;
  QDate StoredDate;
  RangeEnd End;
  QDate Date;
  const char16_t* Text;
};

class LoadedRange : public testing::TestWithParam<RangeCase> {};

TEST_P(LoadedRange, ShowsTheEndAndWhatWouldCountInsteadOfIt) {
  const auto& [never, occurrences, storedDate, end, date, text] = GetParam();
  const auto entries = LoadRangePage(Ending(never, occurrences, storedDate), kOtherStart);
  EXPECT_EQ(entries.End, end);
  EXPECT_EQ(entries.Date, date);
  EXPECT_EQ(entries.Occurrences, QString::fromUtf16(text));
}

INSTANTIATE_TEST_SUITE_P(
    Ends, LoadedRange,
    testing::Values(RangeCase{true, 0, kStoredEnd, RangeEnd::Never, kDefaultEnd, u"10"},
                    RangeCase{true, 7, kStoredEnd, RangeEnd::Never, kDefaultEnd, u"10"},
                    RangeCase{false, 7, kStoredEnd, RangeEnd::AfterOccurrences, kDefaultEnd, u"7"},
                    RangeCase{false, 1, {}, RangeEnd::AfterOccurrences, kDefaultEnd, u"1"},
                    RangeCase{false, 0, kStoredEnd, RangeEnd::OnDate, kStoredEnd, u"10"},
                    RangeCase{false, -1, kStoredEnd, RangeEnd::OnDate, kStoredEnd, u"10"},
                    RangeCase{false, 0, {}, RangeEnd::OnDate, kDefaultEnd, u"10"}));

TEST(RecurrencePages, WithoutAPatternsStartTheEndFollowsFromTheAppointments) {
  RecurrencePattern pattern = Ending(true, 0, {});
  pattern.PatternStartDate = {};
  EXPECT_EQ(LoadRangePage(pattern, kOtherStart).Date, QDate(2004, 8, 1));
}

TEST(RecurrencePages, WithoutAnEndOnlyThatIsWritten) {
  RecurrencePattern pattern = Ending(false, 7, kStoredEnd);
  WriteRangePage({.End = RangeEnd::Never, .Date = kDefaultEnd, .Occurrences = u"3"_qs}, pattern);
  EXPECT_EQ(pattern, Ending(true, 7, kStoredEnd));
}

TEST(RecurrencePages, AnEndOnADateIsWrittenAndNoNumberCountsAnyMore) {
  RecurrencePattern pattern = Ending(true, 7, {});
  WriteRangePage({.End = RangeEnd::OnDate, .Date = kStoredEnd, .Occurrences = u"3"_qs}, pattern);
  EXPECT_EQ(pattern, Ending(false, 0, kStoredEnd));
}

TEST(RecurrencePages, AnEndAfterANumberIsWrittenWithTheDateThatFollows) {
  RecurrencePattern pattern = Ending(true, 0, kStoredEnd);
  WriteRangePage({.End = RangeEnd::AfterOccurrences, .Date = kDefaultEnd, .Occurrences = u"3"_qs},
                 pattern);
  EXPECT_EQ(pattern, Ending(false, 3, kTuesday.addDays(6)));
}

class NoOccurrences : public testing::TestWithParam<const char16_t*> {};

TEST_P(NoOccurrences, AreWrittenAsZero) {
  RecurrencePattern pattern = Ending(true, 7, kStoredEnd);
  WriteRangePage({.End = RangeEnd::AfterOccurrences,
                  .Date = kDefaultEnd,
                  .Occurrences = QString::fromUtf16(GetParam())},
                 pattern);
  EXPECT_EQ(pattern, Ending(false, 0, kTuesday));
}

INSTANTIATE_TEST_SUITE_P(Texts, NoOccurrences, testing::Values(u"0", u"", u"many", u"x3"));

TEST(RecurrencePages, ATappedDayIsTurnedOver) {
  WeekDayToggles days{true};
  EXPECT_EQ(ToggleDay(days, 6), DayToggled::Done);
  EXPECT_EQ(days, (WeekDayToggles{true, false, false, false, false, false, true}));
  EXPECT_EQ(ToggleDay(days, 0), DayToggled::Done);
  EXPECT_EQ(days, (WeekDayToggles{false, false, false, false, false, false, true}));
}

TEST(RecurrencePages, TheOnlyDayStaysOn) {
  for (int day = 0; day < 7; ++day) {
    WeekDayToggles days{};
    days[static_cast<std::size_t>(day)] = true;
    const WeekDayToggles before = days;
    EXPECT_EQ(ToggleDay(days, day), DayToggled::LastDayStays);
    EXPECT_EQ(days, before);
  }
}

TEST(RecurrencePages, TheFirstDayOfAnEmptyMaskIsTurnedOn) {
  WeekDayToggles days{};
  EXPECT_EQ(ToggleDay(days, 3), DayToggled::Done);
  EXPECT_EQ(days, (WeekDayToggles{false, false, false, true}));
}

struct NumberCase {
  const char16_t* Text;
  int Number;
};

class TextOfANumber : public testing::TestWithParam<NumberCase> {};

TEST_P(TextOfANumber, IsReadAsADecimalInteger) {
  EXPECT_EQ(NumberIn(QStringView(GetParam().Text)), GetParam().Number);
}

constexpr int kGreatest = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

INSTANTIATE_TEST_SUITE_P(
    Texts, TextOfANumber,
    testing::Values(NumberCase{u"", 0}, NumberCase{u"0", 0}, NumberCase{u"7", 7},
                    NumberCase{u"012", 12}, NumberCase{u" 15 ", 15}, NumberCase{u"\t15", 15},
                    NumberCase{u"12abc", 12}, NumberCase{u"3.9", 3}, NumberCase{u"1 2", 1},
                    NumberCase{u"abc12", 0}, NumberCase{u"-4", -4}, NumberCase{u"+4", 4},
                    NumberCase{u"- 4", 0}, NumberCase{u"--4", 0}, NumberCase{u"-", 0},
                    NumberCase{u"+-4", 0}, NumberCase{u"0x10", 0}, NumberCase{u"\uFF13", 0},
                    NumberCase{u"\u0663", 0}, NumberCase{u"2147483647", kGreatest},
                    NumberCase{u"2147483648", kGreatest}, NumberCase{u"-2147483648", kLeast},
                    NumberCase{u"-2147483649", kLeast},
                    NumberCase{u"99999999999999999999999999", kGreatest},
                    NumberCase{u"-99999999999999999999999999", kLeast}));

}  // namespace
}  // namespace quill
