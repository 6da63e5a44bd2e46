#include "store/pim/Schema.h"

#include <sqlite3.h>

#include "store/pim/AppointmentRows.h"
#include "store/pim/ContactRows.h"
#include "store/pim/Database.h"
#include "store/pim/ItemTables.h"
#include "store/pim/Journal.h"
#include "store/pim/ListIndex.h"
#include "store/pim/Migration.h"
#include "store/pim/PimCategories.h"
#include "store/pim/StoreFile.h"

namespace quill {

namespace {

QByteArray Identity() {
  return "PRAGMA application_id = " + QByteArray::number(kStoreApplicationId) +
         "; PRAGMA user_version = " + QByteArray::number(kStoreVersion) + ';';
}

QByteArray AllTables() {
  return ItemTables("contact", ContactColumnNames(), ContactColumnDeclarations()) +
         AppointmentTables() + ListIndexTables() + CategoryTables() + JournalIndexes();
}

enum class SchemaState { Empty, Older, Current, Refused };

SchemaState Refuse(Database& database, const StoreFileFault& fault) {
  database.Fail(fault.Code, fault.Reason);
  return SchemaState::Refused;
}

SchemaState Examine(Database& database) {
  const auto applicationId = database.Number("PRAGMA application_id");
  const auto version = database.Number("PRAGMA user_version");
  const auto objects = database.Number("SELECT count(*) FROM sqlite_master");
  if (!applicationId || !version || !objects) return SchemaState::Refused;
  if (*applicationId == 0 && *version == 0 && *objects == 0) return SchemaState::Empty;
  if (*applicationId != kStoreApplicationId) return Refuse(database, ForeignStoreFault());
  if (*version > kStoreVersion) return Refuse(database, NewerStoreFault(*version));
  return *version < kStoreVersion ? SchemaState::Older : SchemaState::Current;
}

// Another program may be at the same file: the second look, under the lock, is the one that counts.
int BringUpToDate(Database& database) {
  if (!database.Begin()) return database.FailureCode();
  const SchemaState state = Examine(database);
  bool done = state == SchemaState::Current;
  if (state == SchemaState::Empty) done = database.Execute(AllTables() + Identity()) == SQLITE_OK;
  if (state == SchemaState::Older) done = MigrateStore(database) == SQLITE_OK;
  if (done && database.Commit()) return SQLITE_OK;
  const int code = database.FailureCode();
  database.Rollback();
  return code;
}

}  // namespace

int PrepareSchema(Database& database) {
  // Has an effect on a new file only, and only before anything else is done with it.
  if (const int code = database.Execute("PRAGMA encoding = 'UTF-16le'")) return code;
  const SchemaState state = Examine(database);
  if (state == SchemaState::Refused) return database.FailureCode();
  if (state != SchemaState::Current) {
    if (database.IsReadOnly())
      return database.Fail(SQLITE_READONLY,
                           QStringLiteral("the file has to be written before it can be read"));
    if (const int code = BringUpToDate(database)) return code;
  }
  // Only now, so that the identity of a new file stands in the file itself and not in its log.
  return database.Execute(
      "PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL; PRAGMA cache_size = -8000");
}

}  // namespace quill
