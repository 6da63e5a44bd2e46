// The View menu's commands: what the list shows. The mode in force is checked.
#pragma once

#include <memory>

#include "platform/CommandTarget.h"

namespace quill {

class CContactsView;

std::unique_ptr<CommandTarget> MakeViewModeCommands(CContactsView& view);

}  // namespace quill
