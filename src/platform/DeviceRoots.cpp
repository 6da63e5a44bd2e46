#include "platform/DeviceRoots.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace quill {

namespace {

// The path without links on the way to the file; the file itself may be one. Empty as RealPath is.
QString RealEntry(const QString& file) {
  const QFileInfo info(file);
  const QString folder = RealPath(info.path());
  return folder.isEmpty() ? QString() : folder + u'/' + info.fileName();
}

// The path from a folder on, in the device's signs; empty for a file that lies elsewhere.
QString Below(const QString& folder, const QString& real) {
  const QString start = RealPath(folder) + u'/';
  if (!real.startsWith(start)) return {};
  return u'\\' + real.mid(start.size()).replace(u'/', u'\\');
}

}  // namespace

QString RealPath(const QString& file) {
  if (file.isEmpty()) return {};
  const QFileInfo info(file);
  if (info.exists()) return info.canonicalFilePath();
  return info.isSymLink() ? QString() : RealEntry(file);
}

QString DevicePathOf(const DeviceRoots& roots, const QString& file) {
  const QString real = QFileInfo(file).canonicalFilePath();
  if (real.contains(u'\\') || !DeviceReach(roots).Includes(real)) return {};
  const QString documents = u'\\' + kMyDocuments.toString();
  const QString inDocuments = Below(roots.MyDocuments, real);
  if (!inDocuments.isEmpty()) return documents + inDocuments;
  const QString onDevice = Below(roots.Device, real);
  // What has the documents' name without being them cannot be reached.
  return onDevice.startsWith(documents + u'\\', Qt::CaseInsensitive) ? QString() : onDevice;
}

DeviceReach::DeviceReach(const DeviceRoots& roots) : m_places({roots.Device, roots.MyDocuments}) {
  for (const QString& root : std::as_const(m_places)) m_roots.append(RealPath(root));
  for (const QString& own : roots.Own) {
    m_own.append(RealEntry(own));
    m_own.append(RealPath(own));
  }
  m_roots.removeAll(QString());
  m_own.removeAll(QString());  // every path begins with nothing
}

bool DeviceReach::Includes(const QString& file) const {
  const QString real = RealPath(file);
  if (real.isEmpty() || !IsBelow(real) || IsOwn(real)) return false;
  const QString entry = RealEntry(file);
  return m_places.contains(file) || (IsBelow(entry) && !IsOwn(entry));
}

bool DeviceReach::IncludesIn(const QString& realFolder, const QFileInfo& entry) const {
  if (entry.isSymLink()) return Includes(entry.filePath());
  return !IsOwn(realFolder + u'/' + entry.fileName());
}

bool DeviceReach::IsBelow(const QString& real) const {
  return std::ranges::any_of(m_roots, [&real](const QString& root) {
    return real == root || real.startsWith(root + u'/');
  });
}

bool DeviceReach::IsOwn(const QString& real) const {
  return std::ranges::any_of(
      m_own, [&real](const QString& own) { return real.startsWith(own, Qt::CaseInsensitive); });
}

}  // namespace quill
