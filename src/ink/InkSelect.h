// Which strokes a pen means: those that an eraser touches, those that a drag or a loop takes in.
// Lengths are units of the page; answers are in painting order.
#pragma once

#include <QPolygon>

#include "ink/InkNote.h"

namespace quill {

// The strokes whose ink comes nearer to the way from one point to another than the radius.
std::vector<InkStrokePtr> StrokesAlong(const InkNote& note, QPoint from, QPoint to, int radius);

// The area that a drag takes in: the loop, where it comes back towards its beginning, otherwise the
// rectangle from its first point to its last.
QPolygon DraggedArea(const QPolygon& path);

// The strokes with at least half of their points in the area.
std::vector<InkStrokePtr> StrokesInside(const InkNote& note, const QPolygon& area);

// Around the strokes' points, without their width; empty without strokes.
QRect BoundsOf(const std::vector<InkStrokePtr>& strokes);

// What has to be painted again when this stroke comes or goes.
QRect PaintedBounds(const InkNote& note, const InkStroke& stroke);

// As much of a way as these bounds can go: neither over the page's left and top edge nor farther
// than a note's ink may lie.
QPoint WithinReach(const QRect& bounds, QPoint by);

// The stroke moved by an offset.
InkStrokePtr MovedStroke(const InkStroke& stroke, QPoint by);

}  // namespace quill
