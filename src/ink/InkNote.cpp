#include "ink/InkNote.h"

#include <algorithm>

namespace quill {

InkStrokePtr SealInkStroke(InkStroke stroke) {
  const auto [left, right] = std::ranges::minmax(stroke.Points, {}, &InkPoint::X);
  const auto [top, bottom] = std::ranges::minmax(stroke.Points, {}, &InkPoint::Y);
  stroke.Bounds = QRect(QPoint(left.X, top.Y), QPoint(right.X, bottom.Y));
  return std::make_shared<const InkStroke>(std::move(stroke));
}

}  // namespace quill
