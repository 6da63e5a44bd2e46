#include "ink/InkStrokePainter.h"

#include "ink/InkCompose.h"

namespace quill {
namespace {

// What strokes are painted onto.
struct Sheet {
  QImage& Image;
  QPoint Origin;
  QRect Area;
  double Scale;
};

Sheet SheetOf(QImage& image, const QPoint& origin, const QRect& area, double scale) {
  return {image, origin, area & QRect(origin, image.size()), scale};
}

// Each stroke is one mask, composed once.
void PaintStroke(const Sheet& sheet, const InkStroke& stroke, const InkPen& pen, InkMask& mask) {
  const QRect area = InkStrokeArea(stroke, pen, sheet.Scale) & sheet.Area;
  if (area.isEmpty() || stroke.Points.empty()) return;
  mask.Reset(area);
  InkShaper shaper(pen, sheet.Scale, stroke.Parts);
  for (const InkPoint& point : stroke.Points) {
    for (const InkCapsule& capsule : shaper.Add(point)) mask.Add(capsule);
  }
  mask.Add(shaper.Tail());
  ComposeInk(sheet.Image, sheet.Origin, mask, area, pen);
}

void PaintTip(const Sheet& sheet, const InkNote& note, InkTip tip, InkMask& mask) {
  if (sheet.Area.isEmpty()) return;
  for (const InkStrokePtr& stroke : note.Strokes) {
    const InkPen pen = InkPenOf(note, *stroke);
    if (pen.Tip == tip) PaintStroke(sheet, *stroke, pen, mask);
  }
}

}  // namespace

InkPen InkPenOf(const InkNote& note, const InkStroke& stroke) {
  return stroke.Pen < note.Pens.size() ? note.Pens[stroke.Pen] : InkPen{};
}

void PaintStrokes(QImage& image, const QPoint& origin, const QRect& area, double scale,
                  const InkNote& note) {
  InkMask mask;
  const Sheet sheet = SheetOf(image, origin, area, scale);
  PaintTip(sheet, note, InkTip::Highlighter, mask);
  PaintTip(sheet, note, InkTip::Round, mask);
}

void PaintHighlighters(QImage& image, const QPoint& origin, const QRect& area, double scale,
                       const InkNote& note) {
  InkMask mask;
  PaintTip(SheetOf(image, origin, area, scale), note, InkTip::Highlighter, mask);
}

void PaintRoundStrokes(QImage& image, const QPoint& origin, const QRect& area, double scale,
                       const InkNote& note) {
  InkMask mask;
  PaintTip(SheetOf(image, origin, area, scale), note, InkTip::Round, mask);
}

}  // namespace quill
