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

}  // namespace

PenWatch::PenWatch() { QCoreApplication::instance()->installEventFilter(this); }

bool PenWatch::eventFilter(QObject*, QEvent* event) {
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
