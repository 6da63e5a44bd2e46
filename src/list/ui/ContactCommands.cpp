#include "list/ui/ContactCommands.h"

#include "list/ui/ContactsView.h"
#include "resources/Ids.h"

namespace quill {

namespace {

// Listed in the menus, disabled until its window exists.
CommandRow Unavailable(int id) { return {id, id, nullptr, nullptr}; }

}  // namespace

std::unique_ptr<CommandTarget> MakeContactCommands(CContactsView& view) {
  return std::make_unique<CommandTarget>(std::vector<CommandRow>{
      {ContactsViewIds::kSearchButton, ContactsViewIds::kSearchButton,
       [&view](int) { view.Search(); }, nullptr},
      Unavailable(ID_FILE_NEW),
      Unavailable(ID_BEAM_CONTACTS),
      Unavailable(ID_DELETE_ITEMS),
      Unavailable(ID_RECEIVE_INFRARED),
      Unavailable(ID_DELETE_ALL),
      Unavailable(ID_CONFIGURATION),
      Unavailable(ID_COPY_CONTACT),
  });
}

}  // namespace quill
