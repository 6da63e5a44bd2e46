// The least that a durable write costs on a disk: one row of a tiny table changed in a transaction,
// in a file with the store's settings.
#pragma once

#include <QString>

#include "store/pim/Database.h"

namespace quill::bench {

class CommitBaseline {
 public:
  // The file is made in the folder, and gone with the object.
  explicit CommitBaseline(const QString& folder);
  ~CommitBaseline();
  Q_DISABLE_COPY_MOVE(CommitBaseline)

  // False when the file could not be made or written.
  bool Commit();

 private:
  QString m_path;
  Database m_database;
  bool m_ready = false;
};

}  // namespace quill::bench
