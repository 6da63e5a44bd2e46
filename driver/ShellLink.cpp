#include "driver/ShellLink.h"

#include <QCoreApplication>

#include <utility>

namespace quill::driver {

ShellLink::ShellLink(int file, Calls calls) : m_notifier(file, QSocketNotifier::Read) {
  m_timer.setSingleShot(true);
  connect(&m_timer, &QTimer::timeout, this, std::move(calls.Tick));
  connect(&m_notifier, &QSocketNotifier::activated, this, std::move(calls.Readable));
  QCoreApplication::instance()->installEventFilter(this);
}

void ShellLink::Arm(int milliseconds) { m_timer.start(milliseconds); }

bool ShellLink::WasQuiet() { return std::exchange(m_quiet, true); }

bool ShellLink::eventFilter(QObject* object, QEvent*) {
  if (object != &m_timer && object != &m_notifier) m_quiet = false;
  return false;
}

}  // namespace quill::driver
