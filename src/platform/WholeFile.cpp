#include "platform/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSaveFile>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace quill {

namespace {

Q_LOGGING_CATEGORY(logWholeFile, "quill.files")

// Makes the folder's entries durable, so that a file renamed into it is found after a power loss.
void SyncFolder(const QString& folder) {
  const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
  if (handle < 0 || ::fsync(handle) != 0)
    qCWarning(logWholeFile) << "cannot sync" << folder << qt_error_string(errno);
  if (handle >= 0) ::close(handle);
}

}  // namespace

QString WriteWholeFile(const QString& file, const QByteArray& content) {
  QSaveFile target(file);
  // Flushed here: commit would not notice what its own flushing could not write.
  const bool isWritten = target.open(QIODevice::WriteOnly) &&
                         target.write(content) == content.size() && target.flush();
  if (!isWritten || !target.commit()) return target.errorString();
  SyncFolder(QFileInfo(file).path());
  return {};
}

QString SetFileAside(const QString& file) {
  QString aside = file + QStringLiteral(".bad");
  for (int number = 2; QFileInfo::exists(aside); ++number)
    aside = file + QStringLiteral(".bad-%1").arg(number);
  return QFile::rename(file, aside) ? aside : QString();
}

}  // namespace quill
