#include "appointments/RecurrenceChoice.h"

#include <gtest/gtest.h>

#include <ostream>

#include "store/AutomationDate.h"

namespace quill {
namespace {

const QDate kTuesday(2004, 9, 14);  // the second Tuesday of its month
const QDate kSaturday(2004, 9, 18);

AppointmentItem ItemOn(QDate day) {
  return {.Start = MakeCalendarDate(day, QTime(10, 0)),
          .End = MakeCalendarDate(day, QTime(11, 30)),
          .Duration = 90};
}

// No member of it is what a choice writes.
const RecurrencePattern kInHand = {.Type = RecurrenceType::Daily,
                                   .StartTime = QTime(3, 0),
                                   .EndTime = QTime(4, 0),
                                   .PatternStartDate = QDate(2001, 1, 1),
                                   .Duration = 60,
                                   .Occurrences = 6,
                                   .PatternEndDate = QDate(2002, 2, 2),
                                   .NoEndDate = false,
                                   .Interval = 9,
                                   .DayOfWeekMask = 127,
                                   .DayOfMonth = 30,
                                   .Instance = 5,
                                   .MonthOfYear = 12};

struct TextCase {
  QDate Start;
  int Choice;
  const char16_t* Text;
};

void PrintTo(const TextCase& row, std::ostream* out) {
  *out << row.Start.toString(Qt::ISODate).toStdString() << " choice " << row.Choice;
}

class ChoiceText : public testing::TestWithParam<TextCase> {};

TEST_P(ChoiceText, SpeaksOfTheStart) {
  const QStringList texts = RecurrenceChoiceTexts(GetParam().Start);
  ASSERT_EQ(texts.size(), 9);
  EXPECT_EQ(texts[GetParam().Choice], QString::fromUtf16(GetParam().Text));
}

const QDate kFirstSunday(2004, 2, 1);
INSTANTIATE_TEST_SUITE_P(OfASunday, ChoiceText,
                         testing::Values(TextCase{kFirstSunday, 0, u"Once"},
                                         TextCase{kFirstSunday, 1, u"Everyday"},
                                         TextCase{kFirstSunday, 2, u"Every Sunday"},
                                         TextCase{kFirstSunday, 3, u"Weekdays(Mon-Fri)"},
                                         TextCase{kFirstSunday, 4, u"Day 1 of every month"},
                                         TextCase{kFirstSunday, 5, u"The 1st Sun. of every month"},
                                         TextCase{kFirstSunday, 6, u"Feb. 1 of every year"},
                                         TextCase{kFirstSunday, 7, u"The 1st Sun. of every Feb."},
                                         TextCase{kFirstSunday, 8, u"<Edit Pattern...>"}));
INSTANTIATE_TEST_SUITE_P(OfATuesday, ChoiceText,
                         testing::Values(TextCase{kTuesday, 2, u"Every Tuesday"},
                                         TextCase{kTuesday, 5, u"The 2nd Tue. of every month"},
                                         TextCase{kTuesday, 7, u"The 2nd Tue. of every Sep."},
                                         TextCase{{2004, 3, 15}, 6, u"Mar. 15 of every year"}));
INSTANTIATE_TEST_SUITE_P(
    OfAMonthsEnd, ChoiceText,
    testing::Values(TextCase{{2004, 2, 29}, 5, u"The 5th Sun. of every month"},
                    TextCase{{2004, 2, 29}, 7, u"The 5th Sun. of every Feb."},
                    TextCase{{2004, 9, 30}, 5, u"The 5th Thu. of every month"},
                    TextCase{{2004, 12, 31}, 4, u"Day 31 of every month"},
                    TextCase{{2004, 12, 31}, 5, u"The 5th Fri. of every month"},
                    TextCase{{2004, 12, 31}, 7, u"The 5th Fri. of every Dec."}));

struct WrittenCase {
  RecurrenceChoice Choice;
  int Type;
  int Mask;  // on a Tuesday
};

void PrintTo(const WrittenCase& row, std::ostream* out) {
  *out << "choice " << static_cast<int>(row.Choice);
}

class WrittenChoice : public testing::TestWithParam<WrittenCase> {};

TEST_P(WrittenChoice, WritesEveryMemberButThoseOfTheEnd) {
  AppointmentItem item = ItemOn(kTuesday);
  PutRecurrence(item, GetParam().Choice, kInHand);
  const RecurrencePattern expected = {.Type = static_cast<RecurrenceType>(GetParam().Type),
                                      .StartTime = QTime(10, 0),
                                      .EndTime = QTime(11, 30),
                                      .PatternStartDate = kTuesday,
                                      .Duration = 90,
                                      .Occurrences = 6,
                                      .PatternEndDate = QDate(2002, 2, 2),
                                      .NoEndDate = true,
                                      .Interval = 1,
                                      .DayOfWeekMask = GetParam().Mask,
                                      .DayOfMonth = 14,
                                      .Instance = 2,
                                      .MonthOfYear = 9};
  EXPECT_EQ(item.Recurrence, expected);
}

TEST_P(WrittenChoice, IsShownAsItselfAfterwards) {
  AppointmentItem item = ItemOn(kTuesday);
  PutRecurrence(item, GetParam().Choice, kInHand);
  EXPECT_EQ(ChoiceOf(*item.Recurrence, kTuesday), GetParam().Choice);
}

INSTANTIATE_TEST_SUITE_P(Choices, WrittenChoice,
                         testing::Values(WrittenCase{RecurrenceChoice::Everyday, 0, 4},
                                         WrittenCase{RecurrenceChoice::EveryWeek, 1, 4},
                                         WrittenCase{RecurrenceChoice::Weekdays, 1, 62},
                                         WrittenCase{RecurrenceChoice::EveryMonth, 2, 4},
                                         WrittenCase{RecurrenceChoice::EveryMonthNth, 3, 4},
                                         WrittenCase{RecurrenceChoice::EveryYear, 5, 4},
                                         WrittenCase{RecurrenceChoice::EveryYearNth, 6, 4}));

TEST(RecurrenceChoice, OnceClearsTheRecurrence) {
  AppointmentItem item = ItemOn(kTuesday);
  item.Recurrence = kInHand;
  PutRecurrence(item, RecurrenceChoice::Once, kInHand);
  EXPECT_EQ(item.Recurrence, std::nullopt);
}

TEST(RecurrenceChoice, EditPatternWritesThePatternInHandAsItIs) {
  AppointmentItem item = ItemOn(kTuesday);
  PutRecurrence(item, RecurrenceChoice::EditPattern, kInHand);
  EXPECT_EQ(item.Recurrence, kInHand);
}

TEST(RecurrenceChoice, WeekdaysOfASaturdayAreMondayToFridayAllTheSame) {
  AppointmentItem item = ItemOn(kSaturday);
  PutRecurrence(item, RecurrenceChoice::Weekdays, {});
  EXPECT_EQ(item.Recurrence->DayOfWeekMask, 62);
  EXPECT_EQ(item.Recurrence->PatternStartDate, kSaturday);
  EXPECT_EQ(DayOf(item.Start), kSaturday);
}

struct InstanceCase {
  int Day;
  int Instance;
};

class WrittenInstance : public testing::TestWithParam<InstanceCase> {};

TEST_P(WrittenInstance, CountsWeeksFromOne) {
  AppointmentItem item = ItemOn({2004, 10, GetParam().Day});
  PutRecurrence(item, RecurrenceChoice::EveryMonthNth, {});
  EXPECT_EQ(item.Recurrence->Instance, GetParam().Instance);
}

INSTANTIATE_TEST_SUITE_P(Days, WrittenInstance,
                         testing::Values(InstanceCase{1, 1}, InstanceCase{7, 1}, InstanceCase{8, 2},
                                         InstanceCase{28, 4}, InstanceCase{29, 5},
                                         InstanceCase{31, 5}));

TEST(RecurrenceChoice, TheWizardBeginsWeeklyOnTheStartWithTenTimesShouldItEnd) {
  const RecurrencePattern pattern = DefaultPattern(ItemOn(kTuesday));
  EXPECT_EQ(pattern.Type, RecurrenceType::Weekly);
  EXPECT_EQ(pattern.DayOfWeekMask, 4);
  EXPECT_EQ(pattern.Interval, 1);
  EXPECT_EQ(pattern.PatternStartDate, kTuesday);
  EXPECT_EQ(pattern.StartTime, QTime(10, 0));
  EXPECT_EQ(pattern.EndTime, QTime(11, 30));
  EXPECT_TRUE(pattern.NoEndDate);
  EXPECT_EQ(pattern.Occurrences, 10);
  EXPECT_EQ(pattern.PatternEndDate, kTuesday.addDays(9 * 7));
}

TEST(RecurrenceChoice, ThreeAreShownWithTheWeekdayOfTheStart) {
  for (int i = 0; i <= static_cast<int>(RecurrenceChoice::EditPattern); ++i)
    EXPECT_EQ(ShowsStartWeekday(static_cast<RecurrenceChoice>(i)), i == 1 || i == 4 || i == 6) << i;
}

}  // namespace
}  // namespace quill
