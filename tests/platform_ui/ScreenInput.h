// Pen and keys as the desktop sends them: to the outer window, which finds the widget itself, so
// that hit tests, implicit grabs and focus are real. Points are logical pixels of the pen screen.
#pragma once

#include <QPointF>
#include <QString>

#include <memory>
#include <set>

class QWindow;
namespace QTest {
class QTouchEventSequence;
}

namespace quill {
class CScreen;
}

namespace quill::test {

class ScreenInput {
 public:
  explicit ScreenInput(CScreen& screen);
  ~ScreenInput();

  void Press(QPoint at, Qt::MouseButton button = Qt::LeftButton);
  void Move(QPoint at);  // with the left button down
  void Hover(QPoint at);
  void Release(QPoint at, Qt::MouseButton button = Qt::LeftButton);
  void PressAgain(QPoint at);  // the second press of a double click
  void Tap(QPoint at);

  void TabletPress(QPoint at, quint64 timestamp = 0);  // milliseconds, 0 when nobody knows
  void TabletMove(QPoint at);
  void TabletHover(QPoint at);
  void TabletRelease(QPoint at);

  // Fingers that are down and not told of rest where they are.
  void TouchPress(QPoint at, int finger = 0);
  void TouchMove(QPoint at, int finger = 0);
  void TouchRelease(QPoint at, int finger = 0);

  void KeyPress(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void KeyRelease(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  // Press and release; the text is the key's letter, if it is one.
  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void Type(const QString& text);

 private:
  struct OuterPoint {
    QPointF At;
    QPointF Global;
  };
  QWindow& Window() const;
  OuterPoint ToOuter(QPoint at) const;
  QTest::QTouchEventSequence& Touch();
  void SendTouch(int finger);
  void SendMouse(int type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons);
  void SendTablet(int type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons,
                  quint64 timestamp = 0);
  void SendKey(int type, int key, Qt::KeyboardModifiers modifiers, const QString& text);

  CScreen& m_screen;
  std::unique_ptr<QTest::QTouchEventSequence> m_touch;  // made by the first touch
  std::set<int> m_fingers;                              // that are down
};

}  // namespace quill::test
