// Whether an appointment may be saved. Each answer is the first reason against it, as plain text
// for the log, and nothing when it may.
//
// What is odd but may be saved, all intended: a weekly mask of any 1 to 255, also one whose only
// bit names no day; a yearly pattern of any interval, since saving makes it 1; no occurrences at
// all; an end date that does not count, whatever it is.
#pragma once

#include <QString>

#include <optional>

#include "store/AppointmentItem.h"

namespace quill {

std::optional<QString> WhyNotSavable(const RecurrencePattern& pattern);
// Looks at the item's pattern too.
std::optional<QString> WhyNotSavable(const AppointmentItem& item);

inline bool IsSavable(const RecurrencePattern& pattern) { return !WhyNotSavable(pattern); }

}  // namespace quill
