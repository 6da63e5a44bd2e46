// Draws painted rows, and measures text for their layout.
#pragma once

#include "platform/PaintedRow.h"
#include "platform/TextFitting.h"

class QPainter;

namespace quill {

// The width of a text in the normal or the bold font, in logical pixels: the same at every scale.
TextWidth NormalTextWidth();
TextWidth BoldTextWidth();

void DrawRow(QPainter& painter, const PaintedRow& row);

// One pixel wide, along the inside of the area.
void DrawFrame(QPainter& painter, const QRect& area, Rgb color);

}  // namespace quill
