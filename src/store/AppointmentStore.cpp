#include "store/AppointmentStore.h"

#include <utility>

#include "store/AppointmentValidity.h"
#include "store/ContactStore.h"
#include "store/Restriction.h"
#include "store/StoreLog.h"

namespace quill {

namespace {

CalendarFolder* Folder() { return g_store.Provider ? g_store.Provider->Calendar() : nullptr; }

AppointmentCollection EmptyCollection() {
  return {.Restriction = std::make_shared<const RestrictionNode>(
              RestrictionNode{.Kind = RestrictionKind::Or})};
}

// Settling an item without a pattern leaves it as it is.
AppointmentItem SettledItem(AppointmentItem item) {
  if (item.Recurrence) item.Recurrence = Settled(*item.Recurrence);
  return item;
}

}  // namespace

AppointmentItem CreateAppointment() { return {}; }

std::optional<AppointmentItem> OpenAppointment(Oid oid) {
  CalendarFolder* folder = Folder();
  AppointmentItem item;
  if (!folder || !folder->Read(oid, item)) return std::nullopt;
  return item;
}

std::optional<QString> AppointmentSubject(Oid oid) {
  CalendarFolder* folder = Folder();
  QString subject;
  if (!folder || !folder->ReadSubject(oid, subject)) return std::nullopt;
  return subject;
}

bool SaveAppointment(AppointmentItem& item) {
  CalendarFolder* folder = Folder();
  if (!folder) return false;
  AppointmentItem settled = SettledItem(item);
  if (const auto reason = WhyNotSavable(settled)) {
    qCWarning(storeLog).noquote() << "Appointment" << item.Id << "refused:" << *reason;
    return false;
  }
  settled.Id = folder->Save(settled);
  if (settled.Id == 0) {
    qCWarning(storeLog) << "Appointment" << item.Id
                        << "not written:" << g_store.Provider->LastError();
    return false;
  }
  item = std::move(settled);
  return true;
}

bool DeleteAppointment(Oid oid) {
  CalendarFolder* folder = Folder();
  return folder && folder->Remove(oid);
}

bool PutAppointmentInk(AppointmentItem& item, const QByteArray& ink) {
  CalendarFolder* folder = Folder();
  if (folder && folder->PutInk(item, ink)) return true;
  qCWarning(storeLog) << "Appointment" << item.Id << "does not take" << ink.size()
                      << "bytes of ink";
  return false;
}

AppointmentCollection AllAppointments() {
  CalendarFolder* folder = Folder();
  return folder ? folder->Items() : EmptyCollection();
}

AppointmentCollection RestrictAppointments(const AppointmentCollection& collection,
                                           const QString& restriction) {
  CalendarFolder* folder = Folder();
  if (folder) {
    if (auto restricted = folder->Restrict(collection, restriction)) return std::move(*restricted);
    qCWarning(storeLog) << "Restriction failed:" << restriction;
  }
  return EmptyCollection();
}

int Count(const AppointmentCollection& collection) {
  CalendarFolder* folder = Folder();
  return folder ? folder->Count(collection) : 0;
}

Oid AppointmentAt(const AppointmentCollection& collection, int position) {
  CalendarFolder* folder = Folder();
  return folder ? folder->OidAt(collection, position) : 0;
}

}  // namespace quill
