// The strip of four tabs on which the kind of a recurrence is chosen, as painted rows. Pure layout,
// in logical pixels of the page, at whose top left corner the strip stands.
#pragma once

#include <optional>
#include <vector>

#include "appointments/RecurrencePages.h"
#include "platform/PaintedRow.h"

namespace quill {

inline constexpr QRect kKindStripArea{0, 0, 240, 20};
inline constexpr Rgb kKindStripGround = 0xF0F0F0;  // that of the page

struct KindStripModel {
  RecurrenceKind Kind = RecurrenceKind::Daily;
  std::optional<RecurrenceKind> Pressed = {};  // the tab under the pen
  bool HasFocus = false;
};

// One row for each kind, with its number as key, and one for the line below them, with the key -1.
std::vector<PaintedRow> LayOutKindStrip(const KindStripModel& model);

// The kind whose tab is at a point; nothing beside the tabs.
std::optional<RecurrenceKind> KindAt(QPoint at);
// The kind that one of Qt's keys leads to; nothing for other keys.
std::optional<RecurrenceKind> KindAfterKey(RecurrenceKind kind, int key);

}  // namespace quill
