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

// Fills an area, in device pixels of the zoomed page; imageOrigin: which of these the image begins
// with. scale: device pixels per unit.
void PaintPaper(QImage& image, QPoint imageOrigin, const QRect& area, double scale,
                const InkPage& page, const InkPaper& paper);

}  // namespace quill
