// The functions that the store's SQL calls, over Collation.h, CategoryText.h and
// EntryKeys.h:
//   fold_key(text), unit_key(text)        blobs in the order of the store's comparisons
//   categories_match(chosen, categories)  1 or 0
//   entry_numbers(categories)             a JSON array of the numbers of a contact's entries
//   entry_key(FileAs, CompanyName, Categories, number), subject_entry_key(Subject)
//                                         keys of the list index: EntryKeys.h
// NULL counts as the empty text.
#pragma once

namespace quill {

class Database;

// Returns 0 or the failure. Needed once for each connection, before its first statement.
int RegisterFunctions(Database& database);

}  // namespace quill
