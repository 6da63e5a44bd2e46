#include "store/pim/Query.h"

#include <sqlite3.h>

#include "store/pim/Database.h"

namespace quill {

Query::Query(Database& database, sqlite3_stmt* statement, StatementLife life)
    : m_database(database), m_statement(statement), m_life(life), m_failed(!statement) {}

Query::~Query() {
  if (m_life == StatementLife::Once) {
    sqlite3_finalize(m_statement);
    return;
  }
  // Reset repeats the code of the last step, which Next has looked at.
  sqlite3_reset(m_statement);
  if (m_statement) sqlite3_clear_bindings(m_statement);
}

void Query::Check(int code) {
  if (code == SQLITE_OK) return;
  m_failed = true;
  m_database.Fail(code);
}

void Query::BindText(int parameter, QStringView text) {
  if (m_failed) return;
  while (text.startsWith(QChar(0xFEFF)) || text.startsWith(QChar(0xFFFE))) text = text.mid(1);
  // A null pointer would be bound as NULL instead of the empty text.
  const char16_t* units = text.isEmpty() ? u"" : text.utf16();
  Check(sqlite3_bind_text64(m_statement, parameter, reinterpret_cast<const char*>(units),
                            static_cast<sqlite3_uint64>(text.size()) * sizeof(char16_t),
                            SQLITE_TRANSIENT, SQLITE_UTF16));
}

void Query::BindBlob(int parameter, const QByteArray& bytes) {
  if (m_failed) return;
  Check(sqlite3_bind_blob64(m_statement, parameter, bytes.isEmpty() ? "" : bytes.constData(),
                            static_cast<sqlite3_uint64>(bytes.size()), SQLITE_TRANSIENT));
}

void Query::BindNumber(int parameter, qint64 number) {
  if (!m_failed) Check(sqlite3_bind_int64(m_statement, parameter, number));
}

void Query::BindReal(int parameter, double number) {
  if (!m_failed) Check(sqlite3_bind_double(m_statement, parameter, number));
}

bool Query::Next() {
  if (m_failed) return false;
  const int code = sqlite3_step(m_statement);
  if (code == SQLITE_ROW) return true;
  if (code != SQLITE_DONE) Check(code);
  return false;
}

bool Query::Run() {
  while (Next()) {
  }
  return !m_failed;
}

bool Query::IsNull(int column) const {
  return sqlite3_column_type(m_statement, column) == SQLITE_NULL;
}

QString Query::Text(int column) const {
  const auto* units = static_cast<const QChar*>(sqlite3_column_text16(m_statement, column));
  const int bytes = sqlite3_column_bytes16(m_statement, column);
  return units ? QString(units, bytes / static_cast<int>(sizeof(QChar))) : QString();
}

QByteArray Query::Blob(int column) const {
  const auto* bytes = static_cast<const char*>(sqlite3_column_blob(m_statement, column));
  return {bytes, sqlite3_column_bytes(m_statement, column)};
}

qint64 Query::Number(int column) const { return sqlite3_column_int64(m_statement, column); }

double Query::Real(int column) const { return sqlite3_column_double(m_statement, column); }

}  // namespace quill
