// Says which process is the one with this home's window. Held from before the window to the end of
// the process; a lock left by a process that died is taken over. Commands without a window never
// take it.
#pragma once

#include <QLockFile>
#include <QString>

namespace quill {

enum class LockOutcome {
  Taken,
  HeldByOther,  // a window of this home is open
  Failed,       // the lock file cannot be written: Reason says why
};

// The lock's file in a home's state folder.
QString InstanceLockFile(const QString& stateFolder);

class InstanceLock {
 public:
  // The folder must exist.
  explicit InstanceLock(const QString& stateFolder);
  InstanceLock(const InstanceLock&) = delete;
  InstanceLock& operator=(const InstanceLock&) = delete;

  // Does not wait.
  LockOutcome Take();
  // Why Take failed, as text for the user.
  QString Reason() const;

 private:
  QLockFile m_file;
};

}  // namespace quill
