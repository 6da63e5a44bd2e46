#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

#include "ink/ui/InkAccessibility.h"
#include "ink/ui/InkXParts.h"

namespace quill {

namespace {

constexpr int kBarWidth = 8;        // as wide as the page's margins: it covers no writing at 100 %
constexpr double kNearEdge = 0.85;  // of the window: whoever writes there needs more room
constexpr double kAdvance = 0.6;    // of the window

}  // namespace

// The part of the control that shows the page.
QRect InkX::Page() const {
  return rect().adjusted(0, 0, m_parts->View == kInkMapView ? -kInkMapWidth : 0, 0);
}

void InkX::ShowDevice(const QRect& device) {
  if (!device.isEmpty()) update(m_parts->Canvas.View().WindowFromDevice(device));
}

void InkX::ScrollTo(QPoint device) {
  m_parts->Canvas.ScrollTo(device);
  FollowScroll();
}

void InkX::FollowScroll() {
  const QSignalBlocker noVertical(m_parts->Vertical);
  const QSignalBlocker noHorizontal(m_parts->Horizontal);
  const InkView& view = m_parts->Canvas.View();
  m_parts->Vertical->setValue(view.Scroll().y());
  m_parts->Horizontal->setValue(view.Scroll().x());
  m_parts->Map->FollowView();
  update();
}

// How far one can scroll depends on the page and its zoom.
void InkX::FollowPage() {
  m_parts->Canvas.FollowExtent();
  const InkView& view = m_parts->Canvas.View();
  const QPoint farthest = view.FarthestScroll();
  const int line = qRound(kDefaultRulePitch * view.Scale());
  const QSignalBlocker noVertical(m_parts->Vertical);
  const QSignalBlocker noHorizontal(m_parts->Horizontal);
  m_parts->Vertical->setRange(0, farthest.y());
  m_parts->Vertical->setPageStep(std::max(view.WindowSize().height() - line, line));
  m_parts->Vertical->setSingleStep(line);
  m_parts->Horizontal->setRange(0, farthest.x());
  m_parts->Horizontal->setPageStep(std::max(view.WindowSize().width() - line, line));
  m_parts->Horizontal->setSingleStep(line);
  if (m_parts->Horizontal->isHidden() == (farthest.x() > 0)) PlaceBars();
  if (view.Scroll() != QPoint(m_parts->Horizontal->value(), m_parts->Vertical->value()))
    FollowScroll();
}

void InkX::PlaceBars() {
  const QRect page = Page();
  const bool hasHorizontal = m_parts->Canvas.View().FarthestScroll().x() > 0;
  const int below = hasHorizontal ? kBarWidth : 0;
  m_parts->Map->setVisible(m_parts->View == kInkMapView);
  m_parts->Horizontal->setVisible(hasHorizontal);
  m_parts->Map->setGeometry(page.right() + 1, 0, kInkMapWidth, height());
  m_parts->Vertical->setGeometry(page.right() + 1 - kBarWidth, 0, kBarWidth, height() - below);
  m_parts->Horizontal->setGeometry(0, height() - kBarWidth, page.width(), kBarWidth);
  m_parts->Document.SetNewPageWidth(static_cast<quint32>(width() * kInkUnitsPerPixel));
  m_parts->Canvas.SetWindow(page.size(), {kBarWidth, below}, devicePixelRatio());
  FollowPage();
}

void InkX::CentreOn(QPointF page) {
  const InkView& view = m_parts->Canvas.View();
  const QPointF away = view.WindowFromPage(page) - QRectF(Page()).center();
  ScrollTo(view.Scroll() + (away * view.DevicePixelRatio()).toPoint());
}

// Room for the next words: on along the line, or back to the beginning of the next one.
void InkX::AdvanceFrom(QPointF at) {
  const InkView& view = m_parts->Canvas.View();
  const int window = view.WindowSize().width();
  if (view.WindowFromPage(at).x() * view.DevicePixelRatio() < window * kNearEdge) return;
  const InkPage& page = m_parts->Document.Note().Page;
  const int pageEnd = static_cast<int>(std::ceil(UsedPageWidth(page) * view.Scale())) - window;
  const bool isAtEnd = view.Scroll().x() >= pageEnd;
  const int line = qRound(UsedLinePitch(page) * view.Scale());
  ScrollTo(isAtEnd ? QPoint(0, view.Scroll().y() + line)
                   : QPoint(std::min(view.Scroll().x() + qRound(window * kAdvance), pageEnd),
                            view.Scroll().y()));
}

void InkX::ShowCaret() {
  m_parts->ShowsCaret = true;
  FollowPage();
  updateMicroFocus();
  m_parts->Canvas.Show(m_parts->Document.TextLayout().Caret(m_parts->Selection.Caret()));
  FollowScroll();
  TellInkCaret(*this);
}

}  // namespace quill
