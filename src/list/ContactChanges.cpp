#include "list/ContactChanges.h"

#include "list/CategoryFilter.h"
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

// One that is gone already is not missed.
void DeleteEach(const std::vector<int>& oids) {
  ChangeEach(oids, [](Oid oid) { DeleteContact(oid); });
}

// Those that the list shows of the contacts that its restriction lets through.
std::vector<Oid> ShownOf(const ListState& list, const ContactCollection& restricted) {
  std::vector<Oid> shown;
  const int count = Count(restricted);
  for (int position = 1; position <= count; ++position) {
    ContactRecord record;
    const Oid oid = ReadListRow({restricted, position}, record);
    if (oid != 0 && PassesCategoryFilter(list, record[ContactField::Categories]))
      shown.push_back(oid);
  }
  return shown;
}

}  // namespace

bool IsCurrentRowInList(const ListState& list) {
  return list.CurrentRow >= 0 && list.Top + list.CurrentRow < list.Total;
}

void DeleteSelectedContacts(const std::vector<int>& selected) { DeleteEach(selected); }

void CopySelectedContacts(const ListState& list) { ChangeEach(list.SelectedKeys, CopyContact); }

void DeleteListedContacts(ListState& list) {
  const ContactCollection all = AllContacts();
  const ContactCollection restricted =
      list.Restriction.isEmpty() ? all : RestrictContacts(all, list.Restriction);
  if (NeedsSecondTest(list))
    DeleteEach(ShownOf(list, restricted));
  else
    DeleteContacts(restricted);  // a failure is on the log, and the list shows what is there
  list.Top = 0;
}

void DeleteEveryContact() { DeleteContacts(AllContacts()); }

}  // namespace quill
