// Removing many contacts as one change.
#pragma once

#include <vector>

#include "store/ContactRecord.h"

namespace quill {

class Database;

// All of them or none; each goes to the journal. storeSize is how many contacts there are: when a
// good part of them goes, the list index is made anew instead of being kept contact by contact.
// False when one is missing or the store fails.
bool RemoveContacts(Database& database, const std::vector<Oid>& oids, int storeSize);

}  // namespace quill
