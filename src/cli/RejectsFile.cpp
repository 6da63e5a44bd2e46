#include "cli/RejectsFile.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>

namespace quill {

bool RejectsFile::Open() { return Path().isEmpty() || m_file.open(QIODevice::WriteOnly); }

bool RejectsFile::Finish() {
  if (!m_file.isOpen()) return true;
  // Bytes that a full disk did not take count here: commit knows of them.
  if (m_file.pos() > 0 || m_file.error() != QFileDevice::NoError)
    return m_file.flush() && m_file.commit();
  m_file.cancelWriting();
  return true;
}

QString RejectsFile::Problem() const {
  return QStringLiteral("%1: %2").arg(Path(), m_file.errorString());
}

bool RejectsFile::IsOneOf(const QStringList& files) const {
  const QString own = QFileInfo(Path()).canonicalFilePath();
  return !own.isEmpty() && std::any_of(files.begin(), files.end(), [&own](const QString& file) {
    return QFileInfo(file).canonicalFilePath() == own;
  });
}

}  // namespace quill
