#include "InkPages.h"

#include <QPainter>

#include <cmath>
#include <cstring>

#include "InkGenerator.h"
#include "ink/InkStrokePainter.h"

namespace quill::bench {
namespace {

constexpr quint32 kSeed = 1;

QPointF DevicePlace(const InkPoint& point, double scale) {
  return {point.X * scale, point.Y * scale};
}

double Width(const InkPoint& point, double scale) {
  const InkPen pen;
  const double part = static_cast<double>(point.Pressure) / kFullPressure;
  return pen.Diameter * scale * (pen.MinimumWidth + (100 - pen.MinimumWidth) * part) / 100;
}

void DrawSegment(QPainter& painter, const InkPoint& from, const InkPoint& to, double scale) {
  painter.setPen(
      QPen(QColor::fromRgba(InkPen{}.Color), Width(to, scale), Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(DevicePlace(from, scale), DevicePlace(to, scale));
}

}  // namespace

InkNote WrittenPage(int strokes) {
  InkNote note;
  note.Pens = {InkPen{}};
  note.Strokes = GenerateStrokes(strokes, kPointsPerStroke, kSeed);
  for (const InkStrokePtr& stroke : note.Strokes) {
    const int bottom = stroke->Bounds.bottom() + kInkUnitsPerPixel;
    note.Page.ContentHeight = std::max(note.Page.ContentHeight, static_cast<quint32>(bottom));
  }
  return note;
}

QRect PageArea(const InkNote& note, double scale) {
  return {0, 0, static_cast<int>(std::ceil(note.Page.Width * scale)),
          static_cast<int>(std::ceil(note.Page.ContentHeight * scale))};
}

QImage WhitePicture(const QSize& size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  return image;
}

QImage RenderPage(const InkNote& note, double scale, const QRect& area) {
  QImage image = WhitePicture(area.size());
  PaintStrokes(image, area.topLeft(), area, scale, note);
  return image;
}

void PaintSegment(QImage& image, const InkPoint& from, const InkPoint& to, double scale) {
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawSegment(painter, from, to, scale);
}

void PaintSegments(QImage& image, const InkNote& note, double scale) {
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  for (const InkStrokePtr& stroke : note.Strokes) {
    for (size_t next = 1; next < stroke->Points.size(); ++next) {
      DrawSegment(painter, stroke->Points[next - 1], stroke->Points[next], scale);
    }
  }
}

QByteArray RawFloats(const InkNote& note) {
  QByteArray bytes;
  const auto add = [&bytes](float value) {
    bytes.append(reinterpret_cast<const char*>(&value), sizeof(value));
  };
  for (const InkStrokePtr& stroke : note.Strokes) {
    add(static_cast<float>(stroke->Points.size()));
    for (const InkPoint& point : stroke->Points) {
      add(static_cast<float>(point.X));
      add(static_cast<float>(point.Y));
      add(static_cast<float>(point.Pressure));
      add(static_cast<float>(point.Time));
    }
  }
  return bytes;
}

std::vector<std::vector<float>> ReadRawFloats(const QByteArray& bytes) {
  std::vector<std::vector<float>> strokes;
  float count = 0;
  for (qsizetype at = 0; at < bytes.size();) {
    std::memcpy(&count, bytes.constData() + at, sizeof(count));
    at += sizeof(count);
    std::vector<float>& values = strokes.emplace_back(static_cast<size_t>(count) * 4);
    std::memcpy(values.data(), bytes.constData() + at, values.size() * sizeof(float));
    at += static_cast<qsizetype>(values.size() * sizeof(float));
  }
  return strokes;
}

}  // namespace quill::bench
