#include "support/FaultyStore.h"

namespace quill::test {

ContactCollection FaultyContacts::Items() {
  ++Counts.Items;
  return Inner->Items();
}

void FaultyContacts::Sort(ContactCollection& collection, ContactOrder order) {
  Inner->Sort(collection, order);
}

std::optional<ContactCollection> FaultyContacts::Restrict(const ContactCollection& collection,
                                                          const QString& restriction) {
  ++Counts.Restrict;
  return Faults.Restrict ? std::nullopt : Inner->Restrict(collection, restriction);
}

int FaultyContacts::Count(const ContactCollection& collection) { return Inner->Count(collection); }

Oid FaultyContacts::OidAt(const ContactCollection& collection, int position) {
  return Inner->OidAt(collection, position);
}

bool FaultyContacts::ReadListRow(Oid oid, ContactRecord& record) {
  ++Counts.ReadListRow;
  return oid != Faults.ReadListRow && Inner->ReadListRow(oid, record);
}

bool FaultyContacts::Read(Oid oid, ContactItem& item) { return Inner->Read(oid, item); }

Oid FaultyContacts::Save(Oid oid, const ContactRecord& record, const QByteArray& bodyInk) {
  return Inner->Save(oid, record, bodyInk);
}

Oid FaultyContacts::SaveWhole(Oid oid, const ContactItem& item) {
  return Inner->SaveWhole(oid, item);
}

bool FaultyContacts::Remove(Oid oid) { return Inner->Remove(oid); }

std::vector<Oid> FaultyContacts::FindByUid(const QString& uid) { return Inner->FindByUid(uid); }

std::vector<Oid> FaultyContacts::FindByFileAs(const QString& fileAs) {
  return Inner->FindByFileAs(fileAs);
}

ContactsFolder* FaultyStore::Contacts() {
  m_contacts.Inner = m_inner.Contacts();
  return m_contacts.Inner ? &m_contacts : nullptr;
}

}  // namespace quill::test
