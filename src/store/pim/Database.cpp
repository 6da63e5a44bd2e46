#include "store/pim/Database.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>

#include <algorithm>

#include "store/StoreLog.h"
#include "store/pim/StoreFile.h"

namespace quill {

namespace {

// While another connection writes, this one asks again after each pause, for five seconds. The
// pauses that SQLite takes on its own grow to 100 ms: beside a program that writes without rest,
// one of many such looks had to meet a gap.
constexpr int kBusyPauseMs = 2;
constexpr int kBusyPauses = 2500;
// The program's own statements are far fewer; beyond these, statements for odd restrictions are not
// kept.
constexpr qsizetype kKeptStatementsLimit = 100;

constexpr int PrimaryCode(int code) { return code & 0xFF; }

int PauseWhileBusy(void*, int pauses) {
  if (pauses >= kBusyPauses) return 0;
  sqlite3_sleep(kBusyPauseMs);
  return 1;
}

void CountRollback(void* rollbacks) { ++*static_cast<qint64*>(rollbacks); }

}  // namespace

Database::~Database() { Close(); }

int Database::Open(const QString& path) {
  const int code = OpenBy(QFile::encodeName(path), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  if (code != SQLITE_OK || !IsReadOnly()) return code;
  Fail(SQLITE_READONLY, QStringLiteral("the file can only be read"));
  Close();
  return SQLITE_READONLY;
}

int Database::OpenForReading(const QString& path) {
  const QFileInfo log(StoreLogPath(path));
  const bool isOpenElsewhere = log.exists() && QFileInfo::exists(StoreLogIndexPath(path));
  if (log.size() == 0 && !isOpenElsewhere) {
    // Nobody writes it. Unless told so, SQLite would make a log to read with.
    return OpenBy("file:" + QFile::encodeName(path).toPercentEncoding("/") + "?immutable=1",
                  SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
  }
  if (const int code = OpenBy(QFile::encodeName(path), SQLITE_OPEN_READONLY)) return code;
  if (Number("SELECT count(*) FROM sqlite_master")) return SQLITE_OK;
  const int code = Fail(m_failureCode, QStringLiteral("the file can only be read, and not without "
                                                      "writing while %1 is beside it")
                                           .arg(log.fileName()));
  Close();
  return code;
}

int Database::OpenBy(const QByteArray& name, int flags) {
  Close();
  const int code =
      sqlite3_open_v2(name.constData(), &m_handle, flags | SQLITE_OPEN_NOMUTEX, nullptr);
  if (code != SQLITE_OK) {
    Fail(code);
    Close();
    return m_failureCode;
  }
  sqlite3_busy_handler(m_handle, PauseWhileBusy, nullptr);
  sqlite3_rollback_hook(m_handle, CountRollback, &m_rollbacks);
  return SQLITE_OK;
}

void Database::Close() {
  for (sqlite3_stmt* statement : std::as_const(m_statements)) sqlite3_finalize(statement);
  m_statements.clear();
  m_transaction = false;
  const int code = sqlite3_close(m_handle);
  if (code != SQLITE_OK) qCCritical(storeLog) << "The store does not close, code" << code;
  m_handle = nullptr;
}

bool Database::IsReadOnly() const { return sqlite3_db_readonly(m_handle, "main") == 1; }

QString Database::Path() const { return QFile::decodeName(sqlite3_db_filename(m_handle, "main")); }

// Through SQLite's own file: closing another descriptor of the same file would give up the locks
// that this process holds on it.
QByteArray Database::FirstBytes(int count) {
  sqlite3_file* file = nullptr;
  sqlite3_file_control(m_handle, "main", SQLITE_FCNTL_FILE_POINTER, &file);
  sqlite3_int64 size = 0;
  if (!file || !file->pMethods || file->pMethods->xFileSize(file, &size) != SQLITE_OK) return {};
  QByteArray bytes(static_cast<qsizetype>(std::min<sqlite3_int64>(size, count)), '\0');
  const int code = file->pMethods->xRead(file, bytes.data(), static_cast<int>(bytes.size()), 0);
  return code == SQLITE_OK ? bytes : QByteArray();
}

int Database::Execute(const QByteArray& sql) {
  const int code = sqlite3_exec(m_handle, sql.constData(), nullptr, nullptr, nullptr);
  return code == SQLITE_OK ? SQLITE_OK : Fail(code);
}

Query Database::Prepare(const QByteArray& sql) {
  if (sqlite3_stmt* kept = m_statements.value(sql)) return {*this, kept, StatementLife::Kept};
  sqlite3_stmt* statement = nullptr;
  const int code = sqlite3_prepare_v3(m_handle, sql.constData(), static_cast<int>(sql.size()),
                                      SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
  if (code != SQLITE_OK) Fail(code);
  if (!statement || m_statements.size() >= kKeptStatementsLimit) {
    return {*this, statement, StatementLife::Once};
  }
  m_statements.insert(sql, statement);
  return {*this, statement, StatementLife::Kept};
}

std::optional<qint64> Database::Number(const QByteArray& sql) {
  Query query = Prepare(sql);
  return query.Next() ? std::optional(query.Number(0)) : std::nullopt;
}

qint64 Database::LastRowId() const { return sqlite3_last_insert_rowid(m_handle); }

int Database::ChangedRows() const { return sqlite3_changes(m_handle); }

DataStamp Database::Stamp() {
  return {.OwnChanges = sqlite3_total_changes(m_handle),
          .OthersVersion = Number("PRAGMA data_version").value_or(-1),
          .Rollbacks = m_rollbacks};
}

bool Database::InTransaction() const { return sqlite3_get_autocommit(m_handle) == 0; }

bool Database::Begin() { return BeginBy("BEGIN IMMEDIATE"); }

bool Database::BeginReading() { return BeginBy("BEGIN"); }

bool Database::BeginBy(const QByteArray& sql) {
  if (m_transaction) {
    Fail(SQLITE_MISUSE, QStringLiteral("a transaction is open already"));
    return false;
  }
  if (Execute(sql) != SQLITE_OK) return false;
  m_transaction = true;
  return true;
}

bool Database::Commit() {
  if (!m_transaction || TransactionLost() || Execute("COMMIT") != SQLITE_OK) return false;
  m_transaction = false;
  return true;
}

void Database::Rollback() {
  if (m_transaction && InTransaction()) Execute("ROLLBACK");
  m_transaction = false;
}

bool Database::TransactionLost() const { return m_transaction && !InTransaction(); }

bool Database::MayWrite() {
  if (!TransactionLost()) return true;
  Fail(SQLITE_ABORT, QStringLiteral("the transaction has been rolled back"));
  return false;
}

int Database::Fail(int code, const QString& text) {
  m_failureCode = PrimaryCode(code);
  m_failureText = text.isEmpty() ? QString::fromUtf8(sqlite3_errmsg(m_handle)) : text;
  qCWarning(storeLog).noquote() << "Store failure" << code << m_failureText;
  return m_failureCode;
}

}  // namespace quill
