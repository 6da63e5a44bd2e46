#include "platform/ui/PreeditWatch.h"

#include <QApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include <utility>

namespace quill {

namespace {

bool IsModifier(int key) {
  return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

}  // namespace

PreeditWatch::PreeditWatch(QObject* parent) : QObject(parent) {
  QCoreApplication::instance()->installEventFilter(this);
}

QString PreeditWatch::Preedit(const QWidget* editor) const {
  return editor && editor == m_editor ? m_preedit : QString();
}

// An input method that is asked commits by itself; what then is left, nobody would commit.
void PreeditWatch::Commit() {
  QGuiApplication::inputMethod()->commit();
  if (m_preedit.isEmpty() || !m_editor) return;
  QInputMethodEvent commit;
  commit.setCommitString(std::exchange(m_preedit, {}));
  QCoreApplication::sendEvent(m_editor, &commit);
}

bool PreeditWatch::EndsComposing(const QObject* watched, const QEvent& event) const {
  switch (event.type()) {
    case QEvent::FocusAboutToChange:
    case QEvent::Hide:
      return watched == m_editor;
    case QEvent::KeyPress:
      return watched == m_editor && !IsModifier(static_cast<const QKeyEvent&>(event).key());
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TabletPress:
    case QEvent::TouchBegin:
      return watched->isWidgetType() && watched != m_keys;
    default:
      return false;
  }
}

bool PreeditWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::InputMethod && watched == QApplication::focusWidget()) {
    m_editor = static_cast<QWidget*>(watched);
    m_preedit = static_cast<QInputMethodEvent*>(event)->preeditString();
  } else if (!m_preedit.isEmpty() && EndsComposing(watched, *event)) {
    Commit();
  }
  return false;
}

}  // namespace quill
