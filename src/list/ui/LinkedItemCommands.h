// The commands of the rows' popups on appointments and memos.
#pragma once

#include <memory>

#include "platform/CommandTarget.h"

namespace quill {

class CContactsView;

// A memo that is opened is one of g_linkedItems. The list stays as it is.
std::unique_ptr<CommandTarget> MakeLinkedItemCommands(CContactsView& view);

}  // namespace quill
