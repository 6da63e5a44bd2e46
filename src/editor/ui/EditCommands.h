// The five commands of the Edit menu on a page's active field.
#pragma once

#include <functional>
#include <memory>

#include "editor/ui/EditField.h"
#include "platform/CommandTarget.h"

namespace quill {

struct EditCommandFields {
  std::function<EditField()> Active;  // what the commands act on
  // What says whether "Undo" can be chosen. Unset, all five can be chosen at any time.
  std::function<EditField()> Undoable = {};
};

std::unique_ptr<CommandTarget> MakeEditCommands(const EditCommandFields& fields);

}  // namespace quill
