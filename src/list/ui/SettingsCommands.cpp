#include "list/ui/SettingsCommands.h"

#include "list/Beaming.h"
#include "list/ContactChanges.h"
#include "list/ui/ContactsView.h"
#include "platform/ui/Screen.h"
#include "platform/ui/WaitCursor.h"
#include "resources/Ids.h"
#include "settings/Settings.h"
#include "settings/ui/ConfigDlg.h"
#include "settings/ui/DeleteConfirmDlg.h"
#include "store/ContactStore.h"

namespace quill {

namespace {

// Whatever the filter, other than the list's own command. The list is built again when the
// configuration closes.
void DeleteEveryone(CScreen& screen) {
  if (g_list.Total <= 0 || !ConfirmContactDeletion(screen, DeleteScope::All)) return;
  const WaitCursor waiting;
  DeleteEveryContact();
}

void Configure(CContactsView& view) {
  CScreen& screen = *ScreenAround(&view);
  if (!g_store.Provider) LoadSettings(g_settings);  // the start-up ended before
  // Saved and laid out also after a Cancel: intended.
  CConfigDlg(screen, {.DeleteAll = [&screen] { DeleteEveryone(screen); },
                      .Receive = [] { ReceiveContacts(g_list); }})
      .DoModal();
  SaveSettings(g_settings);
  view.Relayout();
}

}  // namespace

std::unique_ptr<CommandTarget> MakeSettingsCommands(CContactsView& view) {
  return std::make_unique<CommandTarget>(std::vector<CommandRow>{
      {ID_CONFIGURATION, ID_CONFIGURATION, [&view](int) { Configure(view); }}});
}

}  // namespace quill
