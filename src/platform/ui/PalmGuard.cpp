#include "platform/ui/PalmGuard.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTouchEvent>

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

bool PalmGuard::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::TabletEnterProximity:
      m_tellsProximity = true;
      m_filter.PenNear();
      return false;
    case QEvent::TabletPress:
    case QEvent::TabletMove:
      m_filter.PenNear();
      return false;
    case QEvent::TabletRelease:
      if (!m_tellsProximity) m_filter.PenAway(m_time.elapsed());
      return false;
    case QEvent::TabletLeaveProximity:
      m_filter.PenAway(m_time.elapsed());
      return false;
    default:
      return KeepsTouchAway(watched, *event);
  }
}

bool PalmGuard::KeepsTouchAway(QObject* watched, const QEvent& event) {
  const bool accepts = m_filter.AcceptsTouch(m_time.elapsed());
  if (IsTouch(event) && !accepts) return true;
  auto* const widget = qobject_cast<CPenWidget*>(watched);
  if (!widget) return false;
  if (event.type() != QEvent::TouchEnd || accepts) return IsSecondFinger(*widget, event);
  // A window that saw the beginning must see an end, but no tap.
  QTouchEvent cancel(QEvent::TouchCancel);
  QCoreApplication::sendEvent(watched, &cancel);
  return true;
}

bool PalmGuard::IsSecondFinger(CPenWidget& watched, const QEvent& event) {
  const bool ends = event.type() == QEvent::TouchEnd || event.type() == QEvent::TouchCancel;
  const bool goesOn = event.type() == QEvent::TouchBegin || event.type() == QEvent::TouchUpdate;
  if (!ends && !goesOn) return false;
  if (m_touched && m_touched->isVisible() && m_touched != &watched) return true;
  m_touched = ends ? nullptr : &watched;
  return false;
}

}  // namespace quill
