// Brings the tables of an older version of the store up to date, step by step.
//
// Before, the file is copied beside itself: store.db of version 1 as store.db.v1, or as
// store.db.v1-2 and so on when that is taken. The copy is never read or removed by the program.
#pragma once

#include <QString>

namespace quill {

class Database;

// Under a transaction of the caller, who commits or rolls back; other programs must not be able to
// write meanwhile. Returns 0 or the failure.
int MigrateStore(Database& database);

// Where the next copy of a file of this version goes.
QString StoreCopyPath(const QString& storePath, qint64 version);

}  // namespace quill
