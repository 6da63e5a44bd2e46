// The names that texts on recurrence are made of.
#pragma once

#include <QDate>
#include <QString>

#include <array>

namespace quill {

inline constexpr QStringView kMondayToFridayText = u"Weekdays(Mon-Fri)";

// Sunday first.
inline constexpr std::array<QStringView, 7> kWeekdayNames = {
    u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday"};
inline constexpr std::array<QStringView, 7> kWeekdayAbbrevs = {u"Sun.", u"Mon.", u"Tue.", u"Wed.",
                                                               u"Thu.", u"Fri.", u"Sat."};
// The first one is that of instance 1 and of January.
inline constexpr std::array<QStringView, 5> kOrdinalNames = {u"1st", u"2nd", u"3rd", u"4th",
                                                             u"5th"};
inline constexpr std::array<QStringView, 12> kMonthAbbrevs = {u"Jan.", u"Feb.", u"Mar.", u"Apr.",
                                                              u"May.", u"Jun.", u"Jul.", u"Aug.",
                                                              u"Sep.", u"Oct.", u"Nov.", u"Dec."};

// The names of a day: of its weekday, its week of the month, its month. Empty for an invalid day.
struct DayNames {
  QString Weekday = {};
  QString WeekdayAbbrev = {};
  QString Ordinal = {};
  QString MonthAbbrev = {};
  int Day = 0;  // of the month
};
DayNames NamesOf(QDate day);

}  // namespace quill
