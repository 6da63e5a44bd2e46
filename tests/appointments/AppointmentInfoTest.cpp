#include "appointments/AppointmentInfo.h"

#include <gtest/gtest.h>

#include <ostream>

#include "store/AppointmentStore.h"
#include "store/AutomationDate.h"
#include "store/ContactStore.h"
#include "store/pim/PimStore.h"
#include "support/FaultyStore.h"
#include "support/FreshState.h"

namespace quill {
namespace {

const QDate kWednesday(2004, 9, 15);  // bit 8

AppointmentItem ItemOn(QDate day) {
  return {.Id = 7,
          .Subject = QStringLiteral("(Kim) tea"),
          .Start = MakeCalendarDate(day, QTime(10, 0)),
          .End = MakeCalendarDate(day, QTime(11, 30))};
}

RecurrencePattern PatternOfType(int type) {
  return {.Type = static_cast<RecurrenceType>(type), .PatternStartDate = kWednesday};
}

struct ChoiceCase {
  int Type;
  int Mask;
  int Choice;
  int ShownMask;
};

void PrintTo(const ChoiceCase& row, std::ostream* out) {
  *out << "type " << row.Type << " mask " << row.Mask;
}

class StoredChoice : public testing::TestWithParam<ChoiceCase> {};

TEST_P(StoredChoice, FollowsFromTypeAndMask) {
  AppointmentItem item = ItemOn(kWednesday);
  item.Recurrence = PatternOfType(GetParam().Type);
  item.Recurrence->DayOfWeekMask = GetParam().Mask;
  const AppointmentInfo info = InfoOf(item);
  EXPECT_EQ(static_cast<int>(info.Choice), GetParam().Choice);
  EXPECT_EQ(info.DayMask, GetParam().ShownMask);
  EXPECT_EQ(info.Type, GetParam().Type);
}

INSTANTIATE_TEST_SUITE_P(Daily, StoredChoice,
                         testing::Values(ChoiceCase{0, 0, 1, 8}, ChoiceCase{0, 8, 1, 8},
                                         ChoiceCase{0, 2, 1, 8}, ChoiceCase{0, 62, 3, 62},
                                         ChoiceCase{0, 127, 1, 8}, ChoiceCase{0, 128, 1, 8}));
INSTANTIATE_TEST_SUITE_P(Weekly, StoredChoice,
                         testing::Values(ChoiceCase{1, 8, 2, 8}, ChoiceCase{1, 62, 3, 62},
                                         ChoiceCase{1, 4, 8, 4}, ChoiceCase{1, 10, 8, 10},
                                         ChoiceCase{1, 0, 8, 0}, ChoiceCase{1, 127, 8, 127},
                                         ChoiceCase{1, 128, 8, 128}, ChoiceCase{1, 136, 8, 136}));
INSTANTIATE_TEST_SUITE_P(Monthly, StoredChoice,
                         testing::Values(ChoiceCase{2, 0, 4, 8}, ChoiceCase{2, 8, 4, 8},
                                         ChoiceCase{2, 4, 4, 8}, ChoiceCase{2, 62, 4, 8},
                                         ChoiceCase{2, 128, 4, 8}));
INSTANTIATE_TEST_SUITE_P(MonthlyNth, StoredChoice,
                         testing::Values(ChoiceCase{3, 8, 5, 8}, ChoiceCase{3, 62, 5, 62},
                                         ChoiceCase{3, 4, 8, 4}, ChoiceCase{3, 0, 8, 0},
                                         ChoiceCase{3, 128, 8, 128}));
INSTANTIATE_TEST_SUITE_P(Yearly, StoredChoice,
                         testing::Values(ChoiceCase{5, 0, 6, 8}, ChoiceCase{5, 8, 6, 8},
                                         ChoiceCase{5, 62, 6, 8}, ChoiceCase{5, 128, 6, 8}));
INSTANTIATE_TEST_SUITE_P(YearlyNth, StoredChoice,
                         testing::Values(ChoiceCase{6, 8, 7, 8}, ChoiceCase{6, 62, 7, 62},
                                         ChoiceCase{6, 4, 8, 4}, ChoiceCase{6, 0, 8, 0},
                                         ChoiceCase{6, 128, 8, 128}));
INSTANTIATE_TEST_SUITE_P(OfNoKnownType, StoredChoice,
                         testing::Values(ChoiceCase{4, 8, 8, 8}, ChoiceCase{4, 62, 8, 62},
                                         ChoiceCase{7, 8, 8, 8}, ChoiceCase{7, 0, 8, 0},
                                         ChoiceCase{-1, 8, 8, 8}, ChoiceCase{-1, 62, 8, 62}));

// Each of the types with a mask that it would be shown as a quick choice with.
struct QuickPattern {
  int Type;
  int Mask;
};

void PrintTo(const QuickPattern& pattern, std::ostream* out) {
  *out << "type " << pattern.Type << " mask " << pattern.Mask;
}

class QuickChoice : public testing::TestWithParam<QuickPattern> {
 protected:
  AppointmentInfo InfoWith(int interval, bool noEndDate) const {
    AppointmentItem item = ItemOn(kWednesday);
    item.Recurrence = PatternOfType(GetParam().Type);
    item.Recurrence->DayOfWeekMask = GetParam().Mask;
    item.Recurrence->Interval = interval;
    item.Recurrence->NoEndDate = noEndDate;
    return InfoOf(item);
  }
};

TEST_P(QuickChoice, IsOneWithoutAnEndAndWithoutAnIntervalAboveOne) {
  for (const int interval : {1, 0, -3})
    EXPECT_NE(InfoWith(interval, true).Choice, RecurrenceChoice::EditPattern) << interval;
}

TEST_P(QuickChoice, IsAPatternOfItsOwnWithAnEnd) {
  const AppointmentInfo info = InfoWith(1, false);
  EXPECT_EQ(info.Choice, RecurrenceChoice::EditPattern);
  EXPECT_EQ(info.DayMask, GetParam().Mask);
}

TEST_P(QuickChoice, IsAPatternOfItsOwnWithAnIntervalAboveOne) {
  const AppointmentInfo info = InfoWith(2, true);
  EXPECT_EQ(info.Choice, RecurrenceChoice::EditPattern);
  EXPECT_EQ(info.DayMask, GetParam().Mask);
  EXPECT_EQ(info.Interval, 2);
}

INSTANTIATE_TEST_SUITE_P(Types, QuickChoice,
                         testing::Values(QuickPattern{0, 0}, QuickPattern{0, 62},
                                         QuickPattern{1, 8}, QuickPattern{1, 62},
                                         QuickPattern{2, 0}, QuickPattern{3, 8}, QuickPattern{5, 0},
                                         QuickPattern{6, 8}));

struct WeekdayCase {
  int Day;  // of September 2004
  int Bit;
};

class StartWeekday : public testing::TestWithParam<WeekdayCase> {};

TEST_P(StartWeekday, IsWhatAWeeklyMaskIsComparedWith) {
  AppointmentItem item = ItemOn({2004, 9, GetParam().Day});
  item.Recurrence = PatternOfType(1);
  item.Recurrence->DayOfWeekMask = GetParam().Bit;
  EXPECT_EQ(InfoOf(item).Choice, RecurrenceChoice::EveryWeek);
  item.Recurrence->DayOfWeekMask = GetParam().Bit * 2;
  EXPECT_EQ(InfoOf(item).Choice, RecurrenceChoice::EditPattern);
}

TEST_P(StartWeekday, IsTheMaskOfWhatDoesNotRecur) {
  EXPECT_EQ(InfoOf(ItemOn({2004, 9, GetParam().Day})).DayMask, GetParam().Bit);
}

INSTANTIATE_TEST_SUITE_P(Days, StartWeekday,
                         testing::Values(WeekdayCase{12, 1}, WeekdayCase{13, 2}, WeekdayCase{14, 4},
                                         WeekdayCase{15, 8}, WeekdayCase{16, 16},
                                         WeekdayCase{17, 32}, WeekdayCase{18, 64}));

TEST(AppointmentInfo, APatternsDayInstanceAndMonthAreTakenAsTheyAreAndNotComparedWithTheStart) {
  AppointmentItem item = ItemOn(kWednesday);
  item.Recurrence = PatternOfType(6);
  item.Recurrence->DayOfWeekMask = 8;
  item.Recurrence->DayOfMonth = 31;
  item.Recurrence->Instance = 5;
  item.Recurrence->MonthOfYear = 2;
  const AppointmentInfo info = InfoOf(item);
  EXPECT_TRUE(info.Recurring);
  EXPECT_EQ(info.Choice, RecurrenceChoice::EveryYearNth);
  EXPECT_EQ(info.DayOfMonth, 31);
  EXPECT_EQ(info.Instance, 5);
  EXPECT_EQ(info.MonthOfYear, 2);
  EXPECT_EQ(info.Interval, 1);
}

struct SingleDayCase {
  int Day;
  int Instance;
};

class SingleDay : public testing::TestWithParam<SingleDayCase> {};

TEST_P(SingleDay, CountsItsWeekOfTheMonthFromZeroAsIntended) {
  const AppointmentInfo info = InfoOf(ItemOn({2004, 10, GetParam().Day}));
  EXPECT_FALSE(info.Recurring);
  EXPECT_EQ(info.Choice, RecurrenceChoice::Once);
  EXPECT_EQ(info.Type, -1);
  EXPECT_EQ(info.Interval, 1);
  EXPECT_EQ(info.DayOfMonth, GetParam().Day);
  EXPECT_EQ(info.Instance, GetParam().Instance);
  EXPECT_EQ(info.MonthOfYear, 10);
}

INSTANTIATE_TEST_SUITE_P(Days, SingleDay,
                         testing::Values(SingleDayCase{1, 0}, SingleDayCase{7, 0},
                                         SingleDayCase{8, 1}, SingleDayCase{14, 1},
                                         SingleDayCase{21, 2}, SingleDayCase{28, 3},
                                         SingleDayCase{29, 4}, SingleDayCase{31, 4}));

TEST(AppointmentInfo, HasTheItemsTextsDatesAndFlags) {
  AppointmentItem item = ItemOn(kWednesday);
  item.Location = QStringLiteral("Seoul");
  item.Categories = QStringLiteral("Business, Friends");
  item.AllDayEvent = true;
  const AppointmentInfo info = InfoOf(item);
  EXPECT_EQ(info.Oid, 7);
  EXPECT_EQ(info.Subject, QStringLiteral("(Kim) tea"));
  EXPECT_EQ(info.Location, QStringLiteral("Seoul"));
  EXPECT_EQ(info.Categories, QStringLiteral("Business, Friends"));
  EXPECT_EQ(info.Start, item.Start);
  EXPECT_EQ(info.End, item.End);
  EXPECT_TRUE(info.AllDay);
  EXPECT_FALSE(InfoOf(ItemOn(kWednesday)).AllDay);
}

TEST(AppointmentInfo, IsSensitiveWithAnySensitivityButNone) {
  AppointmentItem item = ItemOn(kWednesday);
  EXPECT_FALSE(InfoOf(item).Sensitive);
  for (const int sensitivity : {1, 2, 3, -1}) {
    item.Sensitivity = sensitivity;
    EXPECT_TRUE(InfoOf(item).Sensitive) << sensitivity;
  }
}

class ReminderOfInfo : public testing::Test {
 protected:
  ReminderOfInfo() {
    m_item.ReminderSoundFile = QStringLiteral("Bell.wav");
    m_item.ReminderMinutesBeforeStart = 90;
  }

