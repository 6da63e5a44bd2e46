#include "driver/FaultyStore.h"

namespace quill::driver {

class FaultyContactsFolder : public ForwardingContacts {
 public:
  FaultyContactsFolder(StoreProvider& below, const FaultTable& faults)
      : ForwardingContacts(below), m_faults(faults) {}

  std::optional<ContactCollection> Restrict(const ContactCollection& collection,
                                            const QString& restriction) override {
    if (m_faults.CodeOf(u"restrict") != 0) return std::nullopt;
    return ForwardingContacts::Restrict(collection, restriction);
  }
  bool ReadListRow(Oid oid, ContactRecord& record) override {
    return !m_faults.Fails(u"read", oid) && ForwardingContacts::ReadListRow(oid, record);
  }
  bool Read(Oid oid, ContactItem& item) override {
    return !m_faults.Fails(u"read", oid) && ForwardingContacts::Read(oid, item);
  }
  Oid Save(Oid oid, const ContactRecord& record, const QByteArray& bodyInk) override {
    return m_faults.Fails(u"write", oid) ? 0 : ForwardingContacts::Save(oid, record, bodyInk);
  }
  Oid SaveWhole(Oid oid, const ContactItem& item) override {
    return m_faults.Fails(u"write", oid) ? 0 : ForwardingContacts::SaveWhole(oid, item);
  }
  bool Remove(Oid oid) override {
    return !m_faults.Fails(u"delete", oid) && ForwardingContacts::Remove(oid);
  }
  bool RemoveAll(const ContactCollection& collection) override {
    return !FailsForOneOf(collection) && ForwardingContacts::RemoveAll(collection);
  }

 private:
  bool FailsForOneOf(const ContactCollection& collection) {
    if (m_faults.CodeOf(u"delete") == 0) return false;
    for (int position = Count(collection); position >= 1; --position)
      if (m_faults.Fails(u"delete", OidAt(collection, position))) return true;
    return false;
  }

  const FaultTable& m_faults;
};

class FaultyCalendarFolder : public ForwardingCalendar {
 public:
  FaultyCalendarFolder(StoreProvider& below, const FaultTable& faults)
      : ForwardingCalendar(below), m_faults(faults) {}

  std::optional<AppointmentCollection> Restrict(const AppointmentCollection& collection,
                                                const QString& restriction) override {
    if (m_faults.CodeOf(u"restrict") != 0) return std::nullopt;
    return ForwardingCalendar::Restrict(collection, restriction);
  }
  bool Read(Oid oid, AppointmentItem& item) override {
    return !m_faults.Fails(u"read", oid) && ForwardingCalendar::Read(oid, item);
  }
  bool ReadSubject(Oid oid, QString& subject) override {
    return !m_faults.Fails(u"read", oid) && ForwardingCalendar::ReadSubject(oid, subject);
  }
  Oid Save(const AppointmentItem& item) override {
    return m_faults.Fails(u"save-appointment", item.Id) ? 0 : ForwardingCalendar::Save(item);
  }
  bool PutInk(AppointmentItem& item, const QByteArray& ink) override {
    return !m_faults.Fails(u"appointment-ink", item.Id) && ForwardingCalendar::PutInk(item, ink);
  }
  bool Remove(Oid oid) override {
    return !m_faults.Fails(u"delete", oid) && ForwardingCalendar::Remove(oid);
  }

 private:
  const FaultTable& m_faults;
};

FaultyStore::FaultyStore(StoreProvider& below, const FaultTable& faults)
    : ForwardingStore(below),
      m_faults(faults),
      m_contacts(std::make_unique<FaultyContactsFolder>(below, faults)),
      m_calendar(std::make_unique<FaultyCalendarFolder>(below, faults)) {}

FaultyStore::~FaultyStore() = default;

int FaultyStore::Create() {
  const int code = m_faults.CodeOf(u"store-create");
  return code != 0 ? code : ForwardingStore::Create();
}

int FaultyStore::Logon() {
  const int code = m_faults.CodeOf(u"store-logon");
  return code != 0 ? code : ForwardingStore::Logon();
}

int FaultyStore::OpenFolder(FolderKind kind) {
  const int code =
      m_faults.CodeOf(kind == FolderKind::Contacts ? u"contacts-folder" : u"calendar-folder");
  return code != 0 ? code : ForwardingStore::OpenFolder(kind);
}

ContactsFolder* FaultyStore::Contacts() {
  return ForwardingStore::Contacts() ? m_contacts.get() : nullptr;
}

CalendarFolder* FaultyStore::Calendar() {
  return ForwardingStore::Calendar() ? m_calendar.get() : nullptr;
}

}  // namespace quill::driver
