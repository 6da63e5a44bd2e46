// The journals: what deleted contacts and appointments had, filled by triggers, kept for a time.
#pragma once

#include <QByteArray>

namespace quill {

class Database;

inline constexpr int kJournalDays = 30;

// The indexes by which old rows are found.
QByteArray JournalIndexes();
// Forgets what was deleted longer ago. A failure goes to the log; the next start tries again.
void PurgeJournals(Database& database);

}  // namespace quill
