#include "platform_ui/ScreenInput.h"

#include <QtTest/qtesttouch.h>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QTabletEvent>
#include <QWindow>

#include "platform/ui/Screen.h"

namespace quill::test {

namespace {

const QPointingDevice& Stylus() {
  static const QPointingDevice stylus(QStringLiteral("stylus"), 1, QInputDevice::DeviceType::Stylus,
                                      QPointingDevice::PointerType::Pen,
                                      QInputDevice::Capability::Position, 1, 1);
  return stylus;
}

QPointingDevice& TouchScreen() {
  static QPointingDevice* const device = QTest::createTouchDevice();  // lives as long as Qt's own
  return *device;
}

// What the key types.
QString TextOf(int key, Qt::KeyboardModifiers modifiers) {
  if (key < Qt::Key_Space || key > Qt::Key_AsciiTilde || modifiers & Qt::ControlModifier) return {};
  return QString(QChar(key)).toLower();
}

}  // namespace

ScreenInput::ScreenInput(CScreen& screen) : m_screen(screen) {}

ScreenInput::~ScreenInput() = default;

QWindow& ScreenInput::Window() const { return *m_screen.window()->windowHandle(); }

ScreenInput::OuterPoint ScreenInput::ToOuter(QPoint at) const {
  const QPointF inWindow = m_screen.mapTo(m_screen.window(), at);
  return {inWindow, Window().mapToGlobal(inWindow)};
}

void ScreenInput::SendMouse(int type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons) {
  const OuterPoint point = ToOuter(at);
  QMouseEvent event(static_cast<QEvent::Type>(type), point.At, point.At, point.Global, button,
                    buttons, Qt::NoModifier);
  QCoreApplication::sendEvent(&Window(), &event);
}

void ScreenInput::Press(QPoint at, Qt::MouseButton button) {
  SendMouse(QEvent::MouseButtonPress, at, button, button);
}

void ScreenInput::Move(QPoint at) {
  SendMouse(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
}

void ScreenInput::Hover(QPoint at) { SendMouse(QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton); }

void ScreenInput::Release(QPoint at, Qt::MouseButton button) {
  SendMouse(QEvent::MouseButtonRelease, at, button, Qt::NoButton);
}

void ScreenInput::PressAgain(QPoint at) {
  SendMouse(QEvent::MouseButtonDblClick, at, Qt::LeftButton, Qt::LeftButton);
}

void ScreenInput::Tap(QPoint at) {
  Press(at);
  Release(at);
}

void ScreenInput::SendTablet(int type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons,
                             quint64 timestamp) {
  const OuterPoint point = ToOuter(at);
  const qreal pressure = buttons == Qt::NoButton ? 0 : 0.5;
  QTabletEvent event(static_cast<QEvent::Type>(type), &Stylus(), point.At, point.Global, pressure,
                     0, 0, 0, 0, 0, Qt::NoModifier, button, buttons);
  event.setTimestamp(timestamp);
  QCoreApplication::sendEvent(&Window(), &event);
}

void ScreenInput::TabletPress(QPoint at, quint64 timestamp) {
  SendTablet(QEvent::TabletPress, at, Qt::LeftButton, Qt::LeftButton, timestamp);
}

void ScreenInput::TabletMove(QPoint at) {
  SendTablet(QEvent::TabletMove, at, Qt::NoButton, Qt::LeftButton);
}

void ScreenInput::TabletHover(QPoint at) {
  SendTablet(QEvent::TabletMove, at, Qt::NoButton, Qt::NoButton);
}

void ScreenInput::TabletRelease(QPoint at) {
  SendTablet(QEvent::TabletRelease, at, Qt::LeftButton, Qt::NoButton);
}

QTest::QTouchEventSequence& ScreenInput::Touch() {
  if (!m_touch)
    m_touch = std::make_unique<QTest::QTouchEventSequence>(
        QTest::touchEvent(&Window(), &TouchScreen(), false));
  return *m_touch;
}

void ScreenInput::SendTouch(int finger) {
  for (const int other : m_fingers)
    if (other != finger) Touch().stationary(other);
  Touch().commit(false);
}

void ScreenInput::TouchPress(QPoint at, int finger) {
  Touch().press(finger, ToOuter(at).At.toPoint());
  m_fingers.insert(finger);
  SendTouch(finger);
}

void ScreenInput::TouchMove(QPoint at, int finger) {
  Touch().move(finger, ToOuter(at).At.toPoint());
  SendTouch(finger);
}

void ScreenInput::TouchRelease(QPoint at, int finger) {
  Touch().release(finger, ToOuter(at).At.toPoint());
  m_fingers.erase(finger);
  SendTouch(finger);
}

void ScreenInput::SendKey(int type, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  QKeyEvent event(static_cast<QEvent::Type>(type), key, modifiers, text);
  QCoreApplication::sendEvent(&Window(), &event);
}

void ScreenInput::KeyPress(int key, Qt::KeyboardModifiers modifiers) {
  SendKey(QEvent::KeyPress, key, modifiers, TextOf(key, modifiers));
}

void ScreenInput::KeyRelease(int key, Qt::KeyboardModifiers modifiers) {
  SendKey(QEvent::KeyRelease, key, modifiers, TextOf(key, modifiers));
}

void ScreenInput::Key(int key, Qt::KeyboardModifiers modifiers) {
  KeyPress(key, modifiers);
  KeyRelease(key, modifiers);
}

void ScreenInput::Type(const QString& text) {
  for (const QChar letter : text) {
    SendKey(QEvent::KeyPress, 0, Qt::NoModifier, letter);
    SendKey(QEvent::KeyRelease, 0, Qt::NoModifier, letter);
  }
}

}  // namespace quill::test
