#include "platform/ui/PalmGuard.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointerEvent>

#include "platform/ui/PenWidget.h"

namespace quill {

namespace {

bool IsTouch(const QEvent& event) {
  switch (event.type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
      return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove: {
      // Where a window leaves a touch, the platform makes a mouse event of it.
      const auto* device = static_cast<const QPointerEvent&>(event).pointingDevice();
      return device && device->type() == QInputDevice::DeviceType::TouchScreen;
    }
    default:
      return false;
  }
}

}  // namespace

PalmGuard::PalmGuard() {
  m_time.start();
  QCoreApplication::instance()->installEventFilter(this);
}

// Ends of touches pass: a window that saw the beginning must see the end.
bool PalmGuard::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::TabletEnterProximity:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
      m_filter.PenNear();
      return false;
    case QEvent::TabletRelease:
    case QEvent::TabletLeaveProximity:
      m_filter.PenAway(m_time.elapsed());
      return false;
    default:
      if (IsTouch(*event) && !m_filter.AcceptsTouch(m_time.elapsed())) return true;
      return IsSecondFinger(watched, *event);
  }
}

bool PalmGuard::IsSecondFinger(QObject* watched, const QEvent& event) {
  const bool begins = event.type() == QEvent::TouchBegin;
  const bool goesOn = event.type() == QEvent::TouchUpdate;
  const bool ends = event.type() == QEvent::TouchEnd || event.type() == QEvent::TouchCancel;
  if (!(begins || goesOn || ends) || !qobject_cast<CPenWidget*>(watched)) return false;
  if (m_touched && m_touched != watched) return true;
  m_touched = ends ? nullptr : watched;
  return false;
}

}  // namespace quill
