#include "platform/ui/RowPainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>

#include "platform/ScreenLayout.h"
#include "platform/ui/Look.h"

namespace quill {

namespace {

void DrawFill(QPainter& painter, const PaintedItem& item) {
  const QColor color = QColor::fromRgb(*item.Fill);
  const QRect& area = item.Rectangle;
  if (item.Pattern == FillPattern::Solid) return painter.fillRect(area, color);
  for (int x = area.left(); x <= area.right(); x += 2)
    painter.fillRect(QRect(x, area.top(), 1, 1), color);
}

QPolygonF PathPolygon(const resources::PicturePath& path) {
  QPolygonF polygon;
  for (const resources::PicturePoint& point : path.Points) polygon << QPointF(point.X, point.Y);
  return polygon;
}

void DrawPath(QPainter& painter, const resources::PicturePath& path, const QColor& color) {
  if (path.Shape == resources::PictureShape::Fill) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(PathPolygon(path));
  } else {
    painter.setPen(QPen(color, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(PathPolygon(path));
  }
}

void DrawPicture(QPainter& painter, const PaintedItem& item) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(item.Rectangle.topLeft());
  const qreal scale = qreal(item.Rectangle.width()) / item.Picture->Size;
  painter.scale(scale, scale);
  for (const resources::PicturePath& path : item.Picture->Paths)
    DrawPath(painter, path, QColor::fromRgb(item.Color));
  painter.restore();
}

qreal TextLeft(const QRect& area, TextAlign alignment, qreal width) {
  if (alignment == TextAlign::Right) return area.left() + area.width() - width;
  if (alignment == TextAlign::Centre) return area.left() + (area.width() - width) / 2;
  return area.left();
}

// Bold letters are a device pixel thicker, or not even that, where the font has no bold face. On a
// fine screen this many logical pixels more make up for it.
qreal MissingThickness(const QPainter& painter) {
  const qreal ratio = painter.device()->devicePixelRatioF();
  return ratio > 2 ? 0.5 - 0.5 / ratio : 0;
}

void DrawBold(QPainter& painter, QPointF at, const QString& text) {
  const qreal missing = MissingThickness(painter);
  painter.drawText(at, text);
  if (missing > 0) painter.drawText(at + QPointF(missing, 0), text);
}

// Placed by the cell's own height and base line: the metrics of the font differ between platforms.
void DrawText(QPainter& painter, const PaintedItem& item) {
  const QRect& area = item.Rectangle;
  painter.save();
  painter.setClipRect(area, Qt::IntersectClip);
  const bool bold = item.Weight == TextWeight::Bold;
  painter.setFont(bold ? BoldFont() : NormalFont());
  painter.setPen(QColor::fromRgb(item.Color));
  const qreal width = QFontMetricsF(painter.font()).horizontalAdvance(item.Text);
  const int baseLine = area.top() + (area.height() - kCellHeight) / 2 + kCellAscent;
  const QPointF at(TextLeft(area, item.Alignment, width), baseLine);
  bold ? DrawBold(painter, at, item.Text) : painter.drawText(at, item.Text);
  painter.restore();
}

TextWidth WidthIn(const QFont& font) {
  return [metrics = QFontMetricsF(font)](QStringView text) {
    return metrics.horizontalAdvance(text.toString());
  };
}

}  // namespace

TextWidth NormalTextWidth() { return WidthIn(NormalFont()); }

TextWidth BoldTextWidth() { return WidthIn(BoldFont()); }

void DrawRow(QPainter& painter, const PaintedRow& row) {
  for (const PaintedItem& item : row.Items) {
    if (item.Fill) DrawFill(painter, item);
    if (item.Picture) DrawPicture(painter, item);
    if (!item.Text.isEmpty()) DrawText(painter, item);
  }
}

// Filled, since a drawn line is not where its pixels are at every scale.
void DrawFrame(QPainter& painter, const QRect& area, Rgb color) {
  for (const QRect& side : {QRect(area.left(), area.top(), area.width(), 1),
                            QRect(area.left(), area.top(), 1, area.height()),
                            QRect(area.left(), area.bottom(), area.width(), 1),
                            QRect(area.right(), area.top(), 1, area.height())})
    painter.fillRect(side, QColor::fromRgb(color));
}

}  // namespace quill
