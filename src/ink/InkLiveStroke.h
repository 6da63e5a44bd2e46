// The stroke that is being drawn, from pen-down to pen-up, over a picture of the page without it.
//
// Areas and origins are page device pixels. While the pen is down the stroke is painted over pieces
// of the page as they are shown, and nothing else changes; at the end it goes into the page's
// picture. Both give the very pixels that PaintStrokes gives for the same points.
//
// A highlighter lies under round ink. So for one, while it is drawn, a piece is paper and text,
// PaintHighlighters, PaintOver, PaintRoundStrokes; and at the end the area that Finish returns is
// painted anew from the document.
#pragma once

#include <QImage>

#include <optional>
#include <vector>

#include "ink/InkMask.h"

namespace quill {

class InkLiveStroke {
 public:
  // The area is where it can be seen; parts are those of the stroke. What was drawn before is
  // forgotten.
  void Begin(const InkPen& pen, double scale, quint8 parts, const QRect& area);
  bool IsDown() const { return m_shaper.has_value(); }
  const InkPen& Pen() const { return m_pen; }

  // The pen went on. Returns what has to be shown again, the smallest rectangle for which that is
  // true. Without Begin nothing happens.
  QRect Add(const InkPoint& point);

  // The view scrolled or zoomed while the pen is down; the stroke so far is shaped again. What is
  // shown of it moves with the page: all of the view has to be shown again.
  void MoveTo(double scale, const QRect& area);

  // Paints the stroke so far, up to the pen, onto a copy of the page.
  void PaintOver(QImage& piece, const QPoint& origin, const QRect& area) const;

  // The pen is up: the stroke is painted into the page's picture. Returns its area.
  QRect Finish(QImage& cache, const QPoint& origin);
  // It is taken back. Returns where it was to be seen.
  QRect Cancel();

 private:
  void AddToMask(std::span<const InkCapsule> capsules);
  InkMask Shown(const QRect& area, const InkCapsule& tail) const;
  QRect TailArea() const;
  QRect End();
  void ClearMask(const QRect& area);

  InkPen m_pen;
  quint8 m_parts = 0;
  std::vector<InkPoint> m_points;
  std::optional<InkShaper> m_shaper;
  InkMask m_mask;   // all but the tail
  QRect m_touched;  // of the mask
};

}  // namespace quill
