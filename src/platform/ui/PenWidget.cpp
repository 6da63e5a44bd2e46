#include "platform/ui/PenWidget.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTabletEvent>
#include <QTouchEvent>

#include <utility>

namespace quill {

namespace {

constexpr QPoint kOutside{-1, -1};

}  // namespace

CPenWidget::CPenWidget(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_AcceptTouchEvents);
  setMouseTracking(true);
  setTabletTracking(true);
}

void CPenWidget::PenPress(QPoint) {}
void CPenWidget::PenMove(QPoint) {}
void CPenWidget::PenRelease(QPoint) {}
void CPenWidget::PenCancel() {
  PenMove(kOutside);
  PenRelease(kOutside);
}

void CPenWidget::PenHover(QPoint) {}

bool CPenWidget::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      return HandleMouse(event);
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
      return HandleTablet(event);
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
      return HandleTouch(event);
    default:
      return QWidget::event(event);
  }
}

// The window system counts the presses of a mouse; those of pens and fingers are counted here.
CPenWidget::Count CPenWidget::CountPress(QPoint at, quint64 timestamp) {
  const QStyleHints& hints = *QGuiApplication::styleHints();
  const bool isSecond =
      m_lastPress &&
      timestamp - m_lastPress->Time < static_cast<quint64>(hints.mouseDoubleClickInterval()) &&
      (at - m_lastPress->At).manhattanLength() < hints.touchDoubleTapDistance();
  m_lastPress.reset();
  if (!isSecond && timestamp > 0) m_lastPress = {at, timestamp};
  return isSecond ? Count::Second : Count::First;
}

void CPenWidget::Press(QPoint at, Count count) {
  m_pressed = true;
  count == Count::Second ? PenDoublePress(at) : PenPress(at);
}

void CPenWidget::Move(QPoint at) {
  if (m_pressed) PenMove(at);
}

void CPenWidget::Release(QPoint at) {
  if (std::exchange(m_pressed, false)) PenRelease(at);
}

bool CPenWidget::HandleMouse(QEvent* event) {
  const auto* mouse = static_cast<QMouseEvent*>(event);
  const QPoint at = mouse->position().toPoint();
  const bool isLeft = mouse->button() == Qt::LeftButton;
  const bool presses =
      mouse->type() == QEvent::MouseButtonPress || mouse->type() == QEvent::MouseButtonDblClick;
  if (presses && isLeft) {
    Press(at, mouse->type() == QEvent::MouseButtonDblClick ? Count::Second : Count::First);
  } else if (mouse->type() == QEvent::MouseButtonRelease && isLeft) {
    Release(at);
  } else if (mouse->type() == QEvent::MouseMove) {
    mouse->buttons().testFlag(Qt::LeftButton) ? Move(at) : PenHover(at);
  }
  event->accept();
  return true;
}

bool CPenWidget::HandleTablet(QEvent* event) {
  const auto* pen = static_cast<QTabletEvent*>(event);
  const QPoint at = pen->position().toPoint();
  if (pen->type() == QEvent::TabletPress) {
    Press(at, CountPress(at, pen->timestamp()));
  } else if (pen->type() == QEvent::TabletRelease) {
    Release(at);
  } else {
    pen->buttons() == Qt::NoButton ? PenHover(at) : Move(at);
  }
  event->accept();  // or the window system makes a second, mouse event of it
  return true;
}

// One finger is a pen; further fingers are nothing.
bool CPenWidget::HandleTouch(QEvent* event) {
  event->accept();
  const auto* touch = static_cast<QTouchEvent*>(event);
  if (touch->type() == QEvent::TouchCancel) {
    m_finger.reset();
    if (std::exchange(m_pressed, false)) PenCancel();
    return true;
  }
  if (touch->type() == QEvent::TouchBegin && !touch->points().isEmpty())
    m_finger = touch->points().first().id();
  const QList<QEventPoint> fingers = touch->points();  // a handler may run a loop of its own
  for (const QEventPoint& finger : fingers)
    if (finger.id() == m_finger) HandleFinger(finger);
  return true;
}

void CPenWidget::HandleFinger(const QEventPoint& finger) {
  const QPoint at = finger.position().toPoint();
  switch (finger.state()) {
    case QEventPoint::Pressed:
      return Press(at, CountPress(at, finger.timestamp()));
    case QEventPoint::Updated:
      return Move(at);
    case QEventPoint::Released:
      m_finger.reset();
      return Release(at);
    default:
      return;
  }
}

}  // namespace quill
