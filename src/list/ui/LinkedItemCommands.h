// The commands of the rows' popups on appointments and memos.
#pragma once

#include <memory>

#include "platform/CommandTarget.h"

namespace quill {

class CContactsView;

// What is opened is one of g_linkedItems: a memo in its editor, an appointment in its preview, from
// where it is changed or deleted. The list stays as it is, and so do g_linkedItems until a popup
// opens again.
std::unique_ptr<CommandTarget> MakeLinkedItemCommands(CContactsView& view);

}  // namespace quill
