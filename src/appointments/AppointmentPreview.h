// What the preview of an appointment says, as texts.
#pragma once

#include <QStringList>

#include "store/AppointmentItem.h"

namespace quill {

struct AppointmentPreview {
  QString Subject = {};
  QStringList Lines = {};  // when it takes place, below the subject: one to three

  bool operator==(const AppointmentPreview&) const = default;
};

// One that recurs speaks of its pattern's first and last day, and of the time of day and the length
// of the appointment itself: in whole hours, what is more being left out.
AppointmentPreview PreviewOf(const AppointmentItem& item);

}  // namespace quill
