#include "ink/InkMask.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace quill {
namespace {

// Boxes of fewer pixels are quicker gone through than thought about.
constexpr qint64 kSmallBox = 64;
constexpr double kSmallestInside = 2;  // pixels

// A capsule turned so that its axis lies along u, from 0 to Length; v goes across.
struct Axis {
  double Cos = 1, Sin = 0;
  float Length = 0;
  float Radius = 0;  // at 0
  float Slope = 0;   // what the radius grows by per pixel
};

// A row of pixels in these coordinates: its first pixel's centre, and the step to the next.
struct AxisRow {
  float U = 0, V = 0;
  float StepU = 0, StepV = 0;
};

// Pixels of a row, from First to before End.
struct Span {
  int First = 0;
  int End = 0;
};

Axis AxisOf(const InkCapsule& capsule) {
  const double dx = capsule.X1 - capsule.X0;
  const double dy = capsule.Y1 - capsule.Y0;
  const double length = std::sqrt(dx * dx + dy * dy);
  Axis axis;
  axis.Radius = static_cast<float>(capsule.R0);
  if (length > 0) {
    axis.Cos = dx / length;
    axis.Sin = dy / length;
    axis.Length = static_cast<float>(length);
    axis.Slope = static_cast<float>((capsule.R1 - capsule.R0) / length);
  }
  return axis;
}

AxisRow RowOf(const InkCapsule& capsule, const Axis& axis, int x, int y) {
  const double dx = x + 0.5 - capsule.X0;
  const double dy = y + 0.5 - capsule.Y0;
  return {static_cast<float>(dx * axis.Cos + dy * axis.Sin),
          static_cast<float>(dy * axis.Cos - dx * axis.Sin), static_cast<float>(axis.Cos),
          static_cast<float>(-axis.Sin)};
}

// Joins the capsule's coverage of pixels from..end of a row to their bytes; bytes is that of
// `from`. Each value comes from the pixel's number alone, so that cutting the row changes none.
void CoverRow(uchar* bytes, Span pixels, const AxisRow& row, const Axis& axis) {
  for (int pixel = pixels.First; pixel < pixels.End; ++pixel, ++bytes) {
    const float u = row.U + static_cast<float>(pixel) * row.StepU;
    const float v = row.V + static_cast<float>(pixel) * row.StepV;
    const float nearest = std::clamp(u, 0.0F, axis.Length);
    const float radius = axis.Radius + nearest * axis.Slope;
    const float beyond = u - nearest;
    const float square = beyond * beyond + v * v;
    const float reach = radius + 0.5F;
    if (square >= reach * reach) continue;
    const float cover = std::min(reach - std::sqrt(square), std::min(1.0F, 2 * radius));
    const float rounded = cover * 255 + 0.5F;
    *bytes = std::max(*bytes, static_cast<uchar>(rounded));
  }
}

// Grows the interval by the row's cut through a disc; offset is from the disc's centre to the row.
void WidenByDisc(double x, double offset, double radius, std::pair<double, double>& interval) {
  const double square = radius * radius - offset * offset;
  if (square < 0) return;
  const double half = std::sqrt(square);
  interval.first = std::min(interval.first, x - half);
  interval.second = std::max(interval.second, x + half);
}

// Grows it by where the row crosses the capsule's straight sides.
void WidenBySides(const InkCapsule& capsule, const Axis& axis, double y, double radius,
                  std::pair<double, double>& interval) {
  const double height = capsule.Y1 - capsule.Y0;
  if (height == 0) return;
  for (const double side : {-radius, radius}) {
    const double along = (y - capsule.Y0 - side * axis.Cos) / height;
    if (along < 0 || along > 1) continue;
    const double x = capsule.X0 - side * axis.Sin + along * (capsule.X1 - capsule.X0);
    interval.first = std::min(interval.first, x);
    interval.second = std::max(interval.second, x);
  }
}

// The row's cut through a capsule of even radius on the same axis. It is nothing when the end lies
// before the start.
std::pair<double, double> RowCut(const InkCapsule& capsule, const Axis& axis, double y,
                                 double radius) {
  std::pair<double, double> interval{kInkDeviceLimit, -kInkDeviceLimit};
  WidenByDisc(capsule.X0, y - capsule.Y0, radius, interval);
  WidenByDisc(capsule.X1, y - capsule.Y1, radius, interval);
  WidenBySides(capsule, axis, y, radius, interval);
  return interval;
}

// The pixels whose centres lie in the interval, and at most one more at either end.
Span Around(const std::pair<double, double>& interval) {
  return {static_cast<int>(std::floor(interval.first)),
          static_cast<int>(std::ceil(interval.second))};
}

// The pixels whose centres lie well within the interval.
Span Within(const std::pair<double, double>& interval) {
  return {static_cast<int>(std::ceil(interval.first)),
          static_cast<int>(std::floor(interval.second))};
}

Span Cut(Span span, Span limits) {
  return {std::max(span.First, limits.First), std::min(span.End, limits.End)};
}

// Covers the rows of one capsule.
class CapsuleRows {
 public:
  explicit CapsuleRows(const InkCapsule& capsule, const QRect& box)
      : m_capsule(capsule),
        m_axis(AxisOf(capsule)),
        m_box{box.left(), box.right() + 1},
        m_outside(std::max(capsule.R0, capsule.R1) + 0.5),
        m_inside(std::min(capsule.R0, capsule.R1) - 0.5),
        m_small(qint64{box.width()} * box.height() <= kSmallBox) {}

