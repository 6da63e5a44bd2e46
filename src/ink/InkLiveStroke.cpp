#include "ink/InkLiveStroke.h"

#include "ink/InkCompose.h"

namespace quill {

void InkLiveStroke::Begin(const InkPen& pen, double scale, quint8 parts, const QRect& area) {
  m_pen = pen;
  m_parts = parts;
  m_points.clear();
  m_shaper.emplace(pen, scale, parts);
  ClearMask(area);
}

QRect InkLiveStroke::Add(const InkPoint& point) {
  if (!IsDown()) return {};
  QRect shown = TailArea();
  m_points.push_back(point);
  shown |= AddToMask(point);
  return shown | TailArea();
}

void InkLiveStroke::MoveTo(double scale, const QRect& area) {
  if (!IsDown()) return;
  m_shaper.emplace(m_pen, scale, m_parts);
  ClearMask(area);
  for (const InkPoint& point : m_points) AddToMask(point);
}

void InkLiveStroke::PaintOver(QImage& piece, const QPoint& origin, const QRect& area) const {
  const QRect shown = IsDown() ? area & (m_touched | TailArea()) : QRect();
  if (shown.isEmpty()) return;
  InkMask mask(shown);
  mask.Join(m_mask);
  mask.Add(m_shaper->Tail());
  ComposeInk(piece, origin, mask, shown, m_pen);
}

QRect InkLiveStroke::Finish(QImage& cache, const QPoint& origin) {
  if (!IsDown()) return {};
  if (!m_points.empty()) m_touched |= m_mask.Add(m_shaper->Tail());
  ComposeInk(cache, origin, m_mask, m_touched, m_pen);
  return End();
}

QRect InkLiveStroke::Cancel() {
  if (!IsDown()) return {};
  m_touched |= TailArea();
  return End();
}

QRect InkLiveStroke::AddToMask(const InkPoint& point) {
  QRect touched;
  for (const InkCapsule& capsule : m_shaper->Add(point)) touched |= m_mask.Add(capsule);
  m_touched |= touched;
  return touched;
}

QRect InkLiveStroke::TailArea() const {
  if (!IsDown() || m_points.empty()) return {};
  return InkCapsuleArea(m_shaper->Tail()) & m_mask.Area();
}

QRect InkLiveStroke::End() {
  const QRect shown = m_touched;
  m_shaper.reset();
  m_points.clear();
  return shown;
}

// The mask of a stroke before is cheaper to wipe than to make anew.
void InkLiveStroke::ClearMask(const QRect& area) {
  if (m_mask.Area() == area) {
    m_mask.Clear(m_touched);
  } else {
    m_mask.Reset(area);
  }
  m_touched = {};
}

}  // namespace quill
