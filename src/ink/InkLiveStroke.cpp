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

// Much of the tail before is under the curve that replaces it, and need not be shown again.
QRect InkLiveStroke::Add(const InkPoint& point) {
  if (!IsDown()) return {};
  const InkCapsule tailBefore = m_points.empty() ? InkCapsule{} : m_shaper->Tail();
  QRect near = TailArea();
  m_points.push_back(point);
  const auto capsules = m_shaper->Add(point);
  for (const InkCapsule& capsule : capsules) near |= InkCapsuleArea(capsule);
  near = (near | TailArea()) & m_mask.Area();
  const InkMask before = Shown(near, tailBefore);
  AddToMask(capsules);
  return Shown(near, m_shaper->Tail()).Difference(before);
}

void InkLiveStroke::MoveTo(double scale, const QRect& area) {
  if (!IsDown()) return;
  m_shaper.emplace(m_pen, scale, m_parts);
  ClearMask(area);
  for (const InkPoint& point : m_points) AddToMask(m_shaper->Add(point));
}

void InkLiveStroke::PaintOver(QImage& piece, const QPoint& origin, const QRect& area) const {
  const QRect shown = IsDown() ? area & (m_touched | TailArea()) : QRect();
  if (shown.isEmpty()) return;
  ComposeInk(piece, origin, Shown(shown, m_shaper->Tail()), shown, m_pen);
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

void InkLiveStroke::AddToMask(std::span<const InkCapsule> capsules) {
  for (const InkCapsule& capsule : capsules) m_touched |= m_mask.Add(capsule);
}

InkMask InkLiveStroke::Shown(const QRect& area, const InkCapsule& tail) const {
  InkMask mask(area);
  mask.Join(m_mask);
  mask.Add(tail);
  return mask;
}

QRect InkLiveStroke::TailArea() const {
  if (!IsDown() || m_points.empty()) return {};
  return InkCapsuleArea(m_shaper->Tail()) & m_mask.Area();
}

QRect InkLiveStroke::End() {
  m_shaper.reset();
  return m_touched;
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
