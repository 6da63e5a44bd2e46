// What is painted above the note in the preview of an appointment: subject and lines, and the two
// buttons beside them. Pure layout, in logical pixels of the preview.
#pragma once

#include <optional>
#include <vector>

#include "appointments/AppointmentPreview.h"
#include "appointments/AppointmentPreviewButtons.h"
#include "platform/PaintedRow.h"
#include "platform/TextFitting.h"

namespace quill {

inline constexpr int kPreviewNoteTop = 75;  // the note stands below it

struct PreviewLook {
  std::optional<PreviewButton> Pressed = {};
  std::optional<PreviewButton> Current = {};  // the one that keys act on
};

struct PreviewFonts {
  TextWidth Heading;
  TextWidth Body;
};

// A text for the subject and for each line, then a button for each button with its command as key.
// What is too wide ends with dots before the buttons; it is spoken whole.
std::vector<PaintedRow> LayOutAppointmentPreview(const AppointmentPreview& preview,
                                                 const PreviewLook& look,
                                                 const PreviewFonts& fonts);

}  // namespace quill
