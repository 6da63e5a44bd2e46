// Several statements that count as one: inside an open transaction as a part of it, else as a
// transaction of their own. Undone when it goes without a Release.
#pragma once

#include <QtGlobal>

namespace quill {

class Database;

class Savepoint {
 public:
  explicit Savepoint(Database& database);
  ~Savepoint();
  Q_DISABLE_COPY_MOVE(Savepoint)

  // False when nothing may be written.
  bool IsOpen() const { return m_open; }
  // True when the statements hold, as far as the transaction around them does.
  bool Release();

 private:
  Database& m_database;
  bool m_open;
};

}  // namespace quill
