// What is painted over a page and is no part of it: what is selected, the caret, the way of a drag,
// and what is to be said of the note. Rectangles are window pixels.
#pragma once

#include "ink/InkHand.h"

class QPainter;

namespace quill {

void PaintInkSelection(QPainter& painter, const InkDocument& document,
                       const InkSelection& selection, const InkView& view, QPointF dragged);
void PaintInkCaret(QPainter& painter, const InkDocument& document, int caret, const InkView& view);
void PaintInkLasso(QPainter& painter, const QPolygonF& path, const InkView& view);

// Empty when nothing is to be said.
QString InkNoticeText(InkNotice notice);
// Along the bottom of the window, from where scrolling brings what is below it. A note that cannot
// be shown is a grey page with the notice in its middle.
void PaintInkNotice(QPainter& painter, InkNotice notice, const QRect& window);

}  // namespace quill
