#include "appointments/AlarmTime.h"

#include <algorithm>
#include <limits>

namespace quill {

namespace {

constexpr std::array kMinutesIn = {1, 60, 1440};  // by unit

int MinutesIn(AlarmUnit unit) { return kMinutesIn[static_cast<std::size_t>(unit)]; }

}  // namespace

AlarmTime AlarmTimeOf(int minutes) {
  if (minutes <= 0) return {};
  for (const AlarmUnit unit : {AlarmUnit::Days, AlarmUnit::Hours})
    if (minutes % MinutesIn(unit) == 0) return {minutes / MinutesIn(unit), unit};
  return {minutes, AlarmUnit::Minutes};
}

int MinutesOf(const AlarmTime& time) {
  const qint64 minutes = qint64{time.Amount} * MinutesIn(time.Unit);
  return static_cast<int>(std::min<qint64>(minutes, std::numeric_limits<int>::max()));
}

}  // namespace quill
