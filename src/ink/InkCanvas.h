// The picture of the part of a page that a window shows: paper, text and ink, and over it the
// stroke in the air. It is painted from the document when it must be, and otherwise kept.
//
// Rectangles are device pixels of the zoomed page (see InkView) unless said otherwise.
#pragma once

#include <QImage>

#include "ink/InkDocument.h"
#include "ink/InkLiveStroke.h"
#include "ink/InkPaper.h"
#include "ink/InkView.h"

class QPainter;

namespace quill {

// Paints a piece of a page as it looks.
void PaintInkPage(const InkPiece& piece, const InkDocument& document, const InkPaper& paper);

class InkCanvas {
 public:
  // The document outlives it.
  explicit InkCanvas(const InkDocument& document) : m_document(document) {}

  const InkView& View() const { return m_view; }
  void SetWindow(QSize window, QSize covered, qreal devicePixelRatio);
  void SetZoom(int percent, QPointF anchor);
  void SetPaper(const InkPaper& paper);
  const InkPaper& Paper() const { return m_paper; }
  // Moves the picture and paints what came into view.
  void ScrollTo(QPoint scroll);
  // Scrolls as little as shows this rectangle of the page, in page pixels.
  void Show(const QRectF& page);
  // How far scrolling goes now.
  void FollowExtent();

  // Paints a part of the page anew; units. Returns what of it is in view.
  QRect Repaint(const QRect& units);
  void RepaintWhole();

  // The stroke in the air. Each returns what has to be shown again.
  void BeginStroke(const InkPen& pen, quint8 parts);
  bool HasStroke() const { return m_live.IsDown(); }
  QRect ExtendStroke(const InkPoint& point) { return m_live.Add(point); }
  QRect CancelStroke() { return m_live.Cancel(); }
  // The pen was lifted: the next stroke on top of the page is the one in the air.
  void LiftStroke() { m_isLifted = m_live.IsDown(); }
  // A stroke came on top of the page; where it was the one in the air, that one is done.
  QRect TakeStroke(const InkStroke& stroke);

  // Draws what a rectangle of the window (logical pixels) shows.
  void Paint(QPainter& painter, const QRect& window);

 private:
  void PaintPicture(const QRect& area);
  void PaintLive(const InkPiece& piece);
  void Refresh();
  void FollowScroll(QPoint before);

  const InkDocument& m_document;
  InkView m_view;
  InkPaper m_paper;
  QImage m_picture;
  InkLiveStroke m_live;
  InkPage m_paintedPage;
  bool m_isStale = true;
  bool m_isLifted = false;
};

}  // namespace quill
