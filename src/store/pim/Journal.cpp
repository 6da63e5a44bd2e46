#include "store/pim/Journal.h"

#include <array>

#include "store/pim/Database.h"

namespace quill {

namespace {

constexpr std::array<const char*, 2> kJournals{"contact_journal", "appointment_journal"};
constexpr char kIsOld[] = " WHERE DeletedAt < CAST(strftime('%s', 'now') AS INTEGER) - ";
constexpr int kSecondsPerDay = 24 * 60 * 60;

QByteArray OldRowsOf(const QByteArray& journal) {
  return journal + kIsOld + QByteArray::number(kJournalDays * kSecondsPerDay);
}

}  // namespace

QByteArray JournalIndexes() {
  QByteArray sql;
  for (const QByteArray journal : kJournals) {
    sql += "CREATE INDEX " + journal + "_by_time ON " + journal + " (DeletedAt);";
  }
  return sql;
}

void PurgeJournals(Database& database) {
  for (const QByteArray journal : kJournals) {
    // Most starts find nothing and write nothing.
    if (database.Number("SELECT EXISTS (SELECT 1 FROM " + OldRowsOf(journal) + ')') != 1) continue;
    database.Execute("DELETE FROM " + OldRowsOf(journal));
  }
}

}  // namespace quill
