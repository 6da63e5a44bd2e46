// Contacts as the protocol writes them: fields by the store's property names, empty ones left out,
// the two dates as "2004-02-01" or as automation dates, ink notes as base64 under "BodyInk".
#pragma once

#include <QJsonObject>

#include "store/StoreProvider.h"

namespace quill::driver {

QJsonObject FieldsJson(const ContactItem& item);

// Puts the fields into the item; false, and the item is half filled, when one is unknown or of the
// wrong type. An empty text or null empties a date.
bool PutFields(const QJsonObject& fields, ContactItem& item);

// Replaces the dates that fields does not name by one that the store leaves as it is.
void KeepStoredDates(const QJsonObject& fields, ContactRecord& record);

}  // namespace quill::driver
