// The paper that is written on: ruled, or with a grid of dots for the close-up.
#pragma once

#include <QImage>

#include "ink/InkNote.h"

namespace quill {

inline constexpr int kRuledPaper = 16;
inline constexpr int kDottedPaper = 2;

struct InkPaper {
  int Style = kRuledPaper;  // others than the two are drawn as ruled
  bool IsEndless = false;   // to the right; otherwise what lies right of the page is grey
};

// A piece of the zoomed page to be painted; in its device pixels.
struct InkPiece {
  QImage& Image;
  QPoint Origin;  // of the image
  QRect Area;     // which part of it
  double Scale;   // device pixels per unit
};

// The same whichever way the page is cut into pieces.
void PaintPaper(const InkPiece& piece, const InkPage& page, const InkPaper& paper);

}  // namespace quill
