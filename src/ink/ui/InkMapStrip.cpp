#include "ink/ui/InkMapStrip.h"

#include <QPaintEvent>
#include <QPainter>

namespace quill {

namespace {

constexpr int kMapZoom = 12;  // percent
constexpr QRgb kEdge = 0xFF808080;
constexpr QRgb kFrame = 0xFFC03030;

}  // namespace

InkMapStrip::InkMapStrip(QWidget* parent, const InkDocument& document, const InkCanvas& page)
    : CPenWidget(parent), m_page(page), m_map(document) {
  m_map.SetZoom(kMapZoom, {});
}

void InkMapStrip::SetPaper(const InkPaper& paper) {
  m_map.SetPaper(paper);
  FollowView();
}

void InkMapStrip::Repaint(const QRect& units) {
  if (isVisible()) update(m_map.View().WindowFromDevice(m_map.Repaint(units)));
}

void InkMapStrip::FollowView() {
  if (!isVisible()) return;
  m_map.FollowExtent();
  m_map.Show(Frame());
  update();
}

QRectF InkMapStrip::Frame() const {
  const InkView& view = m_page.View();
  const QSizeF window = QSizeF(view.WindowSize()) / view.DevicePixelRatio();
  return {view.PageFromWindow({0, 0}), view.PageFromWindow({window.width(), window.height()})};
}

void InkMapStrip::PenPress(QPoint at) { TravelAsked(m_map.View().PageFromWindow(at)); }
void InkMapStrip::PenMove(QPoint at) { TravelAsked(m_map.View().PageFromWindow(at)); }

void InkMapStrip::resizeEvent(QResizeEvent*) { PaintAnew(); }
void InkMapStrip::showEvent(QShowEvent*) { PaintAnew(); }

void InkMapStrip::PaintAnew() {
  m_map.SetWindow(size(), {}, devicePixelRatio());
  FollowView();
}

void InkMapStrip::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  m_map.Paint(painter, event->rect());
  painter.setPen(QColor::fromRgb(kEdge));
  painter.drawLine(0, 0, 0, height());
  painter.setPen(QColor::fromRgb(kFrame));
  const QRectF frame = m_map.View().WindowFromPage(Frame()).intersected(QRectF(rect()));
  painter.drawRect(frame.toAlignedRect().adjusted(0, 0, -1, -1));
}

}  // namespace quill
