#include "ink/InkGeometry.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

bool IsPlace(double value) { return std::abs(value) <= kInkDeviceLimit; }

bool IsPlace(const InkCapsule& capsule) {
  return IsPlace(capsule.X0) && IsPlace(capsule.Y0) && IsPlace(capsule.R0) && IsPlace(capsule.X1) &&
         IsPlace(capsule.Y1) && IsPlace(capsule.R1);
}

int DevicePixel(double value) {
  if (!(value > -kInkDeviceLimit)) return -kInkDeviceLimit;
  return value < kInkDeviceLimit ? static_cast<int>(value) : kInkDeviceLimit;
}

// A pixel is reached when its centre is nearer to the edge than half a pixel.
QRect Reached(double left, double top, double right, double bottom) {
  return {QPoint(DevicePixel(std::floor(left)), DevicePixel(std::floor(top))),
          QPoint(DevicePixel(std::ceil(right) - 1), DevicePixel(std::ceil(bottom) - 1))};
}

}  // namespace

double InkRadius(const InkPen& pen, double scale) {
  return std::min(pen.Diameter * scale / 2, double{kInkDeviceLimit});
}

QRect InkCapsuleArea(const InkCapsule& capsule) {
  if (!IsPlace(capsule)) return {};
  return Reached(std::min(capsule.X0 - capsule.R0, capsule.X1 - capsule.R1),
                 std::min(capsule.Y0 - capsule.R0, capsule.Y1 - capsule.R1),
                 std::max(capsule.X0 + capsule.R0, capsule.X1 + capsule.R1),
                 std::max(capsule.Y0 + capsule.R0, capsule.Y1 + capsule.R1));
}

QRect InkStrokeArea(const InkStroke& stroke, const InkPen& pen, double scale) {
  const double radius = InkRadius(pen, scale);
  const QRect& bounds = stroke.Bounds;
  return Reached(bounds.left() * scale - radius, bounds.top() * scale - radius,
                 bounds.right() * scale + radius, bounds.bottom() * scale + radius);
}

InkShaper::InkShaper(const InkPen& pen, double scale, quint8 parts) : m_scale(scale) {
  const double full = InkRadius(pen, scale);
  const bool varies = (parts & kInkHasPressure) != 0;
  m_leastRadius = varies ? full * std::min<int>(pen.MinimumWidth, 100) / 100 : full;
  m_radiusPerPressure = (full - m_leastRadius) / kFullPressure;
}

std::span<const InkCapsule> InkShaper::Add(const InkPoint& point) {
  const Node node = NodeOf(point);
  int pieces = 0;
  if (m_stage == Stage::NoPoint) {
    m_end = node;
    m_stage = Stage::OnePoint;
  } else {
    const Node middle = Middle(m_last, node);
    if (m_stage == Stage::OnePoint) {
      m_pieces[pieces++] = Between(m_end, middle);
      m_stage = Stage::Moving;
    } else {
      pieces = CutCurve({m_end, m_last, middle});
    }
    m_end = middle;
  }
  m_last = node;
  return {m_pieces.data(), static_cast<size_t>(pieces)};
}

InkCapsule InkShaper::Tail() const { return Between(m_end, m_last); }

InkShaper::Node InkShaper::NodeOf(const InkPoint& point) const {
  const int pressure = std::min<int>(point.Pressure, kFullPressure);
  return {point.X * m_scale, point.Y * m_scale, m_leastRadius + m_radiusPerPressure * pressure};
}

InkShaper::Node InkShaper::Middle(const Node& a, const Node& b) {
  return {(a.X + b.X) / 2, (a.Y + b.Y) / 2, (a.R + b.R) / 2};
}

int InkShaper::PieceCount(const Node& from, const Node& control, const Node& to) {
  const double bend =
      std::abs(from.X - 2 * control.X + to.X) + std::abs(from.Y - 2 * control.Y + to.Y);
  if (!(bend >= 0.25)) return 1;
  return static_cast<int>(std::clamp(std::ceil(1.2 * std::sqrt(bend)), 2.0, double{kMostPieces}));
}

InkShaper::Node InkShaper::OnCurve(const std::array<Node, 3>& curve, double t) {
  const double a = (1 - t) * (1 - t);
  const double b = 2 * t * (1 - t);
  const double c = t * t;
  return {a * curve[0].X + b * curve[1].X + c * curve[2].X,
          a * curve[0].Y + b * curve[1].Y + c * curve[2].Y,
          a * curve[0].R + b * curve[1].R + c * curve[2].R};
}

InkCapsule InkShaper::Between(const Node& a, const Node& b) {
  return {a.X, a.Y, a.R, b.X, b.Y, b.R};
}

int InkShaper::CutCurve(const std::array<Node, 3>& curve) {
  const int count = PieceCount(curve[0], curve[1], curve[2]);
  Node from = curve[0];
  for (int piece = 0; piece < count - 1; ++piece) {
    const Node to = OnCurve(curve, static_cast<double>(piece + 1) / count);
    m_pieces[piece] = Between(from, to);
    from = to;
  }
  m_pieces[count - 1] = Between(from, curve[2]);
  return count;
}

void ShapeStroke(const InkStroke& stroke, const InkPen& pen, double scale,
                 std::vector<InkCapsule>& out) {
  if (stroke.Points.empty()) return;
  InkShaper shaper(pen, scale, stroke.Parts);
  for (const InkPoint& point : stroke.Points) {
    const auto pieces = shaper.Add(point);
    out.insert(out.end(), pieces.begin(), pieces.end());
  }
  out.push_back(shaper.Tail());
}

}  // namespace quill
