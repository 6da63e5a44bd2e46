#include "ink/InkPictures.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "ink/InkStrokePainter.h"

namespace quill {
namespace {

constexpr int kWidth = 200 * kInkUnitsPerPixel;
constexpr int kHeight = 120 * kInkUnitsPerPixel;

}  // namespace

InkStroke Scribble(int points, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_int_distribution<int> step(-6 * kInkUnitsPerPixel, 6 * kInkUnitsPerPixel);
  InkStroke stroke{.Parts = kInkHasPressure};
  int x = std::uniform_int_distribution<int>(0, kWidth)(random);
  int y = std::uniform_int_distribution<int>(0, kHeight)(random);
  int dx = step(random);
  int dy = step(random);
  for (int point = 0; point < points; ++point) {
    const auto pressure = std::uniform_int_distribution<int>(0, kFullPressure)(random);
    stroke.Points.push_back({.X = x, .Y = y, .Pressure = static_cast<quint16>(pressure)});
    dx = (dx + step(random)) / 2;
    dy = (dy + step(random)) / 2;
    x = std::clamp(x + dx, 0, kWidth);
    y = std::clamp(y + dy, 0, kHeight);
  }
  return stroke;
}

InkNote ScribbledNote(int strokes, unsigned seed) {
  InkNote note;
  note.Pens = {InkPen{},
               {.Color = 0xC0FFE000, .Diameter = 400, .Tip = InkTip::Highlighter},
               {.Color = 0xFFB01020, .Diameter = 20, .MinimumWidth = 0},
               {.Color = 0x80208040, .Diameter = 160}};
  for (int index = 0; index < strokes; ++index) {
    InkStroke stroke = Scribble(1 + (index * 7) % 50, seed * 1000 + index);
    stroke.Pen = index % 4;
    note.Strokes.push_back(SealInkStroke(std::move(stroke)));
  }
  std::ranges::stable_sort(note.Strokes, {},
                           [](const InkStrokePtr& stroke) { return stroke->Pen != 1; });
  return note;
}

void PaintPaper(QImage& image, const QPoint& origin) {
  for (int y = 0; y < image.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const int tone = ((x + origin.x()) * 5 ^ (y + origin.y()) * 3) & 0x7F;
      row[x] = qRgb(255 - tone, 240 - tone, 200);
    }
  }
}

QImage PieceOf(const InkNote& note, double scale, const QRect& area) {
  QImage image(area.size(), QImage::Format_RGB32);
  PaintPaper(image, area.topLeft());
  PaintStrokes(image, area.topLeft(), area, scale, note);
  return image;
}

QImage PageOf(const InkNote& note, double scale) {
  return PieceOf(note, scale,
                 QRect(0, 0, static_cast<int>(std::ceil(kWidth * scale)),
                       static_cast<int>(std::ceil(kHeight * scale))));
}

void PutPicture(QImage& image, const QPoint& at, const QImage& picture) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      image.setPixel(at.x() + x, at.y() + y, picture.pixel(x, y));
    }
  }
}

}  // namespace quill
