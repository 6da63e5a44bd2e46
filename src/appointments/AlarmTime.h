// How long before an appointment its alarm rings, as an amount of a unit.
#pragma once

#include <QStringView>

#include <array>

namespace quill {

enum class AlarmUnit { Minutes, Hours, Days };  // in the order of the list
inline constexpr std::array<QStringView, 3> kAlarmUnitNames = {u"Minute(s)", u"Hour(s)", u"Day(s)"};

struct AlarmTime {
  int Amount = 0;
  AlarmUnit Unit = AlarmUnit::Minutes;

  bool operator==(const AlarmTime&) const = default;
};

// In the largest unit that leaves no rest; none, and less than none, are 0 minutes.
AlarmTime AlarmTimeOf(int minutes);
// At most what an int holds.
int MinutesOf(const AlarmTime& time);

}  // namespace quill
