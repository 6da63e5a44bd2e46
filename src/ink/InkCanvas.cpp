#include "ink/InkCanvas.h"

#include <QPainter>

#include <cmath>
#include <utility>

#include "ink/InkSelect.h"
#include "ink/InkStrokePainter.h"

namespace quill {

namespace {

// The part of a piece that text is painted onto, device pixels of the page.
QRect TextPart(const InkPiece& piece, const InkTextLayout& layout) {
  const double zoom = piece.Scale * kInkUnitsPerPixel;
  const QRectF text = layout.PaintedBounds();
  const QRect place = QRectF(text.topLeft() * zoom, text.size() * zoom).toAlignedRect();
  return place & piece.Area & QRect(piece.Origin, piece.Image.size());
}

// Letters that begin left of or above a picture are placed otherwise than elsewhere: numbers below
// 0 are rounded the other way. So text is painted onto a picture that begins farther out.
void PaintText(const InkPiece& piece, const InkTextLayout& layout) {
  const QRect part = TextPart(piece, layout);
  if (part.isEmpty()) return;
  const double zoom = piece.Scale * kInkUnitsPerPixel;
  const int margin = 2 * static_cast<int>(std::ceil(layout.Overhang() * zoom));
  const QRect inside(QPoint(margin, margin), part.size());
  QImage larger(part.size() + QSize(margin, margin), piece.Image.format());
  QPainter painter(&larger);
  painter.setClipRect(inside);
  painter.drawImage(inside, piece.Image, part.translated(-piece.Origin));
  painter.translate(inside.topLeft() - part.topLeft());
  painter.scale(zoom, zoom);
  layout.Paint(painter, {QPointF(part.topLeft()) / zoom, QSizeF(part.size()) / zoom});
  painter.end();
  QPainter(&piece.Image).drawImage(part.translated(-piece.Origin), larger, inside);
}

void PaintBelowInk(const InkPiece& piece, const InkDocument& document, const InkPaper& paper) {
  PaintPaper(piece, document.Note().Page, paper);
  PaintText(piece, document.TextLayout());
}

// A part of an image, without a copy; it lives no longer than the image.
QImage PartOf(const QImage& image, const QRect& part) {
  return QImage(image.constScanLine(part.top()) + part.left() * 4, part.width(), part.height(),
                image.bytesPerLine(), image.format());
}

}  // namespace

void PaintInkPage(const InkPiece& piece, const InkDocument& document, const InkPaper& paper) {
  PaintBelowInk(piece, document, paper);
  PaintStrokes(piece.Image, piece.Origin, piece.Area, piece.Scale, document.Note());
}

void InkCanvas::SetWindow(QSize window, QSize covered, qreal devicePixelRatio) {
  m_view.SetWindow(window, covered, devicePixelRatio);
  RepaintWhole();
}

void InkCanvas::SetZoom(int percent, QPointF anchor) {
  m_view.SetZoom(percent, anchor);
  RepaintWhole();
}

void InkCanvas::SetPaper(const InkPaper& paper) {
  m_paper = paper;
  RepaintWhole();
  FollowExtent();
}

void InkCanvas::RepaintWhole() {
  m_isStale = true;
  if (m_live.IsDown()) m_live.MoveTo(m_view.Scale(), m_view.Shown());
}

void InkCanvas::FollowExtent() {
  const InkNote& note = m_document.Note();
  const QRectF text = m_document.TextLayout().Bounds();
  const QRect textUnits =
      QRectF(text.topLeft() * kInkUnitsPerPixel, text.size() * kInkUnitsPerPixel).toAlignedRect();
  const QPoint before = m_view.Scroll();
  m_view.SetExtent({.PageWidth = static_cast<int>(UsedPageWidth(note.Page)),
                    .Content = m_document.InkBounds().united(textUnits),
                    .GrowsRight = m_paper.IsEndless});
  FollowScroll(before);
}

void InkCanvas::ScrollTo(QPoint scroll) {
  const QPoint before = m_view.Scroll();
  m_view.ScrollTo(scroll);
  FollowScroll(before);
}

void InkCanvas::Show(const QRectF& page) {
  const QPoint before = m_view.Scroll();
  m_view.Show(page);
  FollowScroll(before);
}

// What stays in view is moved within the picture; only the strips that come into view are painted.
void InkCanvas::FollowScroll(QPoint before) {
  const QRect now = m_view.Shown();
  const QRect stays = now.intersected(QRect(before, now.size()));
  if (now.topLeft() == before) return;
  if (m_live.IsDown()) m_live.MoveTo(m_view.Scale(), now);
  if (m_isStale || stays.isEmpty()) return RepaintWhole();
  const QImage kept = m_picture.copy(stays.translated(-before));
  QPainter(&m_picture).drawImage(stays.topLeft() - now.topLeft(), kept);
  for (const QRect& strip : QRegion(now).subtracted(stays)) PaintPicture(strip);
}

QRect InkCanvas::Repaint(const QRect& units) {
  if (m_paintedPage.Width != m_document.Note().Page.Width ||
      m_paintedPage.RulePitch != m_document.Note().Page.RulePitch) {
    RepaintWhole();
    return m_view.Shown();
  }
  const QRect area = m_view.DeviceFromUnits(units).intersected(m_view.Shown());
  if (!m_isStale && !area.isEmpty()) PaintPicture(area);
  return area;
}

void InkCanvas::BeginStroke(const InkPen& pen, quint8 parts) {
  Refresh();
  m_isLifted = false;
  m_live.Begin(pen, m_view.Scale(), parts, m_view.Shown());
}

QRect InkCanvas::TakeStroke(const InkStroke& stroke) {
  if (!std::exchange(m_isLifted, false)) return Repaint(PaintedBounds(m_document.Note(), stroke));
  if (m_isStale) return m_live.Cancel();
  const bool isOnTop = m_live.Pen().Tip == InkTip::Round;
  const QRect area = m_live.Finish(m_picture, m_view.Scroll());
  if (!isOnTop && !area.isEmpty()) PaintPicture(area);
  return area;
}

void InkCanvas::PaintPicture(const QRect& area) {
  PaintInkPage({m_picture, m_view.Scroll(), area, m_view.Scale()}, m_document, m_paper);
}

// A highlighter lies under the page's round ink.
void InkCanvas::PaintLive(const InkPiece& piece) {
  const bool isOnTop = m_live.Pen().Tip == InkTip::Round;
  const InkNote& note = m_document.Note();
  if (!isOnTop) {
    PaintBelowInk(piece, m_document, m_paper);
    PaintHighlighters(piece.Image, piece.Origin, piece.Area, piece.Scale, note);
  }
  m_live.PaintOver(piece.Image, piece.Origin, piece.Area);
  if (!isOnTop) PaintRoundStrokes(piece.Image, piece.Origin, piece.Area, piece.Scale, note);
}

void InkCanvas::Refresh() {
  if (!m_isStale) return;
  m_isStale = false;
  if (m_picture.size() != m_view.WindowSize())
    m_picture = QImage(m_view.WindowSize(), QImage::Format_RGB32);
  m_paintedPage = m_document.Note().Page;
  PaintPicture(m_view.Shown());
}

void InkCanvas::Paint(QPainter& painter, const QRect& window) {
  Refresh();
  const qreal ratio = m_view.DevicePixelRatio();
  const QRectF exact(QPointF(window.topLeft()) * ratio, QSizeF(window.size()) * ratio);
  const QRect part = exact.toAlignedRect().intersected(m_picture.rect());
  if (part.isEmpty()) return;
  QImage piece = PartOf(m_picture, part);
  const QPoint origin = m_view.Scroll() + part.topLeft();
  if (m_live.IsDown()) {
    piece = piece.copy();
    PaintLive({piece, origin, QRect(origin, part.size()), m_view.Scale()});
  }
  piece.setDevicePixelRatio(ratio);
  painter.drawImage(QPointF(part.topLeft()) / ratio, piece);
}

}  // namespace quill
