#include "CommitBaseline.h"

#include <QFile>

namespace quill::bench {

namespace {

// Growing the log costs more than writing over what is in it already, as a store does that has been
// written to for a while. Hence it is made large and begun anew.
const char* const kGrowLog =
    "CREATE TABLE filler (Bytes BLOB NOT NULL); INSERT INTO filler VALUES (zeroblob(8000000));"
    "DROP TABLE filler; PRAGMA wal_checkpoint(RESTART)";

}  // namespace

CommitBaseline::CommitBaseline(const QString& folder)
    : m_path(folder + QStringLiteral("/commit-baseline.db")) {
  QFile::remove(m_path);
  m_ready = m_database.Open(m_path) == 0 &&
            m_database.Execute(
                "PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL; PRAGMA cache_size = 100;"
                "CREATE TABLE tiny (Id INTEGER PRIMARY KEY, Number INTEGER NOT NULL);"
                "INSERT INTO tiny VALUES (1, 0)") == 0 &&
            m_database.Execute(kGrowLog) == 0;
}

CommitBaseline::~CommitBaseline() {
  m_database.Close();
  QFile::remove(m_path);
}

bool CommitBaseline::Commit() {
  if (!m_ready || !m_database.Begin()) return false;
  const bool changed = m_database.Prepare("UPDATE tiny SET Number = Number + 1 WHERE Id = 1").Run();
  return changed && m_database.Commit();
}

}  // namespace quill::bench
