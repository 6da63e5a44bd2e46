// When an appointment recurs, in words, as "Every 2 week(s) onMon.,Wed.".
#pragma once

#include <QString>

#include "appointments/AppointmentInfo.h"

namespace quill {

// Intended: there is no space between the head of a weekly text and its first day, and the last
// character of a weekly text goes also when there is no day. Texts of the nth weekday and of a year
// speak of the day the appointment starts, not of what its pattern holds.
QString RecurrenceText(const AppointmentInfo& info);

}  // namespace quill
