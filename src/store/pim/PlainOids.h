// The items of a collection by plain SQL over the contacts or appointments: right for every
// restriction, but it looks at each of them. The list index answers the usual ones, with the same
// Oids.
#pragma once

#include <vector>

#include "store/AppointmentCollection.h"
#include "store/ContactCollection.h"
#include "store/ContactRecord.h"

namespace quill {

class Database;

// In the collection's order; empty when the store fails.
std::vector<Oid> PlainContactOids(Database& database, const ContactCollection& collection);
std::vector<Oid> PlainAppointmentOids(Database& database, const AppointmentCollection& collection);

}  // namespace quill
