// Pages of made-up handwriting to measure with, and the same painted segment by segment, which is
// the least that a program does that knows nothing of ink.
#pragma once

#include <QImage>

#include "ink/InkNote.h"

namespace quill::bench {

inline constexpr int kPointsPerStroke = 60;

InkNote WrittenPage(int strokes);

// All of the page, in page device pixels.
QRect PageArea(const InkNote& note, double scale);

QImage WhitePicture(const QSize& size);
QImage RenderPage(const InkNote& note, double scale, const QRect& area);

// A line from point to point by QPainter, antialiased, as wide as the pen at the second one.
void PaintSegment(QImage& image, const InkPoint& from, const InkPoint& to, double scale);
void PaintSegments(QImage& image, const InkNote& note, double scale);

// The points as four floats each and a count before each stroke, and back.
QByteArray RawFloats(const InkNote& note);
std::vector<std::vector<float>> ReadRawFloats(const QByteArray& bytes);

}  // namespace quill::bench
