#include "ink/InkExport.h"

#include <QPainter>

#include <cmath>

#include "ink/InkSelect.h"
#include "ink/InkStrokePainter.h"
#include "ink/InkTextLayout.h"

namespace quill {

namespace {

constexpr double kMostPixels = 16.0 * 1024 * 1024;

QString Number(double value) { return QString::number(value, 'f', 2); }
QString Pixels(double units) { return Number(units / kInkUnitsPerPixel); }

QString PlaceText(double x, double y) { return Pixels(x) + u' ' + Pixels(y); }

// From one end of all pages to the other is more than an int holds.
QSizeF SizeOf(const QRect& area) {
  return {area.right() + 1.0 - area.left(), area.bottom() + 1.0 - area.top()};
}

// Through the middles between the points, as it is painted.
QString PathOf(const InkStroke& stroke) {
  const auto& points = stroke.Points;
  QString path = QStringLiteral("M") + PlaceText(points[0].X, points[0].Y);
  if (points.size() == 1) return path + QStringLiteral("l0 0");
  for (std::size_t i = 1; i < points.size(); ++i) {
    const double middleX = (points[i - 1].X + points[i].X) / 2.0;
    const double middleY = (points[i - 1].Y + points[i].Y) / 2.0;
    path +=
        i == 1 ? QStringLiteral("L") : u'Q' + PlaceText(points[i - 1].X, points[i - 1].Y) + u' ';
    path += PlaceText(middleX, middleY);
  }
  return path + u'L' + PlaceText(points.back().X, points.back().Y);
}

double MeanWidth(const InkStroke& stroke, const InkPen& pen) {
  double pressure = 0;
  for (const InkPoint& point : stroke.Points) pressure += point.Pressure;
  pressure /= static_cast<double>(stroke.Points.size()) * kFullPressure;
  const double least = pen.MinimumWidth / 100.0;
  return pen.Diameter * (least + (1 - least) * pressure);
}

QString StrokeElement(const InkNote& note, const InkStroke& stroke) {
  const InkPen pen = InkPenOf(note, stroke);
  const QColor color = QColor::fromRgba(pen.Color);
  QString element =
      QStringLiteral(R"(<path d="%1" stroke="%2" stroke-opacity="%3" stroke-width="%4")")
          .arg(PathOf(stroke), color.name(), Number(color.alphaF()),
               Pixels(MeanWidth(stroke, pen)));
  if (pen.Tip == InkTip::Highlighter)
    element += QStringLiteral(R"( style="mix-blend-mode:multiply")");
  return element + QStringLiteral("/>\n");
}

QString StrokeElements(const InkNote& note, InkTip tip) {
  QString elements;
  for (const InkStrokePtr& stroke : note.Strokes)
    if (InkPenOf(note, *stroke).Tip == tip) elements += StrokeElement(note, *stroke);
  return elements;
}

// XML cannot hold every character, not even named by its number.
QString XmlText(const QString& text) {
  QString allowed;
  for (const char32_t letter : text.toUcs4()) {
    const bool isControl = letter < 0x20 && letter != U'\t';
    const bool isNone = letter == 0xFFFE || letter == 0xFFFF;
    if (!isControl && !isNone) allowed += QString::fromUcs4(&letter, 1);
  }
  return allowed.toHtmlEscaped();
}

InkTextLayout LaidOut(const InkNote& note) {
  InkTextLayout layout;
  layout.Load(note.Text, UsedLinePitch(note.Page));
  return layout;
}

QString TextElements(const InkNote& note) {
  if (note.Text.Text.isEmpty()) return {};
  const InkTextLayout layout = LaidOut(note);
  QString elements;
  for (const InkTextLine& line : layout.Lines())
    elements +=
        QStringLiteral(R"(<text x="%1" y="%2" font-size="%3" xml:space="preserve">%4</text>)")
            .arg(Number(line.Baseline.x()), Number(line.Baseline.y()),
                 Pixels(note.Text.Runs.empty() ? 448 : note.Text.Runs.front().Size),
                 XmlText(note.Text.Text.mid(line.From, line.To - line.From))) +
        u'\n';
  return elements;
}

QRect TextArea(const InkNote& note) {
  if (note.Text.Text.isEmpty()) return {};
  const QRectF bounds = LaidOut(note).Bounds();
  return QRectF(bounds.topLeft() * kInkUnitsPerPixel, bounds.size() * kInkUnitsPerPixel)
      .toAlignedRect();
}

}  // namespace

QRect InkContentArea(const InkNote& note) {
  QRect area = TextArea(note);
  for (const InkStrokePtr& stroke : note.Strokes) area = area.united(PaintedBounds(note, *stroke));
  return area;
}

QByteArray InkSvg(const InkNote& note) {
  const QRect area = InkContentArea(note);
  const QString width = Pixels(SizeOf(area).width());
  const QString height = Pixels(SizeOf(area).height());
  QString svg = QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" width="%1" height="%2" viewBox="%3 %4 %1 %2">
)")
                    .arg(width, height, Pixels(area.left()), Pixels(area.top()));
  svg += TextElements(note);
  svg +=
      QStringLiteral(R"(<g fill="none" stroke-linecap="round" stroke-linejoin="round">)") + u'\n';
  svg += StrokeElements(note, InkTip::Highlighter) + StrokeElements(note, InkTip::Round);
  return (svg + QStringLiteral("</g>\n</svg>\n")).toUtf8();
}

QImage InkImage(const InkNote& note, double times) {
  const double scale = times / kInkUnitsPerPixel;
  const QRect area = InkContentArea(note);
  const QSizeF size = SizeOf(area) * scale;
  if (area.isEmpty() || size.width() * size.height() > kMostPixels) return {};
  const QRect device = QRectF(QPointF(area.topLeft()) * scale, size).toAlignedRect();
  QImage image(device.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.translate(-device.topLeft());
  painter.scale(times, times);
  LaidOut(note).Paint(painter,
                      QRectF(QPointF(device.topLeft()) / times, QSizeF(device.size()) / times));
  painter.end();
  PaintStrokes(image, device.topLeft(), device, scale, note);
  return image;
}

}  // namespace quill
