// From a widget's events to what a pen, a finger or a mouse does. It knows what window systems make
// of a pen: mouse events that repeat it and palms are dropped while it is near, of several fingers
// only the first one counts, and the second press of the double tap that opened the widget is none.
#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <functional>
#include <optional>
#include <vector>

#include "ink/InkCapture.h"
#include "platform/PalmFilter.h"

class QInputEvent;
class QMouseEvent;
class QTabletEvent;
class QTouchEvent;

namespace quill {

class InkEventReader : public QObject {
 public:
  InkEventReader();

  // True for events of these devices: they are the reader's, whether something follows or not.
  static bool Reads(const QEvent& event);
  // What follows, points in the widget's pixels.
  std::vector<InkInput> Read(const QEvent& event);
  // True for an event by which the system takes a touch away.
  static bool IsCancel(const QEvent& event);

  // The widget was opened by a tap just now, here in its pixels.
  void FollowTap(QPointF at);

  // A pen came near: what a finger does is a palm's.
  std::function<void()> PenCame;

  // Of the application: the coming and going of a pen is told to it alone.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::vector<InkInput> ReadDevice(const QEvent& event);
  std::vector<InkInput> ReadTablet(const QTabletEvent& event);
  std::vector<InkInput> ReadMouse(const QMouseEvent& event);
  bool IsPressAgain(const QMouseEvent& event);
  std::vector<InkInput> ReadTouch(const QTouchEvent& event);
  qint64 TimeOf(const QInputEvent& event) const;
  void FollowPen();
  bool IsPenNear() const;
  std::vector<InkInput> WithoutDoubleTap(std::vector<InkInput> inputs);

  PalmFilter m_pen;
  bool m_tellsProximity = false;
  bool m_isMouseDown = false;
  struct Tap {
    QPointF At;
    qint64 Time;
  };

  std::optional<Tap> m_tap;  // that opened the widget, until something is put down
  qint64 m_lastPen = 0;      // event
  std::optional<int> m_finger;
  QElapsedTimer m_time;
};

}  // namespace quill
