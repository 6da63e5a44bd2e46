#include "store/pim/ContactRows.h"

#include "store/AutomationDate.h"
#include "store/ContactFields.h"
#include "store/pim/Query.h"

namespace quill {

namespace {

constexpr int Parameter(int column) { return column + 1; }
constexpr bool IsDate(int column) { return column >= kDateColumn && column < kBodyInkColumn; }

QByteArray Placeholder(int column) { return '?' + QByteArray::number(Parameter(column)); }

QByteArray EmptyDate() { return QByteArray::number(kEmptyAutomationDate, 'f', 1); }

// What is written to a column: a date that is not bound leaves the other value there.
QByteArray Written(int column, const QByteArray& otherwise) {
  if (!IsDate(column)) return Placeholder(column);
  return "coalesce(" + Placeholder(column) + ", " + otherwise + ')';
}

bool EditWrites(int column) {
  if (column < kDateColumn) return kContactFields[static_cast<std::size_t>(column)].WrittenBack();
  return IsDate(column) || column == kBodyInkColumn;
}

QByteArray InsertSql(const QByteArrayList& names) {
  QByteArrayList values;
  for (int i = 0; i < kContactColumnCount; ++i) values.append(Written(i, EmptyDate()));
  return "INSERT INTO contact (" + names.join(", ") + ") VALUES (" + values.join(", ") + ')';
}

template <typename Includes>
QByteArray UpdateSql(const QByteArrayList& names, Includes includes) {
  QByteArrayList assignments;
  for (int i = 0; i < kContactColumnCount; ++i) {
    if (includes(i)) assignments.append(names[i] + " = " + Written(i, names[i]));
  }
  return "UPDATE contact SET " + assignments.join(", ") + " WHERE Oid = ?" +
         QByteArray::number(kOidParameter);
}

QByteArray SelectSql(const QByteArrayList& names) {
  return "SELECT " + names.join(", ") + " FROM contact WHERE Oid = ?1";
}

QByteArrayList ListRowNames() {
  QByteArrayList names;
  for (const ContactFieldRow& row : kContactFields) {
    if (row.InListRow()) names.append(row.Property.toUtf8());
  }
  return names;
}

}  // namespace

QByteArrayList ContactColumnNames() {
  QByteArrayList names;
  for (const ContactFieldRow& row : kContactFields) names.append(row.Property.toUtf8());
  for (const ContactDateRow& row : kContactDates) names.append(row.Property.toUtf8());
  return names << "BodyInk"
               << "Uid"
               << "CarriedLines";
}

QByteArrayList ContactColumnDeclarations() {
  QByteArrayList columns = ContactColumnNames();
  for (int i = 0; i < kContactColumnCount; ++i) {
    if (IsDate(i)) {
      columns[i] += " REAL NOT NULL DEFAULT " + EmptyDate();
    } else {
      columns[i] +=
          i == kBodyInkColumn ? " BLOB NOT NULL DEFAULT x''" : " TEXT NOT NULL DEFAULT ''";
    }
  }
  return columns;
}

ContactSql MakeContactSql() {
  const QByteArrayList names = ContactColumnNames();
  return {.Insert = InsertSql(names),
          .UpdateWhole = UpdateSql(names, [](int) { return true; }),
          .UpdateWrittenBack = UpdateSql(names, EditWrites),
          .Read = SelectSql(names),
          .ReadListRow = SelectSql(ListRowNames())};
}

void BindContact(Query& query, const ContactItem& item) {
  for (int i = 0; i < kDateColumn; ++i) {
    query.BindText(Parameter(i), item.Record.Texts[static_cast<std::size_t>(i)]);
  }
  int column = kDateColumn;
  for (const ContactDateRow& row : kContactDates) {
    if (const auto date = ToAutomationDate(item.Record.*row.Date)) {
      query.BindReal(Parameter(column), *date);
    }
    ++column;
  }
  query.BindBlob(Parameter(kBodyInkColumn), item.BodyInk);
  query.BindText(Parameter(kUidColumn), item.Uid);
  query.BindText(Parameter(kCarriedLinesColumn), item.CarriedLines);
}

void ReadContactRow(const Query& query, ContactItem& item) {
  for (int i = 0; i < kDateColumn; ++i) {
    item.Record.Texts[static_cast<std::size_t>(i)] = query.Text(i);
  }
  int column = kDateColumn;
  for (const ContactDateRow& row : kContactDates) {
    item.Record.*row.Date = ToContactDate(query.Real(column++));
  }
  item.BodyInk = query.Blob(kBodyInkColumn);
  item.Uid = query.Text(kUidColumn);
  item.CarriedLines = query.Text(kCarriedLinesColumn);
}

void ReadListRowColumns(const Query& query, ContactRecord& record) {
  record = {};
  int column = 0;
  for (const ContactFieldRow& row : kContactFields) {
    if (row.InListRow()) record[row.Field] = query.Text(column++);
  }
}

}  // namespace quill
