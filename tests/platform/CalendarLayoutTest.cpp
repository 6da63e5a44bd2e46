#include "platform/CalendarLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

namespace quill {
namespace {

constexpr QSize kSize(190, 133);

CalendarModel ModelOf(QDate current, QDate today = {2004, 9, 15}) {
  return {.Current = current, .Today = today};
}

const CalendarModel kSeptember = ModelOf({2004, 9, 8});

// The row of this key; an empty one when there is none.
PaintedRow RowOf(const std::vector<PaintedRow>& rows, qint64 key) {
  const auto found = std::ranges::find(rows, static_cast<int>(key), &PaintedRow::Key);
  return found == rows.end() ? PaintedRow() : *found;
}

PaintedRow RowOf(const CalendarModel& model, QDate day) {
  return RowOf(LayOutCalendar(model, kSize), day.toJulianDay());
}

std::vector<PaintedRow> DaysOf(const CalendarModel& model) {
  std::vector<PaintedRow> days;
  for (const PaintedRow& row : LayOutCalendar(model, kSize))
    if (DayOfCalendarKey(row.Key)) days.push_back(row);
  return days;
}

QStringList HeaderTexts(const CalendarModel& model) {
  QStringList texts;
  for (const PaintedRow& row : LayOutCalendar(model, kSize))
    if (row.Role == PaintedRole::Text) texts << row.Items.back().Text;
  return texts;
}

bool HasFill(const PaintedRow& row, QRect area) {
  return std::ranges::any_of(
      row.Items, [&](const PaintedItem& item) { return item.Fill && item.Rectangle == area; });
}

TEST(CalendarLayout, NamesMonthYearAndTheDaysOfAWeekFromSundayOn) {
  EXPECT_EQ(HeaderTexts(kSeptember).join(u' '), QStringLiteral("September 2004 S M T W T F S"));
  const auto rows = LayOutCalendar(kSeptember, kSize);
  QStringList spoken;
  for (const PaintedRow& row : rows)
    if (row.Role == PaintedRole::Text && row.Rectangle.top() > 0) spoken << row.SpokenName;
  EXPECT_EQ(spoken.first(), QStringLiteral("Sunday"));
  EXPECT_EQ(spoken.last(), QStringLiteral("Saturday"));
}

TEST(CalendarLayout, TheHeaderFillsItsWidthWithoutGaps) {
  const auto rows = LayOutCalendar(kSeptember, kSize);
  int right = 0;
  for (std::size_t i = 0; i < 8; ++i) {
    EXPECT_EQ(rows[i].Rectangle.left(), right);
    EXPECT_EQ(rows[i].Rectangle.height(), 22);
    right = rows[i].Rectangle.right() + 1;
  }
  EXPECT_EQ(right, 190);
  EXPECT_EQ(rows[1].Rectangle, QRect(16, 0, 62, 22));
  EXPECT_EQ(rows[5].Rectangle, QRect(126, 0, 32, 22));
}

TEST(CalendarLayout, ItsButtonsStandInTheOrderOfWhatTheyDo) {
  std::vector<int> keys;
  QStringList spoken;
  for (const PaintedRow& row : LayOutCalendar(kSeptember, kSize))
    if (row.Role == PaintedRole::Button && row.Rectangle.top() == 0) {
      keys.push_back(row.Key);
      spoken << row.SpokenName;
    }
  EXPECT_EQ(keys, (std::vector<int>{kPreviousMonthKey, kNextMonthKey, kTenYearsBackKey,
                                    kPreviousYearKey, kNextYearKey, kTenYearsOnKey}));
  EXPECT_EQ(spoken.join(u'|'),
            QStringLiteral("Previous month|Next month|Ten years back|Previous year|Next year|"
                           "Ten years on"));
}

TEST(CalendarLayout, APictureStandsInTheMiddleOfItsButton) {
  const PaintedRow row = RowOf(LayOutCalendar(kSeptember, kSize), kPreviousMonthKey);
  EXPECT_EQ(row.Items[0].Rectangle, row.Rectangle);
  EXPECT_EQ(row.Items[1].Rectangle, QRect(1, 4, 14, 14));
  EXPECT_EQ(row.Items[1].Picture, &resources::kLeftPicture);
}

TEST(CalendarLayout, SixWeeksStandBelowTheHeads) {
  const auto days = DaysOf(kSeptember);
  ASSERT_EQ(days.size(), 42U);
  EXPECT_EQ(days.front().Key, QDate(2004, 8, 29).toJulianDay());
  EXPECT_EQ(days.back().Key, QDate(2004, 10, 9).toJulianDay());
  EXPECT_EQ(days[0].Rectangle, QRect(0, 37, 27, 16));
  EXPECT_EQ(days[6].Rectangle, QRect(162, 37, 27, 16));
  EXPECT_EQ(days[7].Rectangle, QRect(0, 53, 27, 16));
  EXPECT_EQ(days[41].Rectangle, QRect(162, 117, 27, 16));
  EXPECT_EQ(days[3].Items.back().Text, QStringLiteral("1"));
}

TEST(CalendarLayout, AHeadStandsAboveItsDays) {
  const auto rows = LayOutCalendar(kSeptember, kSize);
  EXPECT_EQ(rows[8].Rectangle, QRect(0, 22, 27, 15));
  EXPECT_EQ(rows[14].Rectangle, QRect(162, 22, 27, 15));
}

TEST(CalendarLayout, ColumnsThatDoNotFillTheWidthStandInItsMiddle) {
  const auto rows = LayOutCalendar(kSeptember, {200, 133});
  EXPECT_EQ(RowOf(rows, QDate(2004, 8, 29).toJulianDay()).Rectangle.left(), 2);
}

TEST(CalendarLayout, AMonthThatBeginsOnSundayBeginsAtTheTop) {
  EXPECT_EQ(DaysOf(ModelOf({2004, 8, 1})).front().Key, QDate(2004, 8, 1).toJulianDay());
}

TEST(CalendarLayout, DaysOfOtherMonthsAreFaded) {
  const Rgb own = RowOf(kSeptember, {2004, 9, 1}).Items.back().Color;
  EXPECT_EQ(RowOf(kSeptember, {2004, 9, 30}).Items.back().Color, own);
  EXPECT_NE(RowOf(kSeptember, {2004, 8, 31}).Items.back().Color, own);
  EXPECT_NE(RowOf(kSeptember, {2004, 10, 1}).Items.back().Color, own);
}

TEST(CalendarLayout, OnlyTheCurrentDayIsSelected) {
  for (const PaintedRow& row : DaysOf(kSeptember)) {
    const bool isCurrent = row.Key == QDate(2004, 9, 8).toJulianDay();
    EXPECT_EQ(row.State.testFlag(PaintedStateFlag::Current), isCurrent);
    EXPECT_EQ(row.State.testFlag(PaintedStateFlag::Selected), isCurrent);
    EXPECT_TRUE(row.State.testFlag(PaintedStateFlag::Selectable));
    EXPECT_EQ(row.Role, PaintedRole::Button);
  }
  const PaintedRow current = RowOf(kSeptember, {2004, 9, 8});
  const PaintedRow other = RowOf(kSeptember, {2004, 9, 9});
  EXPECT_NE(current.Items.front().Fill, other.Items.front().Fill);
  EXPECT_NE(current.Items.back().Color, other.Items.back().Color);
}

TEST(CalendarLayout, TodayHasAFrame) {
  const PaintedRow today = RowOf(kSeptember, {2004, 9, 15});
  const PaintedRow other = RowOf(kSeptember, {2004, 9, 16});
  EXPECT_TRUE(HasFill(today, today.Rectangle));
  EXPECT_TRUE(HasFill(today, today.Rectangle.adjusted(1, 1, -1, -1)));
  EXPECT_FALSE(HasFill(other, other.Rectangle));
}

TEST(CalendarLayout, ADayIsReadOutInFull) {
  EXPECT_EQ(RowOf(kSeptember, {2004, 9, 8}).SpokenName,
            QStringLiteral("Wednesday, September 8, 2004"));
  EXPECT_EQ(RowOf(kSeptember, {2004, 9, 15}).SpokenName,
            QStringLiteral("Wednesday, September 15, 2004, today"));
}

TEST(CalendarLayout, WhatIsUnderThePenLooksPressed) {
  CalendarModel model = kSeptember;
  for (const int key : {kNextYearKey, static_cast<int>(QDate(2004, 9, 8).toJulianDay())}) {
    model.Pressed = key;
    EXPECT_NE(RowOf(LayOutCalendar(model, kSize), key).Items.front().Fill,
              RowOf(LayOutCalendar(kSeptember, kSize), key).Items.front().Fill);
  }
  EXPECT_EQ(RowOf(model, {2004, 9, 8}).Items.back().Color,
            RowOf(model, {2004, 9, 9}).Items.back().Color)
      << "not the colour for the dark ground";
}

TEST(CalendarLayout, EndsWithItsLastDayAndBeginsWithItsFirst) {
  const auto first = DaysOf(ModelOf({1900, 1, 1}));
  EXPECT_EQ(first.front().Key, QDate(1900, 1, 1).toJulianDay());
  EXPECT_EQ(first.size(), 41U);
  EXPECT_EQ(first.front().Rectangle.left(), 27) << "a Monday";
  const auto last = DaysOf(ModelOf({2999, 12, 31}));
  EXPECT_EQ(last.back().Key, QDate(2999, 12, 31).toJulianDay());
}

TEST(CalendarLayout, ButtonsThatLeadNowhereAreDisabled) {
  const auto rows = LayOutCalendar(ModelOf({1900, 1, 1}), kSize);
  for (const int key : {kPreviousMonthKey, kTenYearsBackKey, kPreviousYearKey})
    EXPECT_TRUE(RowOf(rows, key).State.testFlag(PaintedStateFlag::Disabled)) << key;
  for (const int key : {kNextMonthKey, kNextYearKey, kTenYearsOnKey})
    EXPECT_FALSE(RowOf(rows, key).State.testFlag(PaintedStateFlag::Disabled)) << key;
  EXPECT_NE(RowOf(rows, kPreviousMonthKey).Items[1].Color,
            RowOf(rows, kNextMonthKey).Items[1].Color);
}

TEST(CalendarLayout, OnlyKeysOfDaysAreDays) {
  for (int key = -1; key <= kTenYearsOnKey; ++key) EXPECT_FALSE(DayOfCalendarKey(key)) << key;
  EXPECT_EQ(DayOfCalendarKey(static_cast<int>(QDate(1900, 1, 1).toJulianDay())), QDate(1900, 1, 1));
}

TEST(CalendarLayout, KeepsDatesWithinItsEnds) {
  EXPECT_EQ(KeepInCalendar({1899, 12, 31}), QDate(1900, 1, 1));
  EXPECT_EQ(KeepInCalendar({3000, 1, 1}), QDate(2999, 12, 31));
  EXPECT_EQ(KeepInCalendar({2004, 2, 29}), QDate(2004, 2, 29));
}

struct ButtonCase {
  QDate From;
  int Key;
  QDate To;
};

void PrintTo(const ButtonCase& each, std::ostream* out) {
  *out << each.Key << " from " << each.From.toString(Qt::ISODate).toStdString();
}

class CalendarButton : public testing::TestWithParam<ButtonCase> {};

TEST_P(CalendarButton, LeadsToADay) {
  EXPECT_EQ(DateAfterCalendarButton(GetParam().From, GetParam().Key), GetParam().To);
}

INSTANTIATE_TEST_SUITE_P(
    Buttons, CalendarButton,
    testing::Values(ButtonCase{{2004, 9, 15}, kPreviousMonthKey, {2004, 8, 15}},
                    ButtonCase{{2004, 9, 15}, kNextMonthKey, {2004, 10, 15}},
                    ButtonCase{{2004, 9, 15}, kTenYearsBackKey, {1994, 9, 15}},
                    ButtonCase{{2004, 9, 15}, kPreviousYearKey, {2003, 9, 15}},
                    ButtonCase{{2004, 9, 15}, kNextYearKey, {2005, 9, 15}},
                    ButtonCase{{2004, 9, 15}, kTenYearsOnKey, {2014, 9, 15}},
                    ButtonCase{{2004, 9, 15}, kCalendarTextKey, {2004, 9, 15}},
                    ButtonCase{{2004, 1, 31}, kNextMonthKey, {2004, 2, 29}},
                    ButtonCase{{2004, 2, 29}, kNextYearKey, {2005, 2, 28}},
                    ButtonCase{{1905, 5, 5}, kTenYearsBackKey, {1900, 1, 1}},
                    ButtonCase{{1900, 5, 5}, kPreviousYearKey, {1900, 1, 1}},
                    ButtonCase{{1900, 1, 5}, kPreviousMonthKey, {1900, 1, 1}},
                    ButtonCase{{2999, 12, 5}, kNextMonthKey, {2999, 12, 31}},
                    ButtonCase{{2995, 5, 5}, kTenYearsOnKey, {2999, 12, 31}}));

struct KeyCase {
  QDate From;
  int Key;
  std::optional<QDate> To;
  Qt::KeyboardModifiers Modifiers = Qt::NoModifier;
};

void PrintTo(const KeyCase& each, std::ostream* out) {
  *out << each.Key << " from " << each.From.toString(Qt::ISODate).toStdString();
}

class CalendarKey : public testing::TestWithParam<KeyCase> {};

TEST_P(CalendarKey, LeadsToADay) {
  EXPECT_EQ(DateAfterCalendarKey(GetParam().From, GetParam().Key, GetParam().Modifiers),
            GetParam().To);
}

constexpr auto kControl = Qt::ControlModifier;

INSTANTIATE_TEST_SUITE_P(
    Keys, CalendarKey,
    testing::Values(KeyCase{{2004, 9, 1}, Qt::Key_Left, QDate(2004, 8, 31)},
                    KeyCase{{2004, 9, 30}, Qt::Key_Right, QDate(2004, 10, 1)},
                    KeyCase{{2004, 9, 15}, Qt::Key_Up, QDate(2004, 9, 8)},
                    KeyCase{{2004, 9, 15}, Qt::Key_Down, QDate(2004, 9, 22)},
                    KeyCase{{2004, 3, 31}, Qt::Key_PageUp, QDate(2004, 2, 29)},
                    KeyCase{{2004, 12, 15}, Qt::Key_PageDown, QDate(2005, 1, 15)},
                    KeyCase{{2004, 9, 15}, Qt::Key_PageUp, QDate(2003, 9, 15), kControl},
                    KeyCase{{2004, 9, 15}, Qt::Key_PageDown, QDate(2005, 9, 15), kControl},
                    KeyCase{{2004, 2, 15}, Qt::Key_Home, QDate(2004, 2, 1)},
                    KeyCase{{2004, 2, 15}, Qt::Key_End, QDate(2004, 2, 29)},
                    KeyCase{{1900, 1, 1}, Qt::Key_Left, QDate(1900, 1, 1)},
                    KeyCase{{1900, 1, 5}, Qt::Key_Up, QDate(1900, 1, 1)},
                    KeyCase{{2999, 12, 31}, Qt::Key_Right, QDate(2999, 12, 31)},
                    KeyCase{{2999, 12, 30}, Qt::Key_Down, QDate(2999, 12, 31)},
                    KeyCase{{2004, 9, 15}, Qt::Key_Return, std::nullopt},
                    KeyCase{{2004, 9, 15}, Qt::Key_Space, std::nullopt}));

}  // namespace
}  // namespace quill
