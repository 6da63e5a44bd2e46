#include "driver/AppointmentJson.h"

#include <algorithm>

#include "driver/Arguments.h"
#include "store/AppointmentFields.h"
#include "store/AutomationDate.h"

namespace quill::driver {

namespace {

constexpr qsizetype kDayLength = 10;  // of "2004-02-01"

// How each kind of member is written; undefined is left out.

QJsonValue Absent() { return QJsonValue::Undefined; }

QJsonValue Written(const QString& text) { return text.isEmpty() ? Absent() : text; }
QJsonValue Written(QDate date) {
  return date.isValid() ? QJsonValue(date.toString(Qt::ISODate)) : Absent();
}
QJsonValue Written(QTime time) { return time.toString(Qt::ISODate); }
QJsonValue Written(const CalendarDate& date) {
  if (date.Year == 0) return Absent();
  return DayOf(date).toString(Qt::ISODate) + u'T' + TimeOfDay(date).toString(Qt::ISODate);
}
QJsonValue Written(int number) { return number; }
QJsonValue Written(bool truth) { return truth; }
QJsonValue Written(RecurrenceType type) { return static_cast<int>(type); }
QJsonValue Written(const std::optional<QString>& text) {
  return text ? QJsonValue(*text) : QJsonValue::Null;
}
QJsonValue Written(const QByteArray& bytes) {
  return bytes.isEmpty() ? Absent() : QString::fromLatin1(bytes.toBase64());
}

template <typename Rows, typename Owner>
QJsonObject WrittenAll(const Rows& rows, const Owner& owner) {
  QJsonObject object;
  for (const auto& row : rows) {
    // Inserting what is undefined would only remove it.
    object.insert(row.Property,
                  std::visit([&](auto member) { return Written(owner.*member); }, row.Member));
  }
  return object;
}

// How each kind of member is taken; false when the value is none of its kind.

bool IsEmptyDate(const QJsonValue& value) {
  return value.isNull() || (value.isString() && value.toString().isEmpty());
}

bool IsInRange(QDate date) { return date.isValid() && date.year() >= 100 && date.year() <= 9999; }

// Qt's own reading of ISO times takes 24:00 for the beginning of the same day.
QTime ParseTime(const QString& text) {
  const bool hasSeconds = text.count(u':') == 2;
  return QTime::fromString(text, hasSeconds ? QStringLiteral("HH:mm:ss") : QStringLiteral("HH:mm"));
}

std::optional<CalendarDate> ParseDate(const QJsonValue& value) {
  if (value.isDouble()) return ToCalendarDate(value.toDouble());
  const QString text = value.toString();
  const QDate day = QDate::fromString(text.left(kDayLength), Qt::ISODate);
  const QTime time = ParseTime(text.mid(kDayLength + 1));
  if (!IsInRange(day) || !time.isValid() || text.at(kDayLength) != u'T') return std::nullopt;
  return MakeCalendarDate(day, time);
}

bool Take(const QJsonValue& value, QString& text) {
  if (value.isString()) text = value.toString();
  return value.isString();
}
bool Take(const QJsonValue& value, QTime& time) {
  time = ParseTime(value.toString());
  return time.isValid();
}
bool Take(const QJsonValue& value, CalendarDate& date) {
  date = ParseDate(value).value_or(CalendarDate());
  return date.Year != 0 || IsEmptyDate(value);
}
bool Take(const QJsonValue& value, QDate& date) {
  date = QDate::fromString(value.toString(), Qt::ISODate);
  return IsInRange(date) || IsEmptyDate(value);
}
bool Take(const QJsonValue& value, int& number) {
  const std::optional<int> whole = WholeNumber(value);
  number = whole.value_or(number);
  return whole.has_value();
}
bool Take(const QJsonValue& value, bool& truth) {
  truth = value.toBool(truth);
  return value.isBool();
}
bool Take(const QJsonValue& value, RecurrenceType& type) {
  const std::optional<int> whole = WholeNumber(value);
  type = static_cast<RecurrenceType>(whole.value_or(0));
  return whole.has_value();
}
bool Take(const QJsonValue& value, std::optional<QString>& text) {
  text.reset();
  return value.isNull() || Take(value, text.emplace());
}
bool Take(const QJsonValue& value, QByteArray& bytes) {
  bytes = QByteArray::fromBase64(value.toString().toLatin1());
  return value.isString();
}

template <typename Rows, typename Owner>
bool TakeOne(const Rows& rows, const QString& name, const QJsonValue& value, Owner& owner) {
  const auto row = std::find_if(rows.begin(), rows.end(),
                                [&](const auto& field) { return field.Property == name; });
  return row != rows.end() &&
         std::visit([&](auto member) { return Take(value, owner.*member); }, row->Member);
}

template <typename Rows, typename Owner>
bool TakeAll(const Rows& rows, const QJsonObject& values, Owner& owner) {
  for (auto value = values.begin(); value != values.end(); ++value) {
    if (!TakeOne(rows, value.key(), value.value(), owner)) return false;
  }
  return true;
}

}  // namespace

QJsonObject FieldsJson(const AppointmentItem& item) { return WrittenAll(kAppointmentFields, item); }

QJsonValue RecurrenceJson(const AppointmentItem& item) {
  return item.Recurrence ? QJsonValue(WrittenAll(kPatternFields, *item.Recurrence))
                         : QJsonValue::Null;
}

bool PutFields(const QJsonObject& fields, AppointmentItem& item) {
  return TakeAll(kAppointmentFields, fields, item);
}

bool PutRecurrence(const QJsonValue& recurrence, AppointmentItem& item) {
  if (!recurrence.isNull() && !recurrence.isObject()) return false;
  if (recurrence.isNull()) {
    item.Recurrence.reset();
    return true;
  }
  item.Recurrence = PatternOf(item);
  return TakeAll(kPatternFields, recurrence.toObject(), *item.Recurrence);
}

}  // namespace quill::driver
