// What the commands do to the contacts of the list. The page is not built again. Nothing is
// reported: a failure goes to the log, and the list then shows what is really there.
#pragma once

#include "list/ListState.h"

namespace quill {

// Whether the current row is one of the list's: without it the commands on selected contacts do
// nothing.
bool IsCurrentRowInList(const ListState& list);

// By their Oids, in their order: those that were selected when the user was asked.
void DeleteSelectedContacts(const std::vector<int>& selected);
// Each copy is a new contact with what an edit writes, the ink notes included; so two rows look the
// same then.
void CopySelectedContacts(const ListState& list);

// The contacts that the filter in force lets through. A choice of several categories is the store's
// restriction alone, as for the list's total.
void DeleteListedContacts(ListState& list);
// Every contact, whatever the filter.
void DeleteEveryContact();

}  // namespace quill
