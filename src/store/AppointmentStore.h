// The operations on appointments over the open session of ContactStore.h. Without one they do
// nothing and answer 0, false or an empty collection.
//
// An item is a value in the caller's hand: nothing of it is stored before SaveAppointment.
#pragma once

#include <QString>

#include <optional>

#include "store/StoreProvider.h"

namespace quill {

// A new one, unsaved, with the store's defaults.
AppointmentItem CreateAppointment();
// Nothing when there is no such appointment.
std::optional<AppointmentItem> OpenAppointment(Oid oid);
// Its subject alone, for lists of many.
std::optional<QString> AppointmentSubject(Oid oid);
// Saves what AppointmentValidity.h lets through, its pattern settled (see RecurrencePattern.h); the
// item becomes what was saved, Id included. False, and the item untouched, when it is refused or
// not written; the reason goes to the log.
bool SaveAppointment(AppointmentItem& item);
// True when the appointment existed and is gone now.
bool DeleteAppointment(Oid oid);
// Puts ink on the item in hand; false, and the item untouched, when it is more than the store
// takes.
bool PutAppointmentInk(AppointmentItem& item, const QByteArray& ink);

// In the order of the Oids.
AppointmentCollection AllAppointments();
// Empty when the restriction fails (the reason goes to the log).
AppointmentCollection RestrictAppointments(const AppointmentCollection& collection,
                                           const QString& restriction);
int Count(const AppointmentCollection& collection);
// The appointment at a position, 1-based; 0 when there is none.
Oid AppointmentAt(const AppointmentCollection& collection, int position);

}  // namespace quill
