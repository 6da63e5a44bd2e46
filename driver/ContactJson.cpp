#include "driver/ContactJson.h"

#include <QDate>

#include <algorithm>

#include "store/AutomationDate.h"
#include "store/ContactFields.h"

namespace quill::driver {

namespace {

constexpr QStringView kBodyInk = u"BodyInk";
// No month: the store keeps what it has instead of such a date.
constexpr CalendarDate kNoSuchDate{.Year = 1900, .Month = 13};

QString DateText(const CalendarDate& date) {
  return QDate(date.Year, date.Month, date.Day).toString(Qt::ISODate);
}

std::optional<CalendarDate> ParseDate(const QJsonValue& value) {
  if (value.isNull()) return CalendarDate{};
  if (value.isDouble()) return ToCalendarDate(value.toDouble());
  if (!value.isString()) return std::nullopt;
  if (value.toString().isEmpty()) return CalendarDate{};
  const QDate date = QDate::fromString(value.toString(), Qt::ISODate);
  if (!date.isValid() || date.year() < 100 || date.year() > 9999) return std::nullopt;
  CalendarDate parts;
  parts.Year = static_cast<quint16>(date.year());
  parts.Month = static_cast<quint16>(date.month());
  parts.Day = static_cast<quint16>(date.day());
  parts.DayOfWeek = static_cast<quint16>(date.dayOfWeek() % 7);
  return parts;
}

bool PutDate(CalendarDate& date, const QJsonValue& value) {
  const std::optional<CalendarDate> parsed = ParseDate(value);
  if (parsed) date = *parsed;
  return parsed.has_value();
}

bool PutField(const QString& name, const QJsonValue& value, ContactItem& item) {
  for (const ContactDateRow& row : kContactDates)
    if (row.Property == name) return PutDate(item.Record.*row.Date, value);
  if (!value.isString()) return false;
  if (name == kBodyInk) {
    item.BodyInk = QByteArray::fromBase64(value.toString().toLatin1());
    return true;
  }
  const auto row =
      std::find_if(kContactFields.begin(), kContactFields.end(),
                   [&](const ContactFieldRow& field) { return field.Property == name; });
  if (row == kContactFields.end()) return false;
  item.Record[row->Field] = value.toString();
  return true;
}

}  // namespace

QJsonObject FieldsJson(const ContactItem& item) {
  QJsonObject fields;
  for (const ContactFieldRow& row : kContactFields)
    if (const QString& text = item.Record[row.Field]; !text.isEmpty())
      fields.insert(row.Property, text);
  for (const ContactDateRow& row : kContactDates)
    if (const CalendarDate& date = item.Record.*row.Date; date.Year != 0)
      fields.insert(row.Property, DateText(date));
  if (!item.BodyInk.isEmpty())
    fields.insert(kBodyInk, QString::fromLatin1(item.BodyInk.toBase64()));
  return fields;
}

bool PutFields(const QJsonObject& fields, ContactItem& item) {
  for (auto field = fields.begin(); field != fields.end(); ++field)
    if (!PutField(field.key(), field.value(), item)) return false;
  return true;
}

void KeepStoredDates(const QJsonObject& fields, ContactRecord& record) {
  for (const ContactDateRow& row : kContactDates)
    if (!fields.contains(row.Property)) record.*row.Date = kNoSuchDate;
}

}  // namespace quill::driver
