// A store that hands everything on to another one: the base of those that fail or count on demand.
// What is below is owned by none of these and outlives them.
#pragma once

#include "store/StoreProvider.h"

namespace quill {

class ForwardingContacts : public ContactsFolder {
 public:
  // Asked for its folder at each call, since that comes and goes.
  explicit ForwardingContacts(StoreProvider& below) : m_below(below) {}

  ContactCollection Items() override { return Below().Items(); }
  void Sort(ContactCollection& collection, ContactOrder order) override {
    Below().Sort(collection, order);
  }
  std::optional<ContactCollection> Restrict(const ContactCollection& collection,
                                            const QString& restriction) override {
    return Below().Restrict(collection, restriction);
  }
  int Count(const ContactCollection& collection) override { return Below().Count(collection); }
  Oid OidAt(const ContactCollection& collection, int position) override {
    return Below().OidAt(collection, position);
  }
  bool Has(Oid oid) override { return Below().Has(oid); }
  bool ReadListRow(Oid oid, ContactRecord& record) override {
    return Below().ReadListRow(oid, record);
  }
  bool Read(Oid oid, ContactItem& item) override { return Below().Read(oid, item); }
  Oid Save(Oid oid, const ContactRecord& record, const QByteArray& bodyInk) override {
    return Below().Save(oid, record, bodyInk);
  }
  Oid SaveWhole(Oid oid, const ContactItem& item) override { return Below().SaveWhole(oid, item); }
  bool Remove(Oid oid) override { return Below().Remove(oid); }
  bool RemoveAll(const ContactCollection& collection) override {
    return Below().RemoveAll(collection);
  }
  std::vector<Oid> FindByUid(const QString& uid) override { return Below().FindByUid(uid); }
  std::vector<Oid> FindByFileAs(const QString& fileAs) override {
    return Below().FindByFileAs(fileAs);
  }

 private:
  ContactsFolder& Below() { return *m_below.Contacts(); }

  StoreProvider& m_below;
};

class ForwardingCalendar : public CalendarFolder {
 public:
  explicit ForwardingCalendar(StoreProvider& below) : m_below(below) {}

  AppointmentCollection Items() override { return Below().Items(); }
  std::optional<AppointmentCollection> Restrict(const AppointmentCollection& collection,
                                                const QString& restriction) override {
    return Below().Restrict(collection, restriction);
  }
  int Count(const AppointmentCollection& collection) override { return Below().Count(collection); }
  Oid OidAt(const AppointmentCollection& collection, int position) override {
    return Below().OidAt(collection, position);
  }
  bool Read(Oid oid, AppointmentItem& item) override { return Below().Read(oid, item); }
  bool ReadSubject(Oid oid, QString& subject) override { return Below().ReadSubject(oid, subject); }
  Oid Save(const AppointmentItem& item) override { return Below().Save(item); }
  bool PutInk(AppointmentItem& item, const QByteArray& ink) override {
    return Below().PutInk(item, ink);
  }
  bool Remove(Oid oid) override { return Below().Remove(oid); }
  std::vector<Oid> FindByUid(const QString& uid) override { return Below().FindByUid(uid); }

 private:
  CalendarFolder& Below() { return *m_below.Calendar(); }

  StoreProvider& m_below;
};

// Its folders are null as long as those below are; a derived one puts its own in their place.
class ForwardingStore : public StoreProvider {
 public:
  explicit ForwardingStore(StoreProvider& below) : m_below(below) {}

  int Create() override { return m_below.Create(); }
  int Logon() override { return m_below.Logon(); }
  int OpenFolder(FolderKind kind) override { return m_below.OpenFolder(kind); }
  void Close() override { m_below.Close(); }
  ContactsFolder* Contacts() override { return m_below.Contacts(); }
  CalendarFolder* Calendar() override { return m_below.Calendar(); }
  CategoryLibrary* Categories() override { return m_below.Categories(); }
  std::unique_ptr<StoreTransaction> Begin() override { return m_below.Begin(); }
  std::unique_ptr<StoreTransaction> BeginReading() override { return m_below.BeginReading(); }
  qint64 Changes() override { return m_below.Changes(); }
  QString LastError() const override { return m_below.LastError(); }

 private:
  StoreProvider& m_below;
};

}  // namespace quill
