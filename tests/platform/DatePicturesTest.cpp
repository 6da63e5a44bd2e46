#include "platform/DatePictures.h"

#include <gtest/gtest.h>

#include <QLocale>

namespace quill {
namespace {

struct DateCase {
  QStringView Picture;
  const char16_t* Text;
};

class DatePicture : public testing::TestWithParam<DateCase> {};

TEST_P(DatePicture, WritesADay) {
  EXPECT_EQ(FormatDate(QDate(2004, 2, 1), GetParam().Picture), QString::fromUtf16(GetParam().Text));
}

INSTANTIATE_TEST_SUITE_P(All, DatePicture,
                         testing::Values(DateCase{kDatePicture, u"2004.02.01"},
                                         DateCase{kWeekdayDatePicture, u"2004.02.01(Sun)"},
                                         DateCase{kTypedDatePicture, u"02/01/2004"}));

struct TimeCase {
  QTime Time;
  const char16_t* Typed;
  const char16_t* HalfOfDayFirst;
};

class TimePicture : public testing::TestWithParam<TimeCase> {};

TEST_P(TimePicture, WritesATimeOfTwelveHours) {
  EXPECT_EQ(FormatTime(GetParam().Time, kTimePicture), QString::fromUtf16(GetParam().Typed));
  EXPECT_EQ(FormatTime(GetParam().Time, kHalfOfDayTimePicture),
            QString::fromUtf16(GetParam().HalfOfDayFirst));
}

INSTANTIATE_TEST_SUITE_P(All, TimePicture,
                         testing::Values(TimeCase{{0, 5}, u"12:05 AM", u"AM 12:05"},
                                         TimeCase{{9, 30}, u"09:30 AM", u"AM 9:30"},
                                         TimeCase{{12, 0}, u"12:00 PM", u"PM 12:00"},
                                         TimeCase{{23, 59, 59}, u"11:59 PM", u"PM 11:59"}));

TEST(DatePictures, NamesAreEnglishWhateverTheDesktopsLanguage) {
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::Korean));
  EXPECT_EQ(FormatDate(QDate(2004, 2, 2), kWeekdayDatePicture), QStringLiteral("2004.02.02(Mon)"));
  EXPECT_EQ(FormatTime(QTime(13, 0), kTimePicture), QStringLiteral("01:00 PM"));
  QLocale::setDefault(before);
}

TEST(DatePictures, WhatIsNoDateOrTimeIsEmpty) {
  EXPECT_EQ(FormatDate({}, kDatePicture), QString());
  EXPECT_EQ(FormatTime({}, kTimePicture), QString());
}

}  // namespace
}  // namespace quill
