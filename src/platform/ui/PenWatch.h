// Knows whether a pen, a finger or a mouse button is down anywhere in the application, so that
// nothing opens under it. Installed on the application as an event filter; lives as long as one
// QApplication or shorter.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointF>

#include <optional>

namespace quill {

class PenWatch : public QObject {
 public:
  PenWatch();

  bool IsDown() const { return m_mouse || m_tablet || m_touch; }
  // Where something was put down last and not moved since, in global pixels; nothing when that is
  // longer ago.
  std::optional<QPointF> TappedWithin(int milliseconds) const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FollowTap(const QEvent& event);

  bool m_mouse = false;
  bool m_tablet = false;
  bool m_touch = false;
  QPointF m_pressedAt;
  QElapsedTimer m_sincePress;  // runs from a press until it is moved
};

}  // namespace quill
