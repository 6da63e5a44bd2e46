#include "platform/ui/PenWatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLineF>
#include <QSinglePointEvent>

namespace quill {

namespace {

constexpr qreal kTapDistance = 16;  // global pixels

// A move says it too: a release may have gone to another program.
bool HasButtons(const QEvent& event) {
  return static_cast<const QSinglePointEvent&>(event).buttons() != Qt::NoButton;
}

bool IsPress(QEvent::Type type) {
  return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick ||
         type == QEvent::TabletPress || type == QEvent::TouchBegin;
}

bool IsMove(QEvent::Type type) {
  return type == QEvent::MouseMove || type == QEvent::TabletMove || type == QEvent::TouchUpdate;
}

}  // namespace

PenWatch::PenWatch() { QCoreApplication::instance()->installEventFilter(this); }

std::optional<QPointF> PenWatch::TappedWithin(int milliseconds) const {
  if (!m_sincePress.isValid() || m_sincePress.hasExpired(milliseconds)) return std::nullopt;
  return m_pressedAt;
}

void PenWatch::FollowTap(const QEvent& event) {
  if (!IsPress(event.type()) && !(IsMove(event.type()) && IsDown())) return;
  const auto& points = static_cast<const QPointerEvent&>(event).points();
  if (points.isEmpty()) return;
  const QPointF at = points.first().globalPosition();
  if (IsPress(event.type())) {
    m_sincePress.start();
    m_pressedAt = at;
  } else if (QLineF(m_pressedAt, at).length() > kTapDistance) {
    m_sincePress.invalidate();
  }
}

bool PenWatch::eventFilter(QObject*, QEvent* event) {
  FollowTap(*event);
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
