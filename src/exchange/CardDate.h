// Dates as cards write them.
#pragma once

#include <QStringView>

#include <optional>

#include "exchange/CardVersion.h"
#include "store/ContactRecord.h"

namespace quill {

// "1970-02-28", "19700228" or "1970-2-28", with or without a time, which is dropped and never
// shifts the day. Nothing for anything else, for years outside 1900 to 2999, and for 1604: the year
// that writers without a year put.
std::optional<CalendarDate> DateFromCard(QStringView text);

// "1970-02-28", in 4.0 "19700228"; the time of day is left out.
QString DateForCard(const CalendarDate& date, CardVersion version);

}  // namespace quill
