// One appointment as the list and the preview need it: a plain value.
#pragma once

#include <QString>

#include "appointments/RecurrenceChoice.h"
#include "store/AppointmentItem.h"

namespace quill {

struct AppointmentInfo {
  QString Subject = {};
  QString ReminderSoundFile = {};  // set only when the reminder is on, as are its minutes
  QString Location = {};
  QString Categories = {};
  CalendarDate Start = {};
  CalendarDate End = {};
  int ReminderMinutes = 0;
  bool ReminderOn = false;
  bool Recurring = false;
  bool Sensitive = false;
  bool AllDay = false;
  quill::Oid Oid = 0;
  RecurrenceChoice Choice = RecurrenceChoice::Once;
  int Type = -1;  // as the store gives it; -1: it does not recur
  int DayMask = 0;
  int Interval = 1;
  int DayOfMonth = 0;
  int Instance = 0;  // counted from 0 when it does not recur, else as the pattern has it: intended
  int MonthOfYear = 0;

  bool operator==(const AppointmentInfo&) const = default;
};

AppointmentInfo InfoOf(const AppointmentItem& item);

// The Oid; 0, and the info untouched, when there is no such appointment.
Oid LoadAppointmentInfo(Oid oid, AppointmentInfo& info);

}  // namespace quill
