// Scribbles, and pictures of pages with them; the same ones at each call.
#pragma once

#include <QImage>

#include "ink/InkNote.h"

namespace quill {

// A stroke of that many points within a page of 200 by 120 pixels at 100 %, with sharp and soft
// turns and pressure from none to full.
InkStroke Scribble(int points, unsigned seed);

// Some of the strokes are a highlighter's; the pens are round, highlighter, thin and see-through.
InkNote ScribbledNote(int strokes, unsigned seed);

// Something like text on paper, to see what is under ink. It is the same at each place of the page.
void PaintPaper(QImage& image, const QPoint& origin);

// A part of such a page with the note's strokes.
QImage PieceOf(const InkNote& note, double scale, const QRect& area);
QImage PageOf(const InkNote& note, double scale);

void PutPicture(QImage& image, const QPoint& at, const QImage& picture);

}  // namespace quill
