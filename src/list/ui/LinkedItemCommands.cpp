#include "list/ui/LinkedItemCommands.h"

#include "resources/Ids.h"

namespace quill {

namespace {

// Listed in the popups, disabled until their windows exist.
CommandRow Unavailable(int first, int last) { return {first, last, nullptr, nullptr}; }
CommandRow Unavailable(int id) { return Unavailable(id, id); }

}  // namespace

std::unique_ptr<CommandTarget> MakeLinkedItemCommands() {
  return std::make_unique<CommandTarget>(std::vector<CommandRow>{
      Unavailable(ID_ADD_APPOINTMENT),
      Unavailable(ID_ADD_MEMO),
      Unavailable(ID_OPEN_APPOINTMENT_FIRST, ID_OPEN_APPOINTMENT_LAST),
      Unavailable(ID_OPEN_MEMO_FIRST, ID_OPEN_MEMO_LAST),
  });
}

}  // namespace quill
