// How much of each pixel a stroke covers: one byte per pixel, 0 to 255, over a rectangle of page
// device pixels.
//
// A capsule covers a pixel by clamp(r + 0.5 - distance, 0, min(1, 2 r)), where distance is that of
// the pixel's centre to the capsule's axis and r the radius at the nearest place on the axis. What
// is added is joined by maximum, so a stroke has no darker joints. A pixel's value depends on the
// capsule and the pixel alone: however the mask is cut, it is the same.
#pragma once

#include <QRect>

#include <vector>

#include "ink/InkGeometry.h"

namespace quill {

class InkMask {
 public:
  InkMask() = default;
  explicit InkMask(const QRect& area) { Reset(area); }

  // Starts anew over another rectangle, nothing covered. Memory is kept for the next time; it is
  // that of the largest rectangle so far.
  void Reset(const QRect& area);
  const QRect& Area() const { return m_area; }

  // Covers what lies within the area; returns the rectangle in which bytes may have changed.
  QRect Add(const InkCapsule& capsule);
  // Takes what another mask covers, where the two overlap.
  void Join(const InkMask& other);
  // The smallest rectangle around the bytes that are others than in a mask of the same area.
  QRect Difference(const InkMask& other) const;
  // Nothing is covered there any more.
  void Clear(const QRect& area);

  // The bytes of a row of the area from x on; both lie in the area.
  const uchar* Row(int x, int y) const { return m_bytes.data() + Place(x, y); }
  uchar At(const QPoint& pixel) const { return *Row(pixel.x(), pixel.y()); }

 private:
  uchar* Bytes(int x, int y) { return m_bytes.data() + Place(x, y); }
  size_t Place(int x, int y) const {
    return static_cast<size_t>(y - m_area.top()) * m_area.width() + (x - m_area.left());
  }

  QRect m_area;
  std::vector<uchar> m_bytes;
};

}  // namespace quill
