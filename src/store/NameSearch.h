// Contacts by the name under which they are filed.
#pragma once

#include <QString>

#include <optional>

#include "store/StoreProvider.h"

namespace quill {

// Those of the collection that are filed under exactly this name, else those whose name begins with
// it; without case, as the store compares. Nothing when the store fails.
std::optional<ContactCollection> FindByName(ContactsFolder& contacts,
                                            const ContactCollection& collection,
                                            const QString& name);

}  // namespace quill
