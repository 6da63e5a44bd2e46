// A widget that a pen works on. Mouse, tablet and touch events arrive as one press, moves and one
// release, in logical pixels of the widget; the release comes to the widget of its press, and no
// release without one. The second press of a double tap is a press like any other, unless the
// widget wants to know.
#pragma once

#include <QEventPoint>
#include <QWidget>

#include <optional>

namespace quill {

class CPenWidget : public QWidget {
  Q_OBJECT
 public:
  explicit CPenWidget(QWidget* parent);

 protected:
  virtual void PenPress(QPoint at);
  virtual void PenDoublePress(QPoint at) { PenPress(at); }
  virtual void PenMove(QPoint at);
  virtual void PenRelease(QPoint at);
  // The system took the touch away: by default a release outside, which acts on nothing.
  virtual void PenCancel();
  // The pen moves above the widget without touching it.
  virtual void PenHover(QPoint at);

  bool event(QEvent* event) override;

 private:
  bool HandleMouse(QEvent* event);
  bool HandleTablet(QEvent* event);
  bool HandleTouch(QEvent* event);
  void HandleFinger(const QEventPoint& finger);
  enum class Count { First, Second };
  Count CountPress(QPoint at, quint64 timestamp);
  void Press(QPoint at, Count count);
  void Move(QPoint at);
  void Release(QPoint at);

  struct LastPress {
    QPoint At;
    quint64 Time;  // milliseconds
  };

  bool m_pressed = false;
  std::optional<LastPress> m_lastPress;  // of a pen or a finger
  std::optional<int> m_finger;           // the touching finger that is the pen
};

}  // namespace quill
