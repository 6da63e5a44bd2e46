// The two dates of a contact as the store's file holds them, beyond what the program takes for a
// date.
#pragma once

#include <QJsonObject>
#include <QString>

#include "store/ContactRecord.h"

namespace quill::driver {

// Automation dates by property name; none when the contact cannot be read. Reads through a
// connection of its own and writes nothing.
QJsonObject ReadRawDates(const QString& storeFile, Oid oid);

}  // namespace quill::driver
