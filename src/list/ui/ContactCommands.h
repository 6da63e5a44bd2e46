// The commands on the list as a whole and on its selected rows: new, search, copy, delete, beam and
// receive. By memo the deleting ones act on memo files.
#pragma once

#include <memory>

#include "platform/CommandTarget.h"

namespace quill {

class CContactsView;

std::unique_ptr<CommandTarget> MakeContactCommands(CContactsView& view);

}  // namespace quill
