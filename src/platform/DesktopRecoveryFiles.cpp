#include "platform/DesktopRecoveryFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include "platform/WholeFile.h"

namespace quill {

namespace {

Q_LOGGING_CATEGORY(logRecovery, "quill.recovery")

}  // namespace

QString DesktopRecoveryFiles::FileOf(const QString& name) const {
  return m_folder + u'/' + kRecoveryPrefix.toString() + name;
}

std::optional<QByteArray> DesktopRecoveryFiles::Read(const QString& name) const {
  QFile file(FileOf(name));
  if (!file.exists()) return std::nullopt;
  // Anything but a plain file, such as a pipe, could keep the program waiting.
  const bool opened = QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly);
  QByteArray content = opened ? file.readAll() : QByteArray();
  if (opened && file.error() == QFileDevice::NoError) return content;
  qCWarning(logRecovery) << "cannot read" << file.fileName() << file.errorString();
  return std::nullopt;
}

bool DesktopRecoveryFiles::Write(const QString& name, const QByteArray& content) {
  const QString problem = WriteWholeFile(FileOf(name), content);
  if (problem.isEmpty()) return true;
  qCWarning(logRecovery) << "cannot write" << FileOf(name) << problem;
  return false;
}

bool DesktopRecoveryFiles::Append(const QString& name, const QByteArray& bytes) {
  QFile file(FileOf(name));
  const bool opened =
      QFileInfo(file).isFile() &&
      file.open(QIODevice::Append | QIODevice::ExistingOnly | QIODevice::Unbuffered);
  const qint64 size = file.size();
  if (opened && file.write(bytes) == bytes.size()) return true;
  qCWarning(logRecovery) << "cannot add to" << file.fileName() << file.errorString();
  // Half of them would hide what comes behind.
  if (opened && file.size() != size) file.resize(size);
  return false;
}

bool DesktopRecoveryFiles::Remove(const QString& name) {
  QFile file(FileOf(name));
  if (!file.exists() || file.remove()) return true;
  qCWarning(logRecovery) << "cannot remove" << file.fileName() << file.errorString();
  return false;
}

bool DesktopRecoveryFiles::SetAside(const QString& name) {
  if (!QFileInfo::exists(FileOf(name))) return true;
  const QString aside = SetFileAside(FileOf(name));
  qCWarning(logRecovery) << FileOf(name) << "is damaged, kept as" << aside;
  return !aside.isEmpty();
}

}  // namespace quill
