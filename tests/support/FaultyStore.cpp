#include "support/FaultyStore.h"

namespace quill::test {

ContactCollection FaultyContacts::Items() {
  ++Counts.Items;
  return ForwardingContacts::Items();
}

std::optional<ContactCollection> FaultyContacts::Restrict(const ContactCollection& collection,
                                                          const QString& restriction) {
  ++Counts.Restrict;
  return Faults.Restrict ? std::nullopt : ForwardingContacts::Restrict(collection, restriction);
}

bool FaultyContacts::ReadListRow(Oid oid, ContactRecord& record) {
  ++Counts.ReadListRow;
  return oid != Faults.ReadListRow && ForwardingContacts::ReadListRow(oid, record);
}

bool FaultyContacts::Read(Oid oid, ContactItem& item) {
  return oid != Faults.Read && ForwardingContacts::Read(oid, item);
}

Oid FaultyContacts::Save(Oid oid, const ContactRecord& record, const QByteArray& bodyInk) {
  return Faults.Save ? 0 : ForwardingContacts::Save(oid, record, bodyInk);
}

Oid FaultyContacts::SaveWhole(Oid oid, const ContactItem& item) {
  return oid != 0 && oid == Faults.SaveWhole ? 0 : ForwardingContacts::SaveWhole(oid, item);
}

std::optional<AppointmentCollection> FaultyCalendar::Restrict(
    const AppointmentCollection& collection, const QString& restriction) {
  return Faults.Restrict ? std::nullopt : ForwardingCalendar::Restrict(collection, restriction);
}

Oid FaultyCalendar::Save(const AppointmentItem& item) {
  return Faults.Save ? 0 : ForwardingCalendar::Save(item);
}

CalendarFolder* FaultyStore::Calendar() {
  return ForwardingStore::Calendar() ? &m_calendar : nullptr;
}

ContactsFolder* FaultyStore::Contacts() {
  return ForwardingStore::Contacts() ? &m_contacts : nullptr;
}

}  // namespace quill::test