  AppointmentItem m_item = ItemOn(kWednesday);
};

TEST_F(ReminderOfInfo, IsTakenWhenItIsSet) {
  m_item.ReminderSet = true;
  const AppointmentInfo info = InfoOf(m_item);
  EXPECT_TRUE(info.ReminderOn);
  EXPECT_EQ(info.ReminderSoundFile, QStringLiteral("Bell.wav"));
  EXPECT_EQ(info.ReminderMinutes, 90);
}

TEST_F(ReminderOfInfo, WithoutASoundFileHasAnEmptyName) {
  m_item.ReminderSet = true;
  m_item.ReminderSoundFile.reset();
  EXPECT_EQ(InfoOf(m_item).ReminderSoundFile, QString());
}

TEST_F(ReminderOfInfo, ThatIsOffLeavesNothing) {
  const AppointmentInfo info = InfoOf(m_item);
  EXPECT_FALSE(info.ReminderOn);
  EXPECT_EQ(info.ReminderSoundFile, QString());
  EXPECT_EQ(info.ReminderMinutes, 0);
}

class LoadedInfo : public test::FreshState {
 protected:
  ~LoadedInfo() override { CloseSession(); }

  void SetUp() override { ASSERT_EQ(OpenSession(m_store), StartupCode::Opened); }

  PimStore m_pimStore{QStringLiteral(":memory:")};
  test::FaultyStore m_store{m_pimStore};
  AppointmentInfo m_info{.Subject = QStringLiteral("before")};
};

TEST_F(LoadedInfo, IsThatOfTheStoredAppointment) {
  AppointmentItem item = ItemOn(kWednesday);
  item.Id = 0;
  item.Duration = 90;
  item.Recurrence = PatternOf(item);
  ASSERT_TRUE(SaveAppointment(item));
  EXPECT_EQ(LoadAppointmentInfo(item.Id, m_info), item.Id);
  EXPECT_EQ(m_info, InfoOf(item));
  EXPECT_EQ(m_info.Oid, item.Id);
  EXPECT_EQ(m_info.Choice, RecurrenceChoice::EveryWeek);
}

TEST_F(LoadedInfo, StaysAsItWasWhenThereIsNoSuchAppointment) {
  EXPECT_EQ(LoadAppointmentInfo(12345, m_info), 0);
  EXPECT_EQ(m_info, AppointmentInfo{.Subject = QStringLiteral("before")});
}

}  // namespace
}  // namespace quill
