// Opens the record sheet from the list and shows what came of it.
#pragma once

#include "store/ContactRecord.h"

namespace quill {

class CContactsView;

void EditContact(CContactsView& view, Oid oid);
// Takes the seed text that waits in g_sheet.
void MakeNewContact(CContactsView& view);

}  // namespace quill
