#include "store/pim/AppointmentRows.h"

#include <algorithm>
#include <cmath>

#include "store/AutomationDate.h"
#include "store/pim/ItemTables.h"
#include "store/pim/Query.h"

namespace quill {

namespace {

constexpr double kMillisecondsPerDay = 86'400'000.0;
constexpr char kFromOne[] = " FROM appointment WHERE Oid = ?1";
constexpr QStringView kPatternPrefix = u"Recurrence";

QByteArray PatternColumnName(const PatternFieldRow& row) {
  const QByteArray property = row.Property.toUtf8();
  return row.Property.startsWith(kPatternPrefix) ? property : kPatternPrefix.toUtf8() + property;
}

// How each kind of member is declared, bound and read.

QByteArray Declaration(const QString&) { return " TEXT NOT NULL DEFAULT ''"; }
QByteArray Declaration(const CalendarDate&) {
  return " REAL NOT NULL DEFAULT " + QByteArray::number(kEmptyAutomationDate, 'f', 1);
}
QByteArray Declaration(int) { return " INTEGER NOT NULL DEFAULT 0"; }
QByteArray Declaration(const std::optional<QString>&) { return " TEXT"; }
QByteArray Declaration(const QByteArray&) { return " BLOB NOT NULL DEFAULT x''"; }

double StoredDate(const CalendarDate& date) {
  return ToAutomationDate(date).value_or(kEmptyAutomationDate);
}

void Bind(Query& query, int parameter, const QString& text) { query.BindText(parameter, text); }
void Bind(Query& query, int parameter, const CalendarDate& date) {
  query.BindReal(parameter, StoredDate(date));
}
void Bind(Query& query, int parameter, int number) { query.BindNumber(parameter, number); }
void Bind(Query& query, int parameter, const std::optional<QString>& text) {
  if (text) query.BindText(parameter, *text);
}
void Bind(Query& query, int parameter, const QByteArray& bytes) {
  query.BindBlob(parameter, bytes);
}
void Bind(Query& query, int parameter, RecurrenceType type) {
  query.BindNumber(parameter, static_cast<int>(type));
}
void Bind(Query& query, int parameter, QTime time) {
  query.BindReal(parameter, time.msecsSinceStartOfDay() / kMillisecondsPerDay);
}
void Bind(Query& query, int parameter, QDate date) {
  query.BindReal(parameter, StoredDate(MakeCalendarDate(date, QTime(0, 0))));
}

CalendarDate DateAt(const Query& query, int column) {
  const double date = query.Real(column);
  return date == kEmptyAutomationDate ? CalendarDate{}
                                      : ToCalendarDate(date).value_or(CalendarDate{});
}

void Read(const Query& query, int column, QString& text) { text = query.Text(column); }
void Read(const Query& query, int column, CalendarDate& date) { date = DateAt(query, column); }
void Read(const Query& query, int column, int& number) {
  number = static_cast<int>(query.Number(column));
}
void Read(const Query& query, int column, bool& truth) { truth = query.Number(column) != 0; }
void Read(const Query& query, int column, std::optional<QString>& text) {
  text = query.IsNull(column) ? std::nullopt : std::optional(query.Text(column));
}
void Read(const Query& query, int column, QByteArray& bytes) { bytes = query.Blob(column); }
void Read(const Query& query, int column, RecurrenceType& type) {
  type = static_cast<RecurrenceType>(query.Number(column));
}
void Read(const Query& query, int column, QTime& time) {
  const double milliseconds = std::round(query.Real(column) * kMillisecondsPerDay);
  const double withinTheDay = std::clamp(milliseconds, 0.0, kMillisecondsPerDay - 1);
  time = QTime::fromMSecsSinceStartOfDay(static_cast<int>(withinTheDay));
}
void Read(const Query& query, int column, QDate& date) { date = DayOf(DateAt(query, column)); }

// Calls with each row of the item's columns and the number of the column, from 0.
template <typename Visit>
void ForEachItemColumn(Visit visit) {
  int column = 0;
  for (const AppointmentFieldRow& row : kAppointmentFields) visit(row, column++);
  for (const AppointmentFieldRow& row : kAppointmentImportFields) visit(row, column++);
}

QByteArrayList ColumnDeclarations() {
  QByteArrayList columns = AppointmentColumnNames();
  ForEachItemColumn([&columns](const AppointmentFieldRow& row, int column) {
    columns[column] +=
        std::visit([](auto member) { return Declaration(AppointmentItem().*member); }, row.Member);
  });
  return columns;
}

}  // namespace

QByteArrayList AppointmentColumnNames() {
  QByteArrayList names;
  ForEachItemColumn(
      [&names](const AppointmentFieldRow& row, int) { names.append(row.Property.toUtf8()); });
  for (const PatternFieldRow& row : kPatternFields) names.append(PatternColumnName(row));
  return names;
}

QByteArray AppointmentTables() {
  return ItemTables("appointment", AppointmentColumnNames(), ColumnDeclarations());
}

AppointmentSql MakeAppointmentSql() {
  const QByteArrayList names = AppointmentColumnNames();
  QByteArrayList values;
  QByteArrayList assignments;
  for (int i = 0; i < kAppointmentColumnCount; ++i) {
    values.append('?' + QByteArray::number(i + 1));
    assignments.append(names[i] + " = " + values[i]);
  }
  return {.Insert = "INSERT INTO appointment (" + names.join(", ") + ") VALUES (" +
                    values.join(", ") + ')',
          .Update = "UPDATE appointment SET " + assignments.join(", ") + " WHERE Oid = ?" +
                    QByteArray::number(kAppointmentOidParameter),
          .Read = "SELECT " + names.join(", ") + kFromOne,
          .ReadSubject = "SELECT " + PropertyOf(&AppointmentItem::Subject).toUtf8() + kFromOne};
}

void BindAppointment(Query& query, const AppointmentItem& item) {
  ForEachItemColumn([&](const AppointmentFieldRow& row, int column) {
    std::visit([&](auto member) { Bind(query, column + 1, item.*member); }, row.Member);
  });
  if (!item.Recurrence) return;
  int column = kPatternColumn;
  for (const PatternFieldRow& row : kPatternFields) {
    ++column;
    std::visit([&](auto member) { Bind(query, column, *item.Recurrence.*member); }, row.Member);
  }
}

void ReadAppointmentRow(const Query& query, AppointmentItem& item) {
  ForEachItemColumn([&](const AppointmentFieldRow& row, int column) {
    std::visit([&](auto member) { Read(query, column, item.*member); }, row.Member);
  });
  item.Recurrence.reset();
  if (query.IsNull(kPatternColumn)) return;
  RecurrencePattern& pattern = item.Recurrence.emplace();
  int column = kPatternColumn;
  for (const PatternFieldRow& row : kPatternFields) {
    std::visit([&](auto member) { Read(query, column, pattern.*member); }, row.Member);
    ++column;
  }
}

}  // namespace quill
