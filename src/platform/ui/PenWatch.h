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
  // Where something was put down last, in global pixels; nothing when that is longer ago.
  std::optional<QPointF> PressedWithin(int milliseconds) const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FollowPress(const QEvent& event);

  bool m_mouse = false;
  bool m_tablet = false;
  bool m_touch = false;
  QPointF m_pressedAt;
  QElapsedTimer m_sincePress;  // runs from the first press on
};

}  // namespace quill
