#include "store/pim/RemoveContacts.h"

#include <algorithm>

#include "store/pim/Database.h"
#include "store/pim/ListIndex.h"
#include "store/pim/Savepoint.h"

namespace quill {

namespace {

// Making the index anew costs one pass over the contacts that stay, about a tenth of what the
// triggers take for a contact that goes.
constexpr std::size_t kFewContacts = 1000;
constexpr std::size_t kStayingPerGoing = 10;

bool IsIndexMadeAnew(std::size_t going, int storeSize) {
  return going > kFewContacts && going * kStayingPerGoing > static_cast<std::size_t>(storeSize);
}

bool RemoveEach(Database& database, const std::vector<Oid>& oids) {
  return std::all_of(oids.begin(), oids.end(), [&database](Oid oid) {
    Query query = database.Prepare("DELETE FROM contact WHERE Oid = ?1");
    query.BindNumber(1, oid);
    return query.Run() && database.ChangedRows() == 1;
  });
}

bool RemoveWithoutIndex(Database& database, const std::vector<Oid>& oids) {
  return database.Execute("DROP TRIGGER IF EXISTS contact_left") == 0 &&
         RemoveEach(database, oids) && RebuildListIndex(database) == 0;
}

}  // namespace

bool RemoveContacts(Database& database, const std::vector<Oid>& oids, int storeSize) {
  Savepoint savepoint(database);
  if (!savepoint.IsOpen()) return false;
  const bool removed = IsIndexMadeAnew(oids.size(), storeSize) ? RemoveWithoutIndex(database, oids)
                                                               : RemoveEach(database, oids);
  return removed && savepoint.Release();
}

}  // namespace quill
