#include "store/pim/StoreCheck.h"

#include <array>

#include "store/pim/Database.h"
#include "store/pim/ListIndex.h"

namespace quill {

namespace {

struct IndexRule {
  const char* Text;      // with the number of faults as %1
  const char* CountSql;  // the number of faults
};
// The entries are right when each expected one is there and there are no more.
constexpr std::array<IndexRule, 6> kIndexRules{{
    {"The index lacks %1 of its triggers.",
     "SELECT 10 - count(*) FROM sqlite_master WHERE type = 'trigger' AND "
     "(tbl_name IN ('entry', 'bucket') OR name IN ('contact_entered', 'contact_left', "
     "'contact_moved', 'appointment_entered', 'appointment_left', 'appointment_moved'))"},
    {"The index lacks %1 entries of contacts.",
     "SELECT count(*) FROM contact, json_each(entry_numbers(Categories)) WHERE NOT EXISTS ("
     "SELECT 1 FROM entry WHERE entry.oid = contact.Oid AND "
     "entry.key = entry_key(FileAs, CompanyName, Categories, value))"},
    {"The index lacks %1 entries of appointments.",
     "SELECT count(*) FROM appointment WHERE NOT EXISTS ("
     "SELECT 1 FROM entry WHERE entry.oid = appointment.Oid AND "
     "entry.key = subject_entry_key(Subject))"},
    {"The index has %1 entries more than it should.",
     "SELECT max(0, (SELECT count(*) FROM entry) - "
     "(SELECT count(*) FROM contact, json_each(entry_numbers(Categories))) - "
     "(SELECT count(*) FROM appointment))"},
    {"The index lacks its first bucket.",
     "SELECT 1 - count(*) FROM bucket WHERE key = x'' AND oid = 0"},
    {"%1 buckets of the index are counted wrongly.",
     "SELECT count(*) FROM (SELECT key, oid, n, lead(key, 1, x'FF') OVER w AS nextKey, "
     "lead(oid, 1, 0) OVER w AS nextOid FROM bucket WINDOW w AS (ORDER BY key, oid)) AS b "
     "WHERE n <> (SELECT count(*) FROM entry WHERE (key, oid) >= (b.key, b.oid) AND "
     "(key, oid) < (b.nextKey, b.nextOid))"},
}};

QStringList FileFaults(Database& database) {
  Query query = database.Prepare("PRAGMA integrity_check");
  QStringList faults;
  while (query.Next()) faults.append(query.Text(0));
  if (query.Failed()) faults.append(database.FailureText());
  faults.removeAll(QStringLiteral("ok"));
  return faults;
}

IndexCondition Rebuild(Database& database) {
  if (database.IsReadOnly()) return IndexCondition::Different;
  return RebuildListIndex(database) == 0 && ListIndexFaults(database).isEmpty()
             ? IndexCondition::Rebuilt
             : IndexCondition::Different;
}

}  // namespace

QStringList ListIndexFaults(Database& database) {
  QStringList faults;
  for (const IndexRule& rule : kIndexRules) {
    Query query = database.Prepare(rule.CountSql);
    if (!query.Next()) return faults << QStringLiteral("The index cannot be read.");
    const qint64 count = query.Number(0);
    if (count != 0) {
      faults.append(
          QString::fromLatin1(rule.Text).replace(QStringLiteral("%1"), QString::number(count)));
    }
  }
  return faults;
}

StoreHealth CheckStore(Database& database) {
  StoreHealth health{.FileFaults = FileFaults(database)};
  if (!health.FileFaults.isEmpty()) return health;
  const bool mayRebuild = !database.IsReadOnly();
  if (!(mayRebuild ? database.Begin() : database.BeginReading())) {
    health.IndexFaults.append(database.FailureText());
    return health;
  }
  health.IndexFaults = ListIndexFaults(database);
  health.Index = health.IndexFaults.isEmpty() ? IndexCondition::Right : Rebuild(database);
  if (health.Index == IndexCondition::Rebuilt && !database.Commit()) {
    health.Index = IndexCondition::Different;
  }
  database.Rollback();
  return health;
}

}  // namespace quill
