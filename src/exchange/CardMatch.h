// Whether the store knows a contact already.
#pragma once

#include "store/StoreProvider.h"

namespace quill {

// A contact with the item's UID, else one with its FileAs that has a number or an e-mail address in
// common with it, or is equal to it as a whole; 0 when there is none. Numbers are compared by their
// digits, addresses without case.
Oid FindSameContact(ContactsFolder& contacts, const ContactItem& item);

}  // namespace quill
