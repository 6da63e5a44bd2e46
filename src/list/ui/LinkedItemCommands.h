// The commands of the rows' popups on appointments and memos.
#pragma once

#include <memory>

#include "platform/CommandTarget.h"

namespace quill {

std::unique_ptr<CommandTarget> MakeLinkedItemCommands();

}  // namespace quill
