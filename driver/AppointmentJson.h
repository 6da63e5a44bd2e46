// Appointments as the protocol writes them: fields and the recurrence by the store's property
// names.
//
// Dates with a time of day are "2004-02-01T10:00:00", days "2004-09-15", times of day "10:00:00",
// ink base64, the rest texts, whole numbers and booleans. Empty texts, dates and ink are left out;
// a text that may be missing is null then.
#pragma once

#include <QJsonObject>

#include "store/AppointmentItem.h"

namespace quill::driver {

QJsonObject FieldsJson(const AppointmentItem& item);
// Null when it does not recur.
QJsonValue RecurrenceJson(const AppointmentItem& item);

// Each puts what is given into the item, the rest of it stays; false, and the item is half filled,
// when something is unknown or of the wrong type. Null or an empty text empties a date; a number is
// an automation date where there is a time of day.
bool PutFields(const QJsonObject& fields, AppointmentItem& item);
// Null ends the recurrence; an object changes it, or the one that a fresh pattern starts with.
bool PutRecurrence(const QJsonValue& recurrence, AppointmentItem& item);

}  // namespace quill::driver
