#include "store/pim/ItemTables.h"

namespace quill {

QByteArray ItemTables(const QByteArray& item, const QByteArrayList& names,
                      const QByteArrayList& declarations) {
  const QByteArray columns = declarations.join(", ");
  const QByteArray table = "CREATE TABLE " + item +
                           " (Oid INTEGER PRIMARY KEY AUTOINCREMENT "
                           "CHECK (Oid BETWEEN 1 AND 2147483647), " +
                           columns + "); CREATE INDEX " + item + "_by_uid ON " + item +
                           " (Uid) WHERE Uid <> '';";
  const QByteArray journal = "CREATE TABLE " + item +
                             "_journal (JournalId INTEGER PRIMARY KEY, "
                             "DeletedAt INTEGER NOT NULL, Oid INTEGER NOT NULL, " +
                             columns + ");";
  return table + journal + JournalTrigger(item, names);
}

QByteArray JournalTrigger(const QByteArray& item, const QByteArrayList& names) {
  return "CREATE TRIGGER " + item + "_deleted AFTER DELETE ON " + item + " BEGIN INSERT INTO " +
         item + "_journal (DeletedAt, Oid, " + names.join(", ") +
         ") VALUES (CAST(strftime('%s', 'now') AS INTEGER), OLD.Oid, OLD." + names.join(", OLD.") +
         "); END;";
}

}  // namespace quill