  // Bytes is that of the first pixel of the limits, which lie within the box.
  void Cover(uchar* bytes, int y, Span limits) const {
    const Span outside = m_small ? m_box : Cut(Around(CutAt(y, m_outside)), m_box);
    const Span seen = Cut(outside, limits);
    if (seen.First >= seen.End) return;
    const Span inside = m_inside < kSmallestInside ? Span{} : Cut(Within(CutAt(y, m_inside)), seen);
    const AxisRow row = RowOf(m_capsule, m_axis, outside.First, y);
    const auto cover = [&](Span pixels) {
      CoverRow(bytes + (pixels.First - limits.First),
               {pixels.First - outside.First, pixels.End - outside.First}, row, m_axis);
    };
    if (inside.First >= inside.End) return cover(seen);
    cover({seen.First, inside.First});
    std::memset(bytes + (inside.First - limits.First), 255, inside.End - inside.First);
    cover({inside.End, seen.End});
  }

 private:
  std::pair<double, double> CutAt(int y, double radius) const {
    return RowCut(m_capsule, m_axis, y + 0.5, radius);
  }

  const InkCapsule& m_capsule;
  Axis m_axis;
  Span m_box;
  double m_outside;
  double m_inside;
  bool m_small;
};

}  // namespace

void InkMask::Reset(const QRect& area) {
  m_area = area.isEmpty() ? QRect() : area;
  m_bytes.assign(static_cast<size_t>(m_area.width()) * m_area.height(), 0);
}

QRect InkMask::Add(const InkCapsule& capsule) {
  const QRect box = InkCapsuleArea(capsule);
  const QRect touched = box & m_area;
  if (touched.isEmpty()) return {};
  const CapsuleRows rows(capsule, box);
  for (int y = touched.top(); y <= touched.bottom(); ++y) {
    rows.Cover(Bytes(touched.left(), y), y, {touched.left(), touched.right() + 1});
  }
  return touched;
}

void InkMask::Join(const InkMask& other) {
  const QRect both = m_area & other.m_area;
  for (int y = both.top(); y <= both.bottom(); ++y) {
    uchar* to = Bytes(both.left(), y);
    const uchar* from = other.Row(both.left(), y);
    for (int x = 0; x < both.width(); ++x) to[x] = std::max(to[x], from[x]);
  }
}

QRect InkMask::Difference(const InkMask& other) const {
  QRect changed;
  const int width = m_area.width();
  for (int y = m_area.top(); y <= m_area.bottom(); ++y) {
    const uchar* const row = Row(m_area.left(), y);
    const uchar* const end = row + width;
    const uchar* const otherRow = other.Row(m_area.left(), y);
    const uchar* const first = std::mismatch(row, end, otherRow).first;
    if (first == end) continue;
    const uchar* last = end - 1;
    while (*last == otherRow[last - row]) --last;
    changed |= QRect(QPoint(m_area.left() + static_cast<int>(first - row), y),
                     QPoint(m_area.left() + static_cast<int>(last - row), y));
  }
  return changed;
}

void InkMask::Clear(const QRect& area) {
  const QRect cleared = area & m_area;
  for (int y = cleared.top(); y <= cleared.bottom(); ++y) {
    std::memset(Bytes(cleared.left(), y), 0, cleared.width());
  }
}

}  // namespace quill
