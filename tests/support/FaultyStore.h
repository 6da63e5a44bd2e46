// A store over another one that counts what is asked of its contacts and fails on demand.
#pragma once

#include "store/StoreProvider.h"

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

class FaultyContacts : public ContactsFolder {
 public:
  ContactCollection Items() override;
  void Sort(ContactCollection& collection, ContactOrder order) override;
  std::optional<ContactCollection> Restrict(const ContactCollection& collection,
                                            const QString& restriction) override;
  int Count(const ContactCollection& collection) override;
  Oid OidAt(const ContactCollection& collection, int position) override;
  bool ReadListRow(Oid oid, ContactRecord& record) override;
  bool Read(Oid oid, ContactItem& item) override;
  Oid Save(Oid oid, const ContactRecord& record, const QByteArray& bodyInk) override;
  Oid SaveWhole(Oid oid, const ContactItem& item) override;
  bool Remove(Oid oid) override;
  bool RemoveAll(const ContactCollection& collection) override;
  std::vector<Oid> FindByUid(const QString& uid) override;
  std::vector<Oid> FindByFileAs(const QString& fileAs) override;

  ContactsFolder* Inner = nullptr;
  StoreFaults Faults;
  StoreCounts Counts;
};

class FaultyCalendar : public CalendarFolder {
 public:
  AppointmentCollection Items() override;
  std::optional<AppointmentCollection> Restrict(const AppointmentCollection& collection,
                                                const QString& restriction) override;
  int Count(const AppointmentCollection& collection) override;
  Oid OidAt(const AppointmentCollection& collection, int position) override;
  bool Read(Oid oid, AppointmentItem& item) override;
  bool ReadSubject(Oid oid, QString& subject) override;
  Oid Save(const AppointmentItem& item) override;
  bool PutInk(AppointmentItem& item, const QByteArray& ink) override;
  bool Remove(Oid oid) override;
  std::vector<Oid> FindByUid(const QString& uid) override;

  CalendarFolder* Inner = nullptr;
  CalendarFaults Faults;
};

class FaultyStore : public StoreProvider {
 public:
  // Does not own the store below.
  explicit FaultyStore(StoreProvider& inner) : m_inner(inner) {}

  int Create() override { return m_inner.Create(); }
  int Logon() override { return m_inner.Logon(); }
  int OpenFolder(FolderKind kind) override { return m_inner.OpenFolder(kind); }
  void Close() override { m_inner.Close(); }
  ContactsFolder* Contacts() override;
  CalendarFolder* Calendar() override;
  CategoryLibrary* Categories() override { return m_inner.Categories(); }
  std::unique_ptr<StoreTransaction> Begin() override { return m_inner.Begin(); }
  std::unique_ptr<StoreTransaction> BeginReading() override { return m_inner.BeginReading(); }
  qint64 Changes() override { return m_inner.Changes(); }
  QString LastError() const override { return m_inner.LastError(); }

  StoreFaults& Faults() { return m_contacts.Faults; }
  StoreCounts& Counts() { return m_contacts.Counts; }
  CalendarFaults& OfCalendar() { return m_calendar.Faults; }

 private:
  StoreProvider& m_inner;
  FaultyContacts m_contacts;
  FaultyCalendar m_calendar;
};

}  // namespace quill::test
