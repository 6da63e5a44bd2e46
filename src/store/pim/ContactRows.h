// The columns of the contact table and how a contact goes in and out of them: the texts in the
// order of the field table, the two dates, then what a contact has beside its record.
//
// Column i of the reading statement (from 0) is parameter i + 1 of the writing ones.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include "store/StoreProvider.h"

namespace quill {

class Query;

inline constexpr int kDateColumn = static_cast<int>(kContactFieldCount);
inline constexpr int kBodyInkColumn = kDateColumn + 2;
inline constexpr int kUidColumn = kBodyInkColumn + 1;
inline constexpr int kCarriedLinesColumn = kUidColumn + 1;
inline constexpr int kContactColumnCount = kCarriedLinesColumn + 1;
inline constexpr int kOidParameter = kContactColumnCount + 1;

// Names in the order of the columns; the Oid is not among them.
QByteArrayList ContactColumnNames();
// Each column with its type and default, as a table declares it.
QByteArrayList ContactColumnDeclarations();

struct ContactSql {
  QByteArray Insert;
  QByteArray UpdateWhole;
  QByteArray UpdateWrittenBack;
  QByteArray Read;         // its only parameter is the Oid
  QByteArray ReadListRow;  // the same; the list-row fields in the order of the record
};
ContactSql MakeContactSql();

// Binds every column. A date whose parts make none stays unbound: then the store's value stays.
void BindContact(Query& query, const ContactItem& item);
void ReadContactRow(const Query& query, ContactItem& item);
void ReadListRowColumns(const Query& query, ContactRecord& record);

}  // namespace quill
