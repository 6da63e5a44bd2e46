#include "ink/InkNote.h"

#include <algorithm>

namespace quill {

InkStrokePtr SealInkStroke(InkStroke stroke) {
  const auto [left, right] = std::ranges::minmax(stroke.Points, {}, &InkPoint::X);
  const auto [top, bottom] = std::ranges::minmax(stroke.Points, {}, &InkPoint::Y);
  stroke.Bounds = QRect(QPoint(left.X, top.Y), QPoint(right.X, bottom.Y));
  return std::make_shared<const InkStroke>(std::move(stroke));
}

quint32 UsedPageWidth(const InkPage& page) {
  return std::clamp<quint32>(page.Width, kDefaultPageWidth, 1 << 28);
}

quint32 UsedLinePitch(const InkPage& page) {
  if (page.RulePitch == 0) return kDefaultRulePitch;
  return std::clamp<quint32>(page.RulePitch, 8 * kInkUnitsPerPixel, 1000 * kInkUnitsPerPixel);
}

}  // namespace quill
