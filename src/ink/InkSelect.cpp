#include "ink/InkSelect.h"

#include <QLineF>

#include <algorithm>
#include <ranges>

#include "ink/InkFormat.h"

namespace quill {

namespace {

int PenRadius(const InkNote& note, const InkStroke& stroke) {
  const InkPen pen = stroke.Pen < note.Pens.size() ? note.Pens[stroke.Pen] : InkPen{};
  return static_cast<int>(std::min<quint32>(pen.Diameter, 1 << 20) / 2) + 1;
}

QPointF PlaceOf(const InkPoint& point) { return QPointF(point.X, point.Y); }

qreal DistanceTo(const QLineF& line, QPointF point) {
  const QPointF along = line.p2() - line.p1();
  const qreal square = QPointF::dotProduct(along, along);
  const qreal share =
      square > 0 ? std::clamp(QPointF::dotProduct(point - line.p1(), along) / square, 0.0, 1.0) : 0;
  return QLineF(line.p1() + along * share, point).length();
}

qreal Distance(const QLineF& one, const QLineF& other) {
  QPointF crossing;
  if (one.intersects(other, &crossing) == QLineF::BoundedIntersection) return 0;
  return std::min({DistanceTo(one, other.p1()), DistanceTo(one, other.p2()),
                   DistanceTo(other, one.p1()), DistanceTo(other, one.p2())});
}

bool ComesNear(const InkStroke& stroke, const QLineF& way, qreal radius) {
  QPointF before = PlaceOf(stroke.Points.front());
  return std::ranges::any_of(stroke.Points, [&](const InkPoint& point) {
    const QLineF piece(before, PlaceOf(point));
    before = piece.p2();
    return Distance(piece, way) <= radius;
  });
}

bool IsInside(const InkStroke& stroke, const QPolygon& area) {
  const auto inside = std::ranges::count_if(stroke.Points, [&area](const InkPoint& point) {
    return area.containsPoint(QPoint(point.X, point.Y), Qt::OddEvenFill);
  });
  return static_cast<std::size_t>(inside) * 2 >= stroke.Points.size();
}

qreal LengthOf(const QPolygon& path) {
  qreal length = 0;
  for (qsizetype i = 1; i < path.size(); ++i) length += QLineF(path[i - 1], path[i]).length();
  return length;
}

}  // namespace

std::vector<InkStrokePtr> StrokesAlong(const InkNote& note, QPoint from, QPoint to, int radius) {
  const QLineF way(from, to);
  const QRect wayBounds = QRect(from, QSize(1, 1)).united(QRect(to, QSize(1, 1)));
  std::vector<InkStrokePtr> found;
  for (const InkStrokePtr& stroke : note.Strokes) {
    const int reach = radius + PenRadius(note, *stroke);
    if (stroke->Bounds.adjusted(-reach, -reach, reach, reach).intersects(wayBounds) &&
        ComesNear(*stroke, way, reach)) {
      found.push_back(stroke);
    }
  }
  return found;
}

QPolygon DraggedArea(const QPolygon& path) {
  if (path.isEmpty()) return {};
  const qreal gap = QLineF(path.first(), path.last()).length();
  if (LengthOf(path) > 2 * gap) return path;
  return QPolygon(QRect(path.first(), path.last()).normalized());
}

std::vector<InkStrokePtr> StrokesInside(const InkNote& note, const QPolygon& area) {
  const QRect areaBounds = area.boundingRect();
  std::vector<InkStrokePtr> found;
  std::ranges::copy_if(note.Strokes, std::back_inserter(found), [&](const InkStrokePtr& stroke) {
    return stroke->Bounds.intersects(areaBounds) && IsInside(*stroke, area);
  });
  return found;
}

QRect BoundsOf(const std::vector<InkStrokePtr>& strokes) {
  QRect bounds;
  for (const InkStrokePtr& stroke : strokes) bounds = bounds.united(stroke->Bounds);
  return bounds;
}

QRect PaintedBounds(const InkNote& note, const InkStroke& stroke) {
  const int margin = PenRadius(note, stroke) + 2 * kInkUnitsPerPixel;
  return stroke.Bounds.adjusted(-margin, -margin, margin, margin);
}

QPoint WithinReach(const QRect& bounds, QPoint by) {
  const auto way = [](int wanted, int first, int last) {
    const qint64 most = std::max<qint64>(kFarthestInk - last, 0);
    return static_cast<int>(std::clamp<qint64>(wanted, std::min(-first, 0), most));
  };
  return {way(by.x(), bounds.left(), bounds.right()), way(by.y(), bounds.top(), bounds.bottom())};
}

InkStrokePtr MovedStroke(const InkStroke& stroke, QPoint by) {
  auto moved = std::make_shared<InkStroke>(stroke);
  for (InkPoint& point : moved->Points) {
    point.X += by.x();
    point.Y += by.y();
  }
  moved->Bounds.translate(by);
  return moved;
}

}  // namespace quill
