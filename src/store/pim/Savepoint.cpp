#include "store/pim/Savepoint.h"

#include "store/pim/Database.h"

namespace quill {

Savepoint::Savepoint(Database& database)
    : m_database(database),
      m_open(database.MayWrite() && database.Execute("SAVEPOINT part") == 0) {}

Savepoint::~Savepoint() {
  // A failure may have ended the whole transaction already.
  if (m_open && m_database.InTransaction()) {
    m_database.Execute("ROLLBACK TO part");
    m_database.Execute("RELEASE part");
  }
}

bool Savepoint::Release() {
  if (!m_open || m_database.Execute("RELEASE part") != 0) return false;
  m_open = false;
  return true;
}

}  // namespace quill
