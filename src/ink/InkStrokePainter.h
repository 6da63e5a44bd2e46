// A note's strokes on a picture of a part of its page.
//
// Areas and origins are page device pixels; a picture's first pixel lies at its origin. A picture
// is of a format that ComposeInk takes. Each pixel comes out the same however the page is cut into
// pictures and areas.
#pragma once

#include <QImage>

#include "ink/InkGeometry.h"

namespace quill {

// The pen of a stroke; the default one when the note has none of that number.
InkPen InkPenOf(const InkNote& note, const InkStroke& stroke);

// Paints what of the strokes lies in the area onto paper and text: highlighters first, then round
// ink, both in their order.
void PaintStrokes(QImage& image, const QPoint& origin, const QRect& area, double scale,
                  const InkNote& note);

// Either kind alone: who shows a highlighter that is just being drawn has it between the two.
void PaintHighlighters(QImage& image, const QPoint& origin, const QRect& area, double scale,
                       const InkNote& note);
void PaintRoundStrokes(QImage& image, const QPoint& origin, const QRect& area, double scale,
                       const InkNote& note);

}  // namespace quill
