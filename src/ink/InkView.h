// Which part of a page a window shows, and the ways between the two.
//
// Three measures: page pixels (at 100 %), window pixels (logical, from the window's top left), and
// device pixels of the zoomed page, from the page's top left: units times Scale(). The window
// stands at a whole device pixel, so that the same ink is the same pixels wherever it is scrolled
// to.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace quill {

// What is on the page, for how far it can be scrolled. Units.
struct InkExtent {
  int PageWidth = 0;
  QRect Content = {};
  bool GrowsRight = false;

  bool operator==(const InkExtent&) const = default;
};

class InkView {
 public:
  // covered: what lies over the window's right and bottom edge, which scrolling reaches beyond.
  void SetWindow(QSize window, QSize covered, qreal devicePixelRatio);
  void SetExtent(const InkExtent& extent);

  int Zoom() const { return m_zoom; }
  // percent: more than 0. Keeps what is at this point of the window where it is, as far as
  // scrolling goes.
  void SetZoom(int percent, QPointF anchor);

  // Device pixels per unit.
  double Scale() const;
  qreal DevicePixelRatio() const { return m_ratio; }

  // All in device pixels. The farthest place that can be scrolled to is never negative.
  QPoint Scroll() const { return m_scroll; }
  QPoint FarthestScroll() const;
  void ScrollTo(QPoint scroll);
  QRect Shown() const { return {m_scroll, WindowSize()}; }
  QSize WindowSize() const;

  QPointF PageFromWindow(QPointF at) const;
  QPointF WindowFromPage(QPointF at) const;
  // Grown to whole pixels.
  QRect DeviceFromUnits(const QRect& units) const;
  QRect WindowFromDevice(const QRect& device) const;
  QRectF WindowFromPage(const QRectF& page) const;
  // Scrolls as little as shows this rectangle of the page, its top left corner first.
  void Show(const QRectF& page);

 private:
  QSize m_window{0, 0};
  QSize m_covered{0, 0};
  qreal m_ratio = 1;
  int m_zoom = 100;
  InkExtent m_extent;
  QPoint m_scroll;
};

}  // namespace quill
