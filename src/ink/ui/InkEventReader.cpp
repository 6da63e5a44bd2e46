#include "ink/ui/InkEventReader.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLineF>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTabletEvent>
#include <QTouchEvent>

namespace quill {

namespace {

constexpr qint64 kPenForgotten = 3000;
constexpr qreal kDoubleTapDistance = 16;

bool IsStylus(const QPointerEvent& event) {
  const QPointingDevice* const device = event.pointingDevice();
  return device && (device->type() == QInputDevice::DeviceType::Stylus ||
                    device->type() == QInputDevice::DeviceType::Airbrush);
}

// The tip is the left button; those on the barrel come and go while it writes.
InkPhase PhaseOf(const QTabletEvent& event) {
  const bool isTip = event.button() == Qt::LeftButton;
  if (isTip && event.type() == QEvent::TabletPress) return InkPhase::Press;
  if (isTip && event.type() == QEvent::TabletRelease) return InkPhase::Release;
  return event.buttons().testFlag(Qt::LeftButton) ? InkPhase::Move : InkPhase::Hover;
}

std::optional<InkPhase> PhaseOf(const QMouseEvent& event) {
  const bool isLeft = event.button() == Qt::LeftButton;
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return isLeft ? std::optional(InkPhase::Press) : std::nullopt;
    case QEvent::MouseButtonRelease:
      return isLeft ? std::optional(InkPhase::Release) : std::nullopt;
    default:
      return event.buttons().testFlag(Qt::LeftButton) ? InkPhase::Move : InkPhase::Hover;
  }
}

std::optional<InkPhase> PhaseOf(const QEventPoint& finger) {
  switch (finger.state()) {
    case QEventPoint::Pressed:
      return InkPhase::Press;
    case QEventPoint::Updated:
      return InkPhase::Move;
    case QEventPoint::Released:
      return InkPhase::Release;
    default:
      return std::nullopt;
  }
}

}  // namespace

InkEventReader::InkEventReader() {
  m_time.start();
  QCoreApplication::instance()->installEventFilter(this);
}

bool InkEventReader::Reads(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
      return true;
    default:
      return false;
  }
}

bool InkEventReader::IsCancel(const QEvent& event) { return event.type() == QEvent::TouchCancel; }

void InkEventReader::FollowTap(QPointF at) { m_tap = {at, m_time.elapsed()}; }

std::vector<InkInput> InkEventReader::WithoutDoubleTap(std::vector<InkInput> inputs) {
  const bool presses = !inputs.empty() && inputs.front().Phase == InkPhase::Press;
  if (!m_tap || !presses) return inputs;
  const QStyleHints& hints = *QGuiApplication::styleHints();
  const bool isSecond = m_time.elapsed() - m_tap->Time < hints.mouseDoubleClickInterval() &&
                        QLineF(m_tap->At, inputs.front().At).length() < kDoubleTapDistance;
  m_tap.reset();
  if (isSecond) inputs.clear();
  return inputs;
}

std::vector<InkInput> InkEventReader::Read(const QEvent& event) {
  return WithoutDoubleTap(ReadDevice(event));
}

std::vector<InkInput> InkEventReader::ReadDevice(const QEvent& event) {
  switch (event.type()) {
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
      return ReadTablet(static_cast<const QTabletEvent&>(event));
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
      return ReadTouch(static_cast<const QTouchEvent&>(event));
    case QEvent::TouchCancel:
      m_finger.reset();
      return {};
    default:
      return ReadMouse(static_cast<const QMouseEvent&>(event));
  }
}

bool InkEventReader::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::TabletEnterProximity) {
    m_tellsProximity = true;
    FollowPen();
  }
  if (event->type() == QEvent::TabletLeaveProximity) m_pen.PenAway(m_time.elapsed());
  return false;
}

qint64 InkEventReader::TimeOf(const QInputEvent& event) const {
  return event.timestamp() > 0 ? static_cast<qint64>(event.timestamp()) : m_time.elapsed();
}

void InkEventReader::FollowPen() {
  const bool came = !IsPenNear();
  m_pen.PenNear();
  m_lastPen = m_time.elapsed();
  if (came && PenCame) PenCame();
}

// A pen that says nothing any more has gone, whether or not its going was told.
bool InkEventReader::IsPenNear() const {
  const qint64 now = m_time.elapsed();
  return !m_pen.AcceptsTouch(now) && now - m_lastPen < kPenForgotten;
}

std::vector<InkInput> InkEventReader::ReadTablet(const QTabletEvent& event) {
  FollowPen();
  if (event.type() == QEvent::TabletRelease && !m_tellsProximity) m_pen.PenAway(m_time.elapsed());
  const bool erases = event.pointerType() == QPointingDevice::PointerType::Eraser;
  return {{.Device = erases ? InkDevice::Eraser : InkDevice::Pen,
           .Phase = PhaseOf(event),
           .At = event.position(),
           .Pressure = event.pressure(),
           .Tilt = {static_cast<qreal>(event.xTilt()), static_cast<qreal>(event.yTilt())},
           .Time = TimeOf(event)}};
}

// A double click comes behind a press of its own, or in place of it.
bool InkEventReader::IsPressAgain(const QMouseEvent& event) {
  const bool wasDown = m_isMouseDown;
  m_isMouseDown = event.buttons().testFlag(Qt::LeftButton);
  return event.type() == QEvent::MouseButtonDblClick && wasDown;
}

std::vector<InkInput> InkEventReader::ReadMouse(const QMouseEvent& event) {
  if (IsPressAgain(event) || IsStylus(event) || IsPenNear()) return {};
  const std::optional<InkPhase> phase = PhaseOf(event);
  if (!phase) return {};
  return {
      {.Device = InkDevice::Mouse, .Phase = *phase, .At = event.position(), .Time = TimeOf(event)}};
}

std::vector<InkInput> InkEventReader::ReadTouch(const QTouchEvent& event) {
  if (event.type() == QEvent::TouchBegin && !IsPenNear() && !event.points().isEmpty())
    m_finger = event.points().first().id();
  std::vector<InkInput> inputs;
  for (const QEventPoint& finger : event.points()) {
    const std::optional<InkPhase> phase = PhaseOf(finger);
    if (finger.id() != m_finger || !phase) continue;
    if (phase == InkPhase::Release) m_finger.reset();
    inputs.push_back({.Device = InkDevice::Finger,
                      .Phase = *phase,
                      .At = finger.position(),
                      .Time = TimeOf(event)});
  }
  return inputs;
}

}  // namespace quill
