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

bool FaultyContacts::Read(Oid oid, ContactItem& item) {
  return oid != Faults.Read && Inner->Read(oid, item);
}

Oid FaultyContacts::Save(Oid oid, const ContactRecord& record, const QByteArray& bodyInk) {
  return Faults.Save ? 0 : Inner->Save(oid, record, bodyInk);
}

Oid FaultyContacts::SaveWhole(Oid oid, const ContactItem& item) {
  return oid != 0 && oid == Faults.SaveWhole ? 0 : Inner->SaveWhole(oid, item);
}

bool FaultyContacts::Remove(Oid oid) { return Inner->Remove(oid); }

bool FaultyContacts::RemoveAll(const ContactCollection& collection) {
  return Inner->RemoveAll(collection);
}

std::vector<Oid> FaultyContacts::FindByUid(const QString& uid) { return Inner->FindByUid(uid); }

std::vector<Oid> FaultyContacts::FindByFileAs(const QString& fileAs) {
  return Inner->FindByFileAs(fileAs);
}

AppointmentCollection FaultyCalendar::Items() { return Inner->Items(); }

std::optional<AppointmentCollection> FaultyCalendar::Restrict(
    const AppointmentCollection& collection, const QString& restriction) {
  return Faults.Restrict ? std::nullopt : Inner->Restrict(collection, restriction);
}

int FaultyCalendar::Count(const AppointmentCollection& collection) {
  return Inner->Count(collection);
}

Oid FaultyCalendar::OidAt(const AppointmentCollection& collection, int position) {
  return Inner->OidAt(collection, position);
}

bool FaultyCalendar::Read(Oid oid, AppointmentItem& item) { return Inner->Read(oid, item); }

bool FaultyCalendar::ReadSubject(Oid oid, QString& subject) {
  return Inner->ReadSubject(oid, subject);
}

Oid FaultyCalendar::Save(const AppointmentItem& item) {
  return Faults.Save ? 0 : Inner->Save(item);
}

bool FaultyCalendar::PutInk(AppointmentItem& item, const QByteArray& ink) {
  return Inner->PutInk(item, ink);
}

bool FaultyCalendar::Remove(Oid oid) { return Inner->Remove(oid); }

std::vector<Oid> FaultyCalendar::FindByUid(const QString& uid) { return Inner->FindByUid(uid); }

CalendarFolder* FaultyStore::Calendar() {
  m_calendar.Inner = m_inner.Calendar();
  return m_calendar.Inner ? &m_calendar : nullptr;
}

ContactsFolder* FaultyStore::Contacts() {
  m_contacts.Inner = m_inner.Contacts();
  return m_contacts.Inner ? &m_contacts : nullptr;
}

}  // namespace quill::test
