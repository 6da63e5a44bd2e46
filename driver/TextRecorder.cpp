#include "driver/TextRecorder.h"

#include <QPainter>

#include <cmath>

namespace quill::driver {

namespace {

constexpr int kDotsPerInch = 96;
constexpr qreal kHiddenEdge = 1.5;  // pixels
constexpr qreal kSameColumn = 0.5;  // pixels between a piece and the next one of the same text

}  // namespace

bool IsCut(const RecordedText& text) {
  return text.Box.left() < text.Shown.left() - kHiddenEdge ||
         text.Box.right() > text.Shown.right() + kHiddenEdge;
}

TextPaintEngine::TextPaintEngine() : QPaintEngine(AllFeatures) {}

bool TextPaintEngine::begin(QPaintDevice*) {
  m_last = {};
  return true;
}

bool TextPaintEngine::end() { return true; }

void TextPaintEngine::drawTextItem(const QPointF& at, const QTextItem& item) {
  const QTransform& transform = painter()->deviceTransform();
  const QPointF start = transform.map(at);
  const QRectF box(start.x(), start.y() - item.ascent(), item.width(),
                   item.ascent() + item.descent());
  const QRectF clip =
      painter()->hasClipping() ? transform.mapRect(painter()->clipBoundingRect()) : box;
  if (!item.text().isEmpty() && clip.intersects(box)) {
    if (Continues(start, item)) {
      m_texts.back().Text += item.text();
      m_texts.back().Box |= box;
      m_texts.back().Shown |= box & clip;
    } else {
      m_texts.push_back({item.text(), box, box & clip, painter()->pen().color()});
    }
    m_last = {start.y(), start.x() + item.width(), item.font()};
  }
}

bool TextPaintEngine::Continues(const QPointF& at, const QTextItem& item) const {
  return !m_texts.empty() && m_texts.back().Color == painter()->pen().color() &&
         qFuzzyCompare(m_last.BaseLine, at.y()) && std::abs(m_last.End - at.x()) < kSameColumn &&
         m_last.Font == item.font();
}

int TextRecorder::metric(PaintDeviceMetric metric) const {
  switch (metric) {
    case PdmWidth:
      return m_size.width();
    case PdmHeight:
      return m_size.height();
    case PdmWidthMM:
      return qRound(m_size.width() * 25.4 / kDotsPerInch);
    case PdmHeightMM:
      return qRound(m_size.height() * 25.4 / kDotsPerInch);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
      return kDotsPerInch;
    case PdmDevicePixelRatio:
      return 1;
    case PdmDevicePixelRatioScaled:
      return qRound(devicePixelRatioFScale());
    case PdmDepth:
      return 32;
    case PdmNumColors:
      return 1 << 24;
    default:
      return QPaintDevice::metric(metric);
  }
}

}  // namespace quill::driver
