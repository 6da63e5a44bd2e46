// The dialog resource of the appointment dialog. Its rows are painted; a row's controls are shown
// over its value when the row is tapped.
#pragma once

#include <array>

#include "resources/AppointmentIds.h"
#include "resources/Dialogs.h"

namespace quill::resources {

inline constexpr int kAppointmentRowsTop = 65;
inline constexpr int kAppointmentRowHeight = 20;

// Where a control lies over the value of a row, counted from 0; in pixels of the dialog.
struct AppointmentPlace {
  int Row;
  int X;
  int Width;
};

constexpr DialogControl AppointmentControl(ControlKind kind, int id, QStringView text,
                                           AppointmentPlace place) {
  const int y = kAppointmentRowsTop + place.Row * kAppointmentRowHeight + 1;
  return {
      kind, id, text, {place.X, y, place.Width, kAppointmentRowHeight - 2}, ControlState::Hidden};
}

inline constexpr std::array kAppointmentControls = {
    AppointmentControl(ControlKind::PanelEdit, AppointmentIds::kSubject, u"", {0, 60, 176}),
    AppointmentControl(ControlKind::Date, AppointmentIds::kStartDate, u"Start date", {1, 60, 96}),
    AppointmentControl(ControlKind::Time, AppointmentIds::kStartTime, u"Start time", {1, 158, 78}),
    AppointmentControl(ControlKind::Date, AppointmentIds::kEndDate, u"End date", {2, 60, 96}),
    AppointmentControl(ControlKind::Time, AppointmentIds::kEndTime, u"End time", {2, 158, 78}),
    AppointmentControl(ControlKind::Check, AppointmentIds::kAllDay, u"All day", {3, 60, 176}),
    AppointmentControl(ControlKind::DropDown, AppointmentIds::kRecurrence, u"Recur", {4, 60, 176}),
    AppointmentControl(ControlKind::DropDown, AppointmentIds::kAlarm, u"Alarm", {5, 60, 48}),
    AppointmentControl(ControlKind::Number, AppointmentIds::kAlarmAmount, u"Amount", {5, 110, 44}),
    AppointmentControl(ControlKind::DropDown, AppointmentIds::kAlarmUnit, u"Unit", {5, 156, 80}),
    AppointmentControl(ControlKind::DropDown, AppointmentIds::kSound, u"Sound", {6, 60, 146}),
    AppointmentControl(ControlKind::Button, AppointmentIds::kPlay, u">", {6, 208, 28}),
    AppointmentControl(ControlKind::Button, AppointmentIds::kMemo, u"Memo", {7, 60, 176}),
    DialogControl{ControlKind::Button, kResultOK, u"OK", {88, 236, 64, 26}},
    DialogControl{ControlKind::Button, kResultCancel, u"Cancel", {160, 236, 64, 26}},
};
inline constexpr DialogResource kAppointmentDialog = {
    AppointmentIds::kDialog, u"Hourpetal", {}, kAppointmentControls};

}  // namespace quill::resources
