// A store over another one that counts what is asked of its contacts and fails on demand.
#pragma once

#include "driver/ForwardingStore.h"

namespace quill::test {

// What shall fail: a whole operation, or reading one contact.
struct StoreFaults {
  bool Restrict = false;
  bool Save = false;
  Oid ReadListRow = 0;
  Oid Read = 0;
  Oid SaveWhole = 0;
};

struct CalendarFaults {
  bool Restrict = false;
  bool Save = false;
};

struct StoreCounts {
  int Items = 0;
  int Restrict = 0;
  int ReadListRow = 0;

  bool operator==(const StoreCounts&) const = default;
};

class FaultyContacts : public ForwardingContacts {
 public:
  using ForwardingContacts::ForwardingContacts;

  ContactCollection Items() override;
  std::optional<ContactCollection> Restrict(const ContactCollection& collection,
                                            const QString& restriction) override;
  bool ReadListRow(Oid oid, ContactRecord& record) override;
  bool Read(Oid oid, ContactItem& item) override;
  Oid Save(Oid oid, const ContactRecord& record, const QByteArray& bodyInk) override;
  Oid SaveWhole(Oid oid, const ContactItem& item) override;

  StoreFaults Faults;
  StoreCounts Counts;
};

class FaultyCalendar : public ForwardingCalendar {
 public:
  using ForwardingCalendar::ForwardingCalendar;

  std::optional<AppointmentCollection> Restrict(const AppointmentCollection& collection,
                                                const QString& restriction) override;
  Oid Save(const AppointmentItem& item) override;

  CalendarFaults Faults;
};

class FaultyStore : public ForwardingStore {
 public:
  // Does not own the store below.
  explicit FaultyStore(StoreProvider& below)
      : ForwardingStore(below), m_contacts(below), m_calendar(below) {}

  ContactsFolder* Contacts() override;
  CalendarFolder* Calendar() override;

  StoreFaults& Faults() { return m_contacts.Faults; }
  StoreCounts& Counts() { return m_contacts.Counts; }
  CalendarFaults& OfCalendar() { return m_calendar.Faults; }

 private:
  FaultyContacts m_contacts;
  FaultyCalendar m_calendar;
};

}  // namespace quill::test
