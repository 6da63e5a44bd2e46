#include "list/ContactChanges.h"

#include "store/ContactStore.h"

namespace quill {

namespace {

// As one durable change: a contact that fails leaves the others as they are.
template <typename Change>
void ChangeEach(const std::vector<int>& oids, Change change) {
  if (!g_store.Provider) return;
  const auto transaction = g_store.Provider->Begin();
  if (!transaction) return;
  for (const Oid oid : oids) change(oid);
  transaction->Commit();  // a failure is on the log: nothing has changed then
}

void CopyContact(Oid oid) {
  ContactRecord record;
  if (ReadContact(ContactSelector(oid), record) != 0) WriteContact(0, record);
}

}  // namespace

bool IsCurrentRowInList(const ListState& list) {
  return list.CurrentRow >= 0 && list.Top + list.CurrentRow < list.Total;
}

void DeleteSelectedContacts(const ListState& list) {
  // One that is gone already is not missed.
  ChangeEach(list.SelectedKeys, [](Oid oid) { DeleteContact(oid); });
}

void CopySelectedContacts(const ListState& list) { ChangeEach(list.SelectedKeys, CopyContact); }

void DeleteListedContacts(ListState& list) {
  const ContactCollection all = AllContacts();
  DeleteContacts(list.Restriction.isEmpty() ? all : RestrictContacts(all, list.Restriction));
  list.Top = 0;
}

void DeleteEveryContact() { DeleteContacts(AllContacts()); }

}  // namespace quill
