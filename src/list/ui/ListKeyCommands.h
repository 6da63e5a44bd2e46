// What keys do in the list that a pen does by tapping: the search box, the category label, the
// index strip's buttons.
#pragma once

#include <memory>

#include "platform/CommandTarget.h"

namespace quill {

class CContactsView;

std::unique_ptr<CommandTarget> MakeListKeyCommands(CContactsView& view);

}  // namespace quill
