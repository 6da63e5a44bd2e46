#include "app/SampleInk.h"

#include <QPointF>

#include <cmath>
#include <numbers>

namespace quill {
namespace {

constexpr int kPoints = 40;              // of a stroke
constexpr int kMillisecondsEach = 6;     // between two of them
constexpr double kLeastPressure = 0.35;  // at a stroke's ends
constexpr double kMostPressure = 0.8;

double Turn(double part) { return 2 * std::numbers::pi * part; }

// A stroke along a path that is given for 0 to 1, in pixels. The pen presses hardest in the middle.
template <typename Path>
InkStrokePtr StrokeAlong(const Path& path) {
  InkStroke stroke{.Parts = kInkHasPressure | kInkHasTime};
  for (int i = 0; i < kPoints; ++i) {
    const double part = static_cast<double>(i) / (kPoints - 1);
    const QPointF at = path(part) * kInkUnitsPerPixel;
    const double pressure =
        std::lerp(kLeastPressure, kMostPressure, std::sin(std::numbers::pi * part));
    stroke.Points.push_back({.X = qRound(at.x()),
                             .Y = qRound(at.y()),
                             .Pressure = static_cast<quint16>(pressure * kFullPressure),
                             .Time = static_cast<quint32>(i * kMillisecondsEach)});
  }
  return SealInkStroke(std::move(stroke));
}

InkStrokePtr Line(QPointF from, QPointF to) {
  return StrokeAlong([=](double part) { return from + (to - from) * part; });
}

// Two waves below the text.
std::vector<InkStrokePtr> Underline() {
  const auto wave = [](double top) {
    return StrokeAlong([top](double part) {
      return QPointF(12 + 150 * part, top + 2.5 * std::sin(Turn(5 * part)));
    });
  };
  return {wave(58), wave(66)};
}

// A ring that does not quite close, and a mark in it.
std::vector<InkStrokePtr> Circle() {
  const auto ring = [](double part) {
    const double angle = Turn(1.04 * part);
    return QPointF(90 + 42 * std::cos(angle), 100 + (26 - 3 * part) * std::sin(angle));
  };
  return {StrokeAlong(ring), Line({78, 96}, {86, 108}), Line({86, 108}, {106, 88})};
}

std::vector<InkStrokePtr> Arrow() {
  const auto shaft = [](double part) {
    return QPointF(30 + 120 * part, 110 - 34 * std::sin(std::numbers::pi * part * 0.8));
  };
  return {StrokeAlong(shaft), Line({134, 82}, {150, 90}), Line({150, 90}, {138, 102})};
}

std::vector<InkStrokePtr> Draw(SampleSketch sketch) {
  switch (sketch) {
    case SampleSketch::Underline:
      return Underline();
    case SampleSketch::Circle:
      return Circle();
    case SampleSketch::Arrow:
      return Arrow();
  }
  Q_UNREACHABLE();
}

}  // namespace

InkNote MakeSampleNote(const QString& text, SampleSketch sketch) {
  InkNote note;
  note.Pens = {InkPen()};
  note.Text.Text = text;
  note.Text.Runs = {{.Length = static_cast<int>(text.size())}};
  note.Strokes = Draw(sketch);
  return note;
}

}  // namespace quill
