#include "exchange/CardDate.h"

#include <QDate>
#include <QList>

#include <algorithm>

#include "store/AutomationDate.h"

namespace quill {

namespace {

constexpr int kFirstYear = 1900;
constexpr int kLastYear = 2999;

bool IsDigits(QStringView text) {
  return !text.isEmpty() &&
         std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

// Year, month and day as written; empty when the text has another form.
QList<QStringView> DateParts(QStringView day) {
  if (day.size() == 8 && IsDigits(day)) {
    return {day.first(4), day.sliced(4, 2), day.sliced(6, 2)};
  }
  const QList<QStringView> parts = day.split(u'-');
  const bool isDate = parts.size() == 3 && parts.at(0).size() == 4 && parts.at(1).size() <= 2 &&
                      parts.at(2).size() <= 2 && std::all_of(parts.begin(), parts.end(), IsDigits);
  return isDate ? parts : QList<QStringView>();
}

}  // namespace

std::optional<CalendarDate> DateFromCard(QStringView text) {
  const QStringView trimmed = text.trimmed();
  const auto isTime = [](QChar c) { return c == u'T' || c == u't' || c == u' '; };
  const auto end = std::find_if(trimmed.begin(), trimmed.end(), isTime);
  const QList<QStringView> parts = DateParts(trimmed.first(end - trimmed.begin()));
  if (parts.isEmpty()) return std::nullopt;
  const QDate date(parts.at(0).toInt(), parts.at(1).toInt(), parts.at(2).toInt());
  if (!date.isValid() || date.year() < kFirstYear || date.year() > kLastYear) return std::nullopt;
  CalendarDate calendar;
  calendar.Year = static_cast<quint16>(date.year());
  calendar.Month = static_cast<quint16>(date.month());
  calendar.Day = static_cast<quint16>(date.day());
  calendar.DayOfWeek = static_cast<quint16>(date.dayOfWeek() % 7);
  return calendar;
}

QString DateForCard(const CalendarDate& date, CardVersion version) {
  return DayOf(date).toString(version == CardVersion::V40 ? u"yyyyMMdd" : u"yyyy-MM-dd");
}

}  // namespace quill
