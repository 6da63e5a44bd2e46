#include "app/InstanceLock.h"

#include <QDir>

namespace quill {

QString InstanceLockFile(const QString& stateFolder) {
  return QDir(stateFolder).filePath(QStringLiteral("quill.lock"));
}

InstanceLock::InstanceLock(const QString& stateFolder) : m_file(InstanceLockFile(stateFolder)) {
  // A window may stay open for weeks: age alone never makes the lock stale, a dead owner does.
  m_file.setStaleLockTime(0);
}

LockOutcome InstanceLock::Take() {
  if (m_file.tryLock(0)) return LockOutcome::Taken;
  return m_file.error() == QLockFile::LockFailedError ? LockOutcome::HeldByOther
                                                      : LockOutcome::Failed;
}

QString InstanceLock::Reason() const {
  switch (m_file.error()) {
    case QLockFile::NoError:
      return {};
    case QLockFile::LockFailedError:
      return QStringLiteral("another window of this home is open");
    case QLockFile::PermissionError:
      return QStringLiteral("no permission to write %1").arg(m_file.fileName());
    case QLockFile::UnknownError:
      break;
  }
  return QStringLiteral("cannot write %1").arg(m_file.fileName());
}

}  // namespace quill
