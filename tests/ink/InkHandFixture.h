// A hand over a page of its own, 240 by 200 pixels of which are shown.
#pragma once

#include <vector>

#include "ink/InkHand.h"
#include "ink/InkPageFixture.h"

namespace quill::test {

class InkHandFixture : public InkPageFixture {
 protected:
  InkHandFixture() {
    QObject::connect(&m_document, &InkDocument::StrokeAdded,
                     [this](const InkStrokePtr& stroke) { m_canvas.TakeStroke(*stroke); });
    m_canvas.SetWindow({240, 200}, {0, 0}, 1);
    m_canvas.SetZoom(100, {0, 0});
    m_hand.Shown = [this](const QRect& area) { m_shown = m_shown.united(area); };
    m_hand.AllShown = [this] { ++m_allShown; };
    m_hand.Wrote = [this](QPointF at) { m_wrote.push_back(at); };
    m_hand.ScrollAsked = [this](QPoint device) { m_scrolls.push_back(device); };
  }

  void Take(InkDevice device, InkPhase phase, QPointF at, qreal pressure = 0.5) {
    m_hand.Take({.Device = device, .Phase = phase, .At = at, .Pressure = pressure});
  }
  void Drag(InkDevice device, const std::vector<QPointF>& way) {
    Take(device, InkPhase::Press, way.front());
    for (const QPointF at : way) Take(device, InkPhase::Move, at);
    Take(device, InkPhase::Release, way.back());
  }
  void Tap(QPointF at) { Drag(InkDevice::Mouse, {at}); }

  InkCanvas m_canvas{m_document};
  InkSelection m_selection{m_document};
  InkHand m_hand{m_document, m_canvas, m_selection};
  QRect m_shown;
  int m_allShown = 0;
  std::vector<QPointF> m_wrote;
  std::vector<QPoint> m_scrolls;
};

}  // namespace quill::test
