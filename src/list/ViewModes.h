// Switching between names, companies and memos.
#pragma once

#include "list/ListState.h"

namespace quill {

// Every filter is dropped and the list goes to its first row; the page is not built.
void SwitchViewMode(ListState& list, ViewMode mode);

}  // namespace quill
