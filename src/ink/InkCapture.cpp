#include "ink/InkCapture.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quill {

namespace {

qint32 Units(qreal pixels) {
  return static_cast<qint32>(std::floor(pixels * kInkUnitsPerPixel + 0.5));
}

// How far on the way from one coordinate to another a limit lies.
qreal Share(qreal from, qreal to, qreal limit) { return (limit - from) / (to - from); }

}  // namespace

bool IsPen(InkDevice device) { return device == InkDevice::Pen || device == InkDevice::Eraser; }

bool IsTouching(const InkInput& input) { return !IsPen(input.Device) || input.Pressure > 0; }

quint8 InkCapture::PartsOf(InkDevice device) {
  return IsPen(device) ? kInkHasPressure | kInkHasTime | kInkHasTilt : kInkHasTime;
}

void InkCapture::Reset() {
  m_down = false;
  m_writing = false;
}

bool InkCapture::IsOnPage(QPointF at) const {
  return at.x() >= 0 && at.y() >= 0 && (!m_rightEdge || at.x() <= *m_rightEdge);
}

QPointF InkCapture::EdgePoint(QPointF inside, QPointF outside) const {
  qreal share = 1;
  if (outside.x() < 0) share = std::min(share, Share(inside.x(), outside.x(), 0));
  if (outside.y() < 0) share = std::min(share, Share(inside.y(), outside.y(), 0));
  if (m_rightEdge && outside.x() > *m_rightEdge)
    share = std::min(share, Share(inside.x(), outside.x(), *m_rightEdge));
  return inside + (outside - inside) * share;
}

InkPoint InkCapture::PointOf(const InkInput& input, QPointF at) const {
  const qreal pressure = IsPen(input.Device) ? std::clamp(input.Pressure, 0.0, 1.0) : 1;
  const auto tilt = [](qreal degrees) {
    return static_cast<qint8>(qRound(std::clamp(degrees, -90.0, 90.0)));
  };
  return {.X = Units(at.x()),
          .Y = Units(at.y()),
          .Pressure = static_cast<quint16>(std::lround(pressure * kFullPressure)),
          .TiltX = IsPen(input.Device) ? tilt(input.Tilt.x()) : qint8{0},
          .TiltY = IsPen(input.Device) ? tilt(input.Tilt.y()) : qint8{0},
          .Time = static_cast<quint32>(std::max<qint64>(input.Time - m_begun, 0))};
}

void InkCapture::Begin(const InkInput& input, QPointF at, std::vector<InkCaptured>& out) {
  m_begun = input.Time;
  m_writing = true;
  out.push_back({InkAction::Begin, PointOf(input, at)});
}

void InkCapture::End(std::vector<InkCaptured>& out) {
  if (std::exchange(m_writing, false)) out.push_back({.Action = InkAction::End});
}

void InkCapture::Lift(std::vector<InkCaptured>& out) {
  End(out);
  m_down = false;
}

void InkCapture::Press(const InkInput& input, std::vector<InkCaptured>& out) {
  Lift(out);
  if (!IsOnPage(input.At)) return;
  m_down = true;
  m_device = input.Device;
  m_last = input.At;
  Begin(input, input.At, out);
}

void InkCapture::Extend(const InkInput& input, std::vector<InkCaptured>& out) {
  const QPointF before = std::exchange(m_last, input.At);
  if (IsOnPage(input.At)) {
    if (!m_writing) Begin(input, EdgePoint(input.At, before), out);
    out.push_back({InkAction::Extend, PointOf(input, input.At)});
  } else if (m_writing) {
    out.push_back({InkAction::Extend, PointOf(input, EdgePoint(before, input.At))});
    End(out);
  }
}

std::vector<InkCaptured> InkCapture::Take(const InkInput& input) {
  std::vector<InkCaptured> out;
  const bool isOther = m_down && input.Device != m_device;
  switch (input.Phase) {
    case InkPhase::Press:
      if (IsTouching(input) && !(m_down && IsPen(m_device) && !IsPen(input.Device)))
        Press(input, out);
      break;
    case InkPhase::Move:
      if (m_down && !isOther && IsTouching(input)) Extend(input, out);
      break;
    case InkPhase::Release:
    case InkPhase::Hover:
      if (!isOther) Lift(out);
      break;
  }
  return out;
}

}  // namespace quill
