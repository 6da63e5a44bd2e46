// A pen that works on the outer desktop window, as the desktop would report it.
//
// Points are logical pixels of the screen. Each operation sends one event at once and may therefore
// open a nested loop.
#pragma once

#include <QEvent>
#include <QPointF>
#include <QPointingDevice>

#include <memory>

namespace quill::driver {

// A point of a stroke; pressure from 0 to 1.
struct StrokePoint {
  QPointF At;
  qreal Pressure = 1;
};

class Pen {
 public:
  bool IsDown() const { return m_down; }
  QPointF Position() const { return m_position; }

  void Press(QPointF at);
  // The second press of a double tap.
  void PressAgain(QPointF at);
  void Move(QPointF at);
  void Release(QPointF at);

  void StrokePress(const StrokePoint& point);
  void StrokeMove(const StrokePoint& point);
  void StrokeRelease(const StrokePoint& point);

  // The application goes: the pen is up and its device gone.
  void Forget();

 private:
  void SendMouse(QEvent::Type type, QPointF at, Qt::MouseButton button);
  void SendTablet(QEvent::Type type, const StrokePoint& point, Qt::MouseButton button);
  const QPointingDevice& Stylus();

  std::unique_ptr<QPointingDevice> m_stylus;
  QPointF m_position;
  bool m_down = false;
};

}  // namespace quill::driver
