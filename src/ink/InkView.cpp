#include "ink/InkView.h"

#include <algorithm>
#include <cmath>

#include "ink/InkGeometry.h"

namespace quill {

namespace {

// A page of whole 2^30 units at 800 % would not fit an int.
int Whole(double value) { return static_cast<int>(std::clamp(value, -1.0e9, 1.0e9)); }

int RoundUp(double value) { return Whole(std::ceil(value)); }
int RoundDown(double value) { return Whole(std::floor(value)); }

// The least change of a scroll that shows from..to in a window of this size.
int Revealed(int scroll, int size, int from, int to) {
  if (from < scroll) return from;
  if (to > scroll + size) return std::min(from, to - size);
  return scroll;
}

}  // namespace

void InkView::SetWindow(QSize window, QSize covered, qreal devicePixelRatio) {
  m_window = window;
  m_covered = covered.expandedTo(QSize(0, 0));  // a QSize of nothing is smaller than that
  m_ratio = devicePixelRatio;
  ScrollTo(m_scroll);
}

void InkView::SetExtent(const InkExtent& extent) {
  if (extent == m_extent) return;
  m_extent = extent;
  ScrollTo(m_scroll);
}

void InkView::SetZoom(int percent, QPointF anchor) {
  const QPointF kept = PageFromWindow(anchor);
  m_zoom = percent;
  const QPointF now = WindowFromPage(kept);
  ScrollTo(m_scroll + ((now - anchor) * m_ratio).toPoint());
}

double InkView::Scale() const { return InkScale(m_zoom, m_ratio); }

QSize InkView::WindowSize() const {
  return {RoundUp(m_window.width() * m_ratio), RoundUp(m_window.height() * m_ratio)};
}

// There is always room for more: half a view below what is there, and beside it where the page
// grows to the right.
QPoint InkView::FarthestScroll() const {
  const QSize window = WindowSize();
  const QSize covered(RoundUp(m_covered.width() * m_ratio), RoundUp(m_covered.height() * m_ratio));
  const bool hasContent = !m_extent.Content.isEmpty();
  const int contentRight = hasContent ? RoundUp(m_extent.Content.right() * Scale()) : 0;
  const int contentBottom = hasContent ? RoundUp((m_extent.Content.bottom() + 1) * Scale()) : 0;
  int width = std::max(RoundUp(m_extent.PageWidth * Scale()), contentRight);
  if (m_extent.GrowsRight) width = std::max(width, contentRight + window.width() / 2);
  if (width > window.width()) width += covered.width();
  const int height = std::max(window.height(), contentBottom) + window.height() / 2;
  return {std::max(width - window.width(), 0),
          std::max(height + covered.height() - window.height(), 0)};
}

void InkView::ScrollTo(QPoint scroll) {
  const QPoint farthest = FarthestScroll();
  m_scroll = {std::clamp(scroll.x(), 0, farthest.x()), std::clamp(scroll.y(), 0, farthest.y())};
}

QPointF InkView::PageFromWindow(QPointF at) const {
  return (at * m_ratio + m_scroll) / (Scale() * kInkUnitsPerPixel);
}

QPointF InkView::WindowFromPage(QPointF at) const {
  return (at * (Scale() * kInkUnitsPerPixel) - m_scroll) / m_ratio;
}

QRectF InkView::WindowFromPage(const QRectF& page) const {
  return {WindowFromPage(page.topLeft()), WindowFromPage(page.bottomRight())};
}

QRect InkView::DeviceFromUnits(const QRect& units) const {
  if (units.isEmpty()) return {};
  const double scale = Scale();
  return QRect(QPoint(RoundDown(units.left() * scale), RoundDown(units.top() * scale)),
               QPoint(RoundUp((units.right() + 1.0) * scale) - 1,
                      RoundUp((units.bottom() + 1.0) * scale) - 1));
}

QRect InkView::WindowFromDevice(const QRect& device) const {
  const QRect shown = device.translated(-m_scroll).intersected(QRect(QPoint(), WindowSize()));
  if (shown.isEmpty()) return {};
  return QRect(QPoint(RoundDown(shown.left() / m_ratio), RoundDown(shown.top() / m_ratio)),
               QPoint(RoundUp((shown.right() + 1) / m_ratio) - 1,
                      RoundUp((shown.bottom() + 1) / m_ratio) - 1));
}

void InkView::Show(const QRectF& page) {
  const double scale = Scale() * kInkUnitsPerPixel;
  const QSize free = WindowSize() - m_covered * m_ratio;
  ScrollTo({Revealed(m_scroll.x(), free.width(), RoundDown(page.left() * scale),
                     RoundUp(page.right() * scale)),
            Revealed(m_scroll.y(), free.height(), RoundDown(page.top() * scale),
                     RoundUp(page.bottom() * scale))});
}

}  // namespace quill
