// How the embedded store is set up. A person or an installer may set it; the program only reads.
#pragma once

#include "platform/RegistryStore.h"
#include "store/pim/PimStore.h"

namespace quill {

// What is missing counts as its default.
PimStoreOptions ReadStoreSettings(const RegistryStore& registry);

}  // namespace quill
