// Dates and times as texts. A picture says how: "yyyy", "MM", "dd" and "ddd" (Mon), "hh" with a
// leading zero or "h" without, of 12 hours, "mm", "tt" for AM or PM; what stands in single quotes
// is taken as it is. Names are English on every desktop.
#pragma once

#include <QDateTime>
#include <QString>

namespace quill {

inline constexpr QStringView kDatePicture = u"yyyy.MM.dd";
inline constexpr QStringView kWeekdayDatePicture = u"yyyy.MM.dd(ddd)";
inline constexpr QStringView kTypedDatePicture = u"MM/dd/yyyy";
inline constexpr QStringView kTimePicture = u"hh':'mm tt";
inline constexpr QStringView kHalfOfDayTimePicture = u"tt h':'mm";

// Empty for what is no date or no time.
QString FormatDate(QDate date, QStringView picture);
QString FormatTime(QTime time, QStringView picture);

// The picture in the terms of Qt's own formats.
QString QtFormat(QStringView picture);

}  // namespace quill
