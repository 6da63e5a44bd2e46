// A paint device that keeps the texts painted on it and drops everything else.
#pragma once

#include <QColor>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QRectF>
#include <QString>

#include <vector>

namespace quill::driver {

// A text with its bounding box, in logical pixels of the device, and the part of it that clipping
// lets through.
struct RecordedText {
  QString Text;
  QRectF Box;
  QRectF Shown;
  QColor Color;
};

// True when letters are missing at an end: more than what a slanted or rounded edge hides.
bool IsCut(const RecordedText& text);

class TextPaintEngine : public QPaintEngine {
 public:
  TextPaintEngine();

  const std::vector<RecordedText>& Texts() const { return m_texts; }

  bool begin(QPaintDevice* device) override;
  bool end() override;
  Type type() const override { return User; }
  void updateState(const QPaintEngineState&) override {}
  void drawTextItem(const QPointF& at, const QTextItem& item) override;

  void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
  void drawTiledPixmap(const QRectF&, const QPixmap&, const QPointF&) override {}
  void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {}
  void drawPath(const QPainterPath&) override {}
  void drawRects(const QRect*, int) override {}
  void drawRects(const QRectF*, int) override {}
  void drawLines(const QLine*, int) override {}
  void drawLines(const QLineF*, int) override {}
  void drawEllipse(const QRect&) override {}
  void drawEllipse(const QRectF&) override {}
  void drawPoints(const QPoint*, int) override {}
  void drawPoints(const QPointF*, int) override {}
  void drawPolygon(const QPoint*, int, PolygonDrawMode) override {}
  void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}

 private:
  // A piece of a text as Qt hands it over: it splits texts where the script changes and at
  // mnemonics.
  struct Piece {
    qreal BaseLine = 0;
    qreal End = 0;  // where the next piece of the same text begins
    QFont Font = {};
  };
  bool Continues(const QPointF& at, const QTextItem& item) const;

  std::vector<RecordedText> m_texts;
  Piece m_last;
};

class TextRecorder : public QPaintDevice {
 public:
  // size: the area that can be painted, in logical pixels.
  explicit TextRecorder(QSize size) : m_size(size) {}

  const std::vector<RecordedText>& Texts() const { return m_engine.Texts(); }
  QPaintEngine* paintEngine() const override { return &m_engine; }

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  QSize m_size;
  mutable TextPaintEngine m_engine;
};

}  // namespace quill::driver
