// The start of the list, once per process.
#pragma once

#include "store/ContactStore.h"

namespace quill {

// Opens the session, fixes the memo folder, loads the settings, opens the category library and
// builds the first page, in this order. After a session that failed none of the rest is done and
// the list stays empty.
StartupCode StartList(StoreProvider& provider);

}  // namespace quill
