// The commands on the contacts of the list: search, and those whose windows are still to come.
#pragma once

#include <memory>

#include "platform/CommandTarget.h"

namespace quill {

class CContactsView;

std::unique_ptr<CommandTarget> MakeContactCommands(CContactsView& view);

}  // namespace quill
