// An appointment with all the store keeps of it: a plain value, whether it is saved or not. Times
// are local. A new one has no Oid, no dates and the store's defaults.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

#include "store/ContactRecord.h"
#include "store/RecurrencePattern.h"

namespace quill {

inline constexpr int kBusy = 2;  // BusyStatus: the time is taken

struct AppointmentItem {
  Oid Id = 0;  // 0: not saved yet
  QString Subject = {};
  QString Location = {};
  QString Categories = {};
  CalendarDate Start = {};
  CalendarDate End = {};
  int Duration = 0;  // minutes
  bool AllDayEvent = false;
  int Sensitivity = 0;  // 0: not sensitive
  int BusyStatus = kBusy;
  bool ReminderSet = false;
  std::optional<QString> ReminderSoundFile = {};  // nothing is not the same as the empty text
  int ReminderOptions = 0;                        // a sum of LED 1, dialog 4, sound 8, repeat 16
  int ReminderMinutesBeforeStart = 0;
  QByteArray BodyInk = {};
  std::optional<RecurrencePattern> Recurrence = {};  // nothing: it does not recur
  QString Uid = {};
  QString CarriedLines = {};  // what an imported entry held beyond these: unfolded iCalendar lines,
                              // each ended by LF

  bool operator==(const AppointmentItem&) const = default;
};

}  // namespace quill
