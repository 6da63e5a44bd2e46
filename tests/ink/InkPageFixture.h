// A page to write on, without a window.
#pragma once

#include <gtest/gtest.h>

#include "ink/InkDocument.h"
#include "platform/Services.h"
#include "support/FixedClock.h"

namespace quill::test {

// What a document told: s for a stroke, c for a change, t for text, e for an edit, in their order.
class Told : public QObject {
 public:
  explicit Told(InkDocument& document) {
    connect(&document, &InkDocument::StrokeAdded, this,
            [this](const InkStrokePtr& stroke) { Add(u's'), Added = stroke; });
    connect(&document, &InkDocument::Changed, this,
            [this](const QRect& area) { Add(u'c'), Area = Area.united(area); });
    connect(&document, &InkDocument::TextChanged, this,
            [this](int caret) { Add(u't'), Caret = caret; });
    connect(&document, &InkDocument::Edited, this, [this] { Add(u'e'); });
  }

  QString Order;
  InkStrokePtr Added;
  QRect Area;
  int Caret = -1;

 private:
  void Add(QChar what) { Order += what; }
};

class InkPageFixture : public testing::Test {
 protected:
  InkPageFixture() { g_services = {.Clock = &m_clock}; }
  ~InkPageFixture() override { g_services = {}; }

  void Pass(int milliseconds) { m_clock.Set(m_clock.Now().addMSecs(milliseconds)); }

  // All lengths are page pixels.
  static InkStroke StrokeThrough(const std::vector<QPoint>& pixels) {
    InkStroke stroke;
    for (const QPoint at : pixels)
      stroke.Points.push_back({.X = at.x() * kInkUnitsPerPixel, .Y = at.y() * kInkUnitsPerPixel});
    return stroke;
  }
  // A stroke of two points, ten pixels long.
  InkStrokePtr Draw(QPoint at, const InkPen& pen = {}) {
    m_document.AddStroke(StrokeThrough({at, at + QPoint(10, 0)}), pen);
    return Strokes().empty() ? nullptr : Strokes().back();
  }
  // Keyboards type at the end.
  void Type(const QString& text) {
    const auto end = static_cast<int>(Text().size());
    m_document.Type(end, end, text);
  }
  void Undo() { m_document.Steps().undo(); }
  void Redo() { m_document.Steps().redo(); }

  const InkNote& Note() const { return m_document.Note(); }
  const std::vector<InkStrokePtr>& Strokes() const { return Note().Strokes; }
  const QString& Text() const { return Note().Text.Text; }
  int StepCount() const { return m_document.Steps().index(); }
  // The tops of the strokes, pixels.
  std::vector<int> Tops() const {
    std::vector<int> tops;
    for (const InkStrokePtr& stroke : Strokes())
      tops.push_back(stroke->Bounds.top() / kInkUnitsPerPixel);
    return tops;
  }

  FixedClock m_clock{QDateTime(QDate(2004, 9, 15), QTime(9, 30, 5))};
  InkDocument m_document;
};

}  // namespace quill::test
