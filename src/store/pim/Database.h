// One connection to an SQLite file, over SQLite's C interface. Statements are prepared once and
// kept until Close, which finalises all of them.
//
// A failure is one of SQLite's primary result codes, 0 is none. Every failure goes to the log; the
// latest one stays here with its text.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>

#include "store/pim/Query.h"

struct sqlite3;
struct sqlite3_stmt;

namespace quill {

// Differs whenever the answer of a query may differ: own writes, others' commits, rollbacks.
struct DataStamp {
  qint64 OwnChanges = -1;
  qint64 OthersVersion = -1;
  qint64 Rollbacks = -1;

  bool operator==(const DataStamp&) const = default;
};

class Database {
 public:
  Database() = default;
  ~Database();
  Q_DISABLE_COPY_MOVE(Database)

  // Opens for reading and writing; where there is no file, the first write makes one. ":memory:" is
  // a store without a file. A file that can only be read is a failure.
  int Open(const QString& path);
  // For a file that can only be read, at an absolute path. Where the log of what was written last
  // is beside it and cannot be read without writing, that is a failure.
  int OpenForReading(const QString& path);
  void Close();
  bool IsReadOnly() const;
  sqlite3* Handle() const { return m_handle; }
  // Empty for a store without a file.
  QString Path() const;
  // Up to so many bytes from the beginning of the file, read without a lock; empty without a file.
  QByteArray FirstBytes(int count);

  // Runs one or several statements without values. Returns 0 or the failure.
  int Execute(const QByteArray& sql);
  // A statement ready for its values. Two queries of the same text must not overlap.
  Query Prepare(const QByteArray& sql);
  // The first column of the first row; nothing on failure or without a row.
  std::optional<qint64> Number(const QByteArray& sql);

  qint64 LastRowId() const;
  int ChangedRows() const;
  DataStamp Stamp();

  // At most one transaction at a time. A failure such as a full disk may end it early; until it is
  // rolled back, TransactionLost says so and nothing may be written.
  bool Begin();
  bool BeginReading();  // leaves writing to others
  bool Commit();
  void Rollback();
  bool TransactionLost() const;
  // False, with a failure, when the transaction is lost.
  bool MayWrite();
  // Whether anything is still to be committed.
  bool InTransaction() const;

  int FailureCode() const { return m_failureCode; }
  const QString& FailureText() const { return m_failureText; }
  // Keeps and logs a failure, with SQLite's own text when none is given; returns its primary code.
  int Fail(int code, const QString& text = {});

 private:
  int OpenBy(const QByteArray& name, int flags);
  bool BeginBy(const QByteArray& sql);

  sqlite3* m_handle = nullptr;
  QHash<QByteArray, sqlite3_stmt*> m_statements;
  bool m_transaction = false;
  qint64 m_rollbacks = 0;
  int m_failureCode = 0;
  QString m_failureText;
};

}  // namespace quill
