// What is entered in the appointment dialog, as a plain value, and how it comes from an appointment
// and goes back into one.
#pragma once

#include <QDateTime>
#include <QString>

#include <utility>

#include "appointments/AlarmTime.h"
#include "appointments/RecurrenceChoice.h"
#include "store/AppointmentItem.h"

namespace quill {

inline constexpr int kMostSubject = 260;  // UTF-16 units that can be entered

enum class Alarm { Yes, No };  // in the order of the list

// Local, and of no time zone: no hour of it is missing or there twice.
struct Moment {
  QDate Date = {};
  QTime Time = {};

  bool operator==(const Moment&) const = default;
  bool operator<(const Moment& other) const {
    return std::pair(Date, Time) < std::pair(other.Date, other.Time);
  }
};

struct AppointmentForm {
  QString Subject = {};
  Moment Start = {};
  Moment End = {};
  bool AllDay = false;  // Start and End keep their times all the same
  RecurrenceChoice Recurrence = RecurrenceChoice::Once;
  quill::Alarm Alarm = quill::Alarm::No;
  AlarmTime Before = {};
  QString Sound = {};  // a file name; empty: sound off

  bool operator==(const AppointmentForm&) const = default;
};

// Of a new appointment: now, at the last full or half hour, without length.
AppointmentForm NewAppointmentForm(const QString& subject, const QDateTime& now);
// Of a stored appointment. One that recurs stands on the first day of its pattern.
AppointmentForm FormOf(const AppointmentItem& item);

// To be called after each change of the start: an end before it becomes the start.
//
// Nothing follows a change of the end: an end that is set before the start stays so, and cannot be
// saved. Intended.
void FollowStart(AppointmentForm& form);

// Writes the form into the item: all of it but the recurrence. What the form does not show is reset
// (place, categories, sensitivity, busy); of an alarm that is off, sound and options stay.
void PutForm(const AppointmentForm& form, AppointmentItem& item);

}  // namespace quill
