// Looks a store over: whether the file is whole, and whether the list index says the same as the
// contacts and appointments it indexes. An index that differs is made anew; nothing else is
// changed.
#pragma once

#include <QStringList>

namespace quill {

class Database;

enum class IndexCondition {
  Right,
  Rebuilt,    // it differed, and is right now
  Different,  // it differs, and could not be made anew
  Unknown,    // the file is damaged or busy, so that nothing can be said of it
};

struct StoreHealth {
  QStringList FileFaults = {};   // in SQLite's words; empty when the file is whole
  QStringList IndexFaults = {};  // what was found, as sentences for the user
  IndexCondition Index = IndexCondition::Unknown;
};

// Other programs may use the store meanwhile; their writes wait.
StoreHealth CheckStore(Database& database);

// What is wrong with the list index; for a transaction of the caller.
QStringList ListIndexFaults(Database& database);

}  // namespace quill
