#include "list/ui/ContactCommands.h"

#include "list/Beaming.h"
#include "list/ContactChanges.h"
#include "list/Selection.h"
#include "list/ui/ContactsView.h"
#include "list/ui/MemoCommands.h"
#include "list/ui/RecordOpening.h"
#include "platform/ui/Screen.h"
#include "platform/ui/WaitCursor.h"
#include "resources/Ids.h"
#include "settings/ui/DeleteConfirmDlg.h"

namespace quill {

namespace {

bool IsByMemo() { return g_list.Mode == ViewMode::ByMemo; }

bool Confirm(CContactsView& view, DeleteScope scope) {
  return ConfirmContactDeletion(*ScreenAround(&view), scope);
}

void DeleteSelected(CContactsView& view) {
  if (IsByMemo()) return DeleteSelectedMemos(view);
  // What is asked about goes, also when other programs push it off the page meanwhile.
  const std::vector<int> selected = g_list.SelectedKeys;
  if (!IsCurrentRowInList(g_list) || !Confirm(view, DeleteScope::Selected)) return;
  const int row = FirstSelectedRow(g_list);
  DeleteSelectedContacts(selected);
  view.RebuildInPlace(row);
}

void DeleteListed(CContactsView& view) {
  if (g_list.Total <= 0) return;
  if (IsByMemo()) return DeleteListedMemos(view);
  if (!Confirm(view, DeleteScope::All)) return;
  const WaitCursor waiting;
  DeleteListedContacts(g_list);
  view.Rebuild();
}

void CopySelected(CContactsView& view) {
  if (IsByMemo() || !IsCurrentRowInList(g_list)) return;
  CopySelectedContacts(g_list);
  view.Rebuild();
}

void MakeNew(CContactsView& view) { IsByMemo() ? MakeNewMemo(view) : MakeNewContact(view); }

}  // namespace

std::unique_ptr<CommandTarget> MakeContactCommands(CContactsView& view) {
  const auto whenSelected = [](int, CommandState& state) {
    state.Enabled = !g_list.SelectedKeys.empty();
  };
  const auto whenListed = [](int, CommandState& state) { state.Enabled = g_list.Total > 0; };
  return std::make_unique<CommandTarget>(std::vector<CommandRow>{
      {ContactsViewIds::kSearchButton, ContactsViewIds::kSearchButton,
       [&view](int) { view.Search(); }, nullptr},
      {ID_FILE_NEW, ID_FILE_NEW, [&view](int) { MakeNew(view); }, nullptr},
      {ID_DELETE_ITEMS, ID_DELETE_ITEMS, [&view](int) { DeleteSelected(view); }, whenSelected},
      {ID_DELETE_ALL, ID_DELETE_ALL, [&view](int) { DeleteListed(view); }, whenListed},
      {ID_COPY_CONTACT, ID_COPY_CONTACT, [&view](int) { CopySelected(view); }, nullptr},
      {ID_BEAM_CONTACTS, ID_BEAM_CONTACTS, [](int) { BeamSelectedContacts(g_list); },
       [](int, CommandState& state) { state.Enabled = CanBeam(g_list); }},
      {ID_RECEIVE_INFRARED, ID_RECEIVE_INFRARED, [](int) { ReceiveContacts(g_list); },
       [](int, CommandState& state) { state.Enabled = !IsByMemo(); }},
  });
}

}  // namespace quill
