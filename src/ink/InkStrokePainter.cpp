#include "ink/InkStrokePainter.h"

#include "ink/InkCompose.h"

namespace quill {
namespace {

// A stroke of which something lies in the area.
struct Hit {
  const InkStroke* Stroke = nullptr;
  InkPen Pen;
  QRect Area;
};

// Both kinds, each in its order.
struct Hits {
  std::vector<Hit> Highlighters;
  std::vector<Hit> Round;
};

// Paints onto one picture with one scale.
class Painter {
 public:
  Painter(QImage& image, const QPoint& origin, double scale)
      : m_image(image), m_origin(origin), m_scale(scale) {}

  Hits Find(const QRect& area, const InkNote& note) const {
    Hits hits;
    const QRect painted = area & QRect(m_origin, m_image.size());
    if (painted.isEmpty()) return hits;
    for (const InkStrokePtr& stroke : note.Strokes) {
      const InkPen pen = InkPenOf(note, *stroke);
      const QRect touched = InkStrokeArea(*stroke, pen, m_scale) & painted;
      if (touched.isEmpty() || stroke->Points.empty()) continue;
      auto& kind = pen.Tip == InkTip::Highlighter ? hits.Highlighters : hits.Round;
      kind.push_back({stroke.get(), pen, touched});
    }
    return hits;
  }

  void Paint(const std::vector<Hit>& hits) {
    for (const Hit& hit : hits) PaintStroke(hit);
  }

 private:
  // Each stroke is one mask, composed once.
  void PaintStroke(const Hit& hit) {
    m_mask.Reset(hit.Area);
    InkShaper shaper(hit.Pen, m_scale, hit.Stroke->Parts);
    for (const InkPoint& point : hit.Stroke->Points) {
      for (const InkCapsule& capsule : shaper.Add(point)) m_mask.Add(capsule);
    }
    m_mask.Add(shaper.Tail());
    ComposeInk(m_image, m_origin, m_mask, hit.Area, hit.Pen);
  }

  QImage& m_image;
  QPoint m_origin;
  double m_scale;
  InkMask m_mask;
};

}  // namespace

InkPen InkPenOf(const InkNote& note, const InkStroke& stroke) {
  return stroke.Pen < note.Pens.size() ? note.Pens[stroke.Pen] : InkPen{};
}

void PaintStrokes(QImage& image, const QPoint& origin, const QRect& area, double scale,
                  const InkNote& note) {
  Painter painter(image, origin, scale);
  const Hits hits = painter.Find(area, note);
  painter.Paint(hits.Highlighters);
  painter.Paint(hits.Round);
}

void PaintHighlighters(QImage& image, const QPoint& origin, const QRect& area, double scale,
                       const InkNote& note) {
  Painter painter(image, origin, scale);
  painter.Paint(painter.Find(area, note).Highlighters);
}

void PaintRoundStrokes(QImage& image, const QPoint& origin, const QRect& area, double scale,
                       const InkNote& note) {
  Painter painter(image, origin, scale);
  painter.Paint(painter.Find(area, note).Round);
}

}  // namespace quill
