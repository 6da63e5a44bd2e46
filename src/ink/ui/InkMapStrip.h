// A narrow map of the page beside it, with a frame around what the page's window shows. Dragging on
// it travels.
#pragma once

#include <functional>

#include "ink/InkCanvas.h"
#include "platform/ui/PenWidget.h"

namespace quill {

inline constexpr int kInkMapWidth = 30;

class InkMapStrip : public CPenWidget {
  Q_OBJECT
 public:
  // Both outlive it; page is the canvas of the page's own window.
  InkMapStrip(QWidget* parent, const InkDocument& document, const InkCanvas& page);

  void SetPaper(const InkPaper& paper);
  // A part of the page looks otherwise; units.
  void Repaint(const QRect& units);
  // The page's window shows another part, or the page has another size.
  void FollowView();

  // Somebody wants to see what lies here, in the middle of the window; page pixels.
  std::function<void(QPointF page)> TravelAsked;

 protected:
  void PenPress(QPoint at) override;
  void PenMove(QPoint at) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QRectF Frame() const;
  void PaintAnew();

  const InkCanvas& m_page;
  InkCanvas m_map;
};

}  // namespace quill
