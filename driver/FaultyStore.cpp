#include "driver/FaultyStore.h"

namespace quill::driver {

class FaultyContactsFolder : public ContactsFolder {
 public:
  FaultyContactsFolder(StoreProvider& store, const FaultTable& faults)
      : m_store(store), m_faults(faults) {}

  ContactCollection Items() override { return Inner().Items(); }
  void Sort(ContactCollection& collection, ContactOrder order) override {
    Inner().Sort(collection, order);
  }
  std::optional<ContactCollection> Restrict(const ContactCollection& collection,
                                            const QString& restriction) override {
    if (m_faults.CodeOf(u"restrict") != 0) return std::nullopt;
    return Inner().Restrict(collection, restriction);
  }
  int Count(const ContactCollection& collection) override { return Inner().Count(collection); }
  Oid OidAt(const ContactCollection& collection, int position) override {
    return Inner().OidAt(collection, position);
  }
  bool ReadListRow(Oid oid, ContactRecord& record) override {
    return !m_faults.Fails(u"read", oid) && Inner().ReadListRow(oid, record);
  }
  bool Read(Oid oid, ContactItem& item) override {
    return !m_faults.Fails(u"read", oid) && Inner().Read(oid, item);
  }
  Oid Save(Oid oid, const ContactRecord& record, const QByteArray& bodyInk) override {
    return m_faults.Fails(u"write", oid) ? 0 : Inner().Save(oid, record, bodyInk);
  }
  Oid SaveWhole(Oid oid, const ContactItem& item) override {
    return m_faults.Fails(u"write", oid) ? 0 : Inner().SaveWhole(oid, item);
  }
  bool Remove(Oid oid) override { return !m_faults.Fails(u"delete", oid) && Inner().Remove(oid); }
  bool RemoveAll(const ContactCollection& collection) override {
    return !FailsForOneOf(collection) && Inner().RemoveAll(collection);
  }
  std::vector<Oid> FindByUid(const QString& uid) override { return Inner().FindByUid(uid); }
  std::vector<Oid> FindByFileAs(const QString& fileAs) override {
    return Inner().FindByFileAs(fileAs);
  }

 private:
  ContactsFolder& Inner() { return *m_store.Contacts(); }
  bool FailsForOneOf(const ContactCollection& collection) {
    if (m_faults.CodeOf(u"delete") == 0) return false;
    for (int position = Count(collection); position >= 1; --position)
      if (m_faults.Fails(u"delete", OidAt(collection, position))) return true;
    return false;
  }

  StoreProvider& m_store;
  const FaultTable& m_faults;
};

class FaultyCalendarFolder : public CalendarFolder {
 public:
  FaultyCalendarFolder(StoreProvider& store, const FaultTable& faults)
      : m_store(store), m_faults(faults) {}

  AppointmentCollection Items() override { return Inner().Items(); }
  std::optional<AppointmentCollection> Restrict(const AppointmentCollection& collection,
                                                const QString& restriction) override {
    if (m_faults.CodeOf(u"restrict") != 0) return std::nullopt;
    return Inner().Restrict(collection, restriction);
  }
  int Count(const AppointmentCollection& collection) override { return Inner().Count(collection); }
  Oid OidAt(const AppointmentCollection& collection, int position) override {
    return Inner().OidAt(collection, position);
  }
  bool Read(Oid oid, AppointmentItem& item) override {
    return !m_faults.Fails(u"read", oid) && Inner().Read(oid, item);
  }
  bool ReadSubject(Oid oid, QString& subject) override {
    return !m_faults.Fails(u"read", oid) && Inner().ReadSubject(oid, subject);
  }
  Oid Save(const AppointmentItem& item) override {
    return m_faults.Fails(u"save-appointment", item.Id) ? 0 : Inner().Save(item);
  }
  bool PutInk(AppointmentItem& item, const QByteArray& ink) override {
    return !m_faults.Fails(u"appointment-ink", item.Id) && Inner().PutInk(item, ink);
  }
  bool Remove(Oid oid) override { return !m_faults.Fails(u"delete", oid) && Inner().Remove(oid); }
  std::vector<Oid> FindByUid(const QString& uid) override { return Inner().FindByUid(uid); }

 private:
  CalendarFolder& Inner() { return *m_store.Calendar(); }

  StoreProvider& m_store;
  const FaultTable& m_faults;
};

FaultyStore::FaultyStore(StoreProvider& inner, const FaultTable& faults)
    : m_inner(inner),
      m_faults(faults),
      m_contacts(std::make_unique<FaultyContactsFolder>(inner, faults)),
      m_calendar(std::make_unique<FaultyCalendarFolder>(inner, faults)) {}

FaultyStore::~FaultyStore() = default;

int FaultyStore::Create() {
  const int code = m_faults.CodeOf(u"store-create");
  return code != 0 ? code : m_inner.Create();
}

int FaultyStore::Logon() {
  const int code = m_faults.CodeOf(u"store-logon");
  return code != 0 ? code : m_inner.Logon();
}

int FaultyStore::OpenFolder(FolderKind kind) {
  const int code =
      m_faults.CodeOf(kind == FolderKind::Contacts ? u"contacts-folder" : u"calendar-folder");
  return code != 0 ? code : m_inner.OpenFolder(kind);
}

void FaultyStore::Close() { m_inner.Close(); }

ContactsFolder* FaultyStore::Contacts() { return m_inner.Contacts() ? m_contacts.get() : nullptr; }

CalendarFolder* FaultyStore::Calendar() { return m_inner.Calendar() ? m_calendar.get() : nullptr; }

CategoryLibrary* FaultyStore::Categories() { return m_inner.Categories(); }

std::unique_ptr<StoreTransaction> FaultyStore::Begin() { return m_inner.Begin(); }

std::unique_ptr<StoreTransaction> FaultyStore::BeginReading() { return m_inner.BeginReading(); }

qint64 FaultyStore::Changes() { return m_inner.Changes(); }

QString FaultyStore::LastError() const { return m_inner.LastError(); }

}  // namespace quill::driver
