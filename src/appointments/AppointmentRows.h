// The painted rows of the appointment dialog: what each shows, where it stands, which controls are
// shown over it. Pure layout, in logical pixels of the dialog.
#pragma once

#include <QPoint>
#include <QRect>

#include <optional>
#include <span>
#include <vector>

#include "appointments/AppointmentForm.h"
#include "platform/PaintedRow.h"
#include "platform/TextFitting.h"

namespace quill {

// Top to bottom, below a heading.
enum class AppointmentRow { Subject, Start, End, AllDay, Recurrence, Alarm, Sound, Memo };
inline constexpr int kAppointmentRowCount = 8;

inline constexpr Rgb kAppointmentBackground = 0xFFFFFF;

// The ids of the controls that a tap on the row shows; none for the memo's, which opens the editor.
std::span<const int> ControlsOf(AppointmentRow row);
// The row that stands for a control, when one does.
std::optional<AppointmentRow> RowOfControl(int id);

QRect AppointmentRowArea(AppointmentRow row);
// Nothing above the first row and below the last one.
std::optional<AppointmentRow> AppointmentRowAt(QPoint at);

QString ValueText(AppointmentRow row, const AppointmentForm& form);

struct AppointmentRowsView {
  std::optional<AppointmentRow> Current = {};   // the one that keys act on
  std::optional<AppointmentRow> Revealed = {};  // the one whose controls are shown: it has no value
};

// One painted row for each row, in their order.
std::vector<PaintedRow> LayOutAppointmentRows(const AppointmentForm& form,
                                              const AppointmentRowsView& view,
                                              const TextWidth& width);
// What stands above the rows.
PaintedRow LayOutAppointmentHeading(const QString& text);

}  // namespace quill
