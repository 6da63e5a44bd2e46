// The appointments with some of the sample people.
#pragma once

#include "store/StoreProvider.h"

namespace quill {

// Saves them in an open calendar, which belongs into the caller's transaction. False when one could
// not be written.
bool SaveSampleAppointments(CalendarFolder& calendar);

}  // namespace quill
