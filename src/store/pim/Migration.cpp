#include "store/pim/Migration.h"

#include <sqlite3.h>

#include <QFile>

#include <array>

#include "store/StoreLog.h"
#include "store/pim/AppointmentRows.h"
#include "store/pim/Database.h"
#include "store/pim/Journal.h"
#include "store/pim/ListIndex.h"
#include "store/pim/PimCategories.h"
#include "store/pim/StoreFile.h"

namespace quill {

namespace {

// The keys that stood beside each contact give way to the list index; appointments are new.
int FromVersion1(Database& database) {
  const int code = database.Execute(
      "DROP INDEX contact_by_file_as; DROP INDEX contact_by_company;"
      "ALTER TABLE contact DROP COLUMN FileAsKey; ALTER TABLE contact DROP COLUMN CompanyKey;");
  if (code != SQLITE_OK) return code;
  if (const int failed = database.Execute(AppointmentTables())) return failed;
  if (const int failed = RebuildListIndex(database)) return failed;
  return database.Execute(CategoryTables() + JournalIndexes());
}

// Row i leads from version i + 1 to the next one.
using Step = int (*)(Database& database);
constexpr std::array<Step, kStoreVersion - 1> kSteps{FromVersion1};

// A connection of its own, since the one that migrates is in a transaction.
int CopyStore(const QString& path, qint64 version) {
  const QString copy = StoreCopyPath(path, version);
  Database source;
  if (const int code = source.Open(path)) return code;
  Query vacuum = source.Prepare("VACUUM INTO ?1");
  vacuum.BindText(1, copy);
  if (vacuum.Run()) return SQLITE_OK;
  QFile::remove(copy);  // a part that stays is passed by: the next try has another name
  return source.FailureCode();
}

int TakeStep(Database& database, qint64 version) {
  if (const int code = kSteps[static_cast<std::size_t>(version - 1)](database)) return code;
  return database.Execute("PRAGMA user_version = " + QByteArray::number(version + 1));
}

}  // namespace

int MigrateStore(Database& database) {
  qint64 version = database.Number("PRAGMA user_version").value_or(0);
  if (version < 1) return database.Fail(SQLITE_SCHEMA, QStringLiteral("the file has no version"));
  if (const QString path = database.Path(); !path.isEmpty()) {
    if (const int code = CopyStore(path, version)) {
      return database.Fail(code, QStringLiteral("the file cannot be copied before it is changed"));
    }
  }
  for (; version < kStoreVersion; ++version) {
    qCInfo(storeLog) << "Store goes from version" << version << "to" << version + 1;
    if (const int code = TakeStep(database, version)) return code;
  }
  return SQLITE_OK;
}

QString StoreCopyPath(const QString& storePath, qint64 version) {
  const QString first = QStringLiteral("%1.v%2").arg(storePath).arg(version);
  QString path = first;
  for (int number = 2; QFile::exists(path); ++number) {
    path = QStringLiteral("%1-%2").arg(first).arg(number);
  }
  return path;
}

}  // namespace quill
