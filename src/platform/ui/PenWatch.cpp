#include "platform/ui/PenWatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSinglePointEvent>

namespace quill {

namespace {

// A move says it too: a release may have gone to another program.
bool HasButtons(const QEvent& event) {
  return static_cast<const QSinglePointEvent&>(event).buttons() != Qt::NoButton;
}

bool IsPress(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TabletPress:
    case QEvent::TouchBegin:
      return !static_cast<const QPointerEvent&>(event).points().isEmpty();
    default:
      return false;
  }
}

}  // namespace

PenWatch::PenWatch() { QCoreApplication::instance()->installEventFilter(this); }

std::optional<QPointF> PenWatch::PressedWithin(int milliseconds) const {
  if (!m_sincePress.isValid() || m_sincePress.hasExpired(milliseconds)) return std::nullopt;
  return m_pressedAt;
}

void PenWatch::FollowPress(const QEvent& event) {
  if (!IsPress(event)) return;
  m_sincePress.start();
  m_pressedAt = static_cast<const QPointerEvent&>(event).points().first().globalPosition();
}

bool PenWatch::eventFilter(QObject*, QEvent* event) {
  FollowPress(*event);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      m_mouse = HasButtons(*event);
      break;
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
      m_tablet = HasButtons(*event);
      break;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
      m_touch = true;
      break;
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
      m_touch = false;
      break;
    default:
      break;
  }
  return false;
}

}  // namespace quill
