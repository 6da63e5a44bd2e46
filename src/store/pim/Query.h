// One use of a prepared statement: bind values, step through rows, read columns.
//
// Parameters count from 1, columns from 0. A query that failed (to prepare, bind or step) answers
// false to Next and Run; why stands in its database. Texts and blobs are copied when bound. When a
// query goes, a kept statement is reset and another one is finalised.
#pragma once

#include <QByteArray>
#include <QString>

struct sqlite3_stmt;

namespace quill {

class Database;

enum class StatementLife { Kept, Once };

class Query {
 public:
  // A null statement makes a query that has already failed.
  Query(Database& database, sqlite3_stmt* statement, StatementLife life);
  ~Query();
  Q_DISABLE_COPY_MOVE(Query)

  // A text is bound without byte order marks at its beginning: SQLite would take such a mark for
  // the order of the bytes that follow.
  void BindText(int parameter, QStringView text);
  void BindBlob(int parameter, const QByteArray& bytes);
  void BindNumber(int parameter, qint64 number);
  void BindReal(int parameter, double number);

  // To the next row: false at the end and on failure.
  bool Next();
  // For a statement without rows: true when it ran.
  bool Run();
  bool Failed() const { return m_failed; }

  bool IsNull(int column) const;
  QString Text(int column) const;
  QByteArray Blob(int column) const;
  qint64 Number(int column) const;
  double Real(int column) const;

 private:
  void Check(int code);

  Database& m_database;
  sqlite3_stmt* m_statement;
  StatementLife m_life;
  bool m_failed;
};

}  // namespace quill
