#include "platform/DesktopDeviceFiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <cerrno>
#include <utility>

#include <sys/stat.h>

#include "platform/DevicePath.h"
#include "platform/WholeFile.h"

namespace quill {

namespace {

Q_LOGGING_CATEGORY(logFiles, "quill.files")

constexpr mode_t kNewFolderMode = S_IRWXU | S_IRWXG | S_IRWXO;  // less the user's mask

bool IsSameName(QStringView a, QStringView b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

bool IsBelowMyDocuments(const QStringList& parts) {
  return !parts.isEmpty() && IsSameName(parts.first(), kMyDocuments);
}

// The entry of the folder with this name: as it is written, else the first without case, else the
// one that would be made.
QString FollowCase(const QString& folder, const QString& name) {
  const QString exact = folder + u'/' + name;
  if (QFileInfo::exists(exact)) return exact;
  QString found;
  QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  while (entries.hasNext()) {
    entries.next();
    const QString entry = entries.fileName();
    if (IsSameName(entry, name) && (found.isEmpty() || entry < found)) found = entry;
  }
  return found.isEmpty() ? exact : folder + u'/' + found;
}

int DeviceCode(int error) {
  switch (error) {
    case EEXIST:
      return kDeviceAlreadyExists;
    case ENOENT:
    case ENOTDIR:
      return kDevicePathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
      return kDeviceAccessDenied;
    case ENOSPC:
    case EDQUOT:
      return kDeviceDiskFull;
    case ENAMETOOLONG:
      return kDeviceInvalidName;
    default:
      return kDeviceGeneralFailure;
  }
}

// Says on the log what was not done and why; the answer is always false.
bool Refuse(const char* operation, const QString& path, const QString& reason) {
  qCWarning(logFiles).noquote() << operation << path << "failed:" << reason;
  return false;
}

QString NotReachable() { return QStringLiteral("no such place, or the name is not allowed"); }

}  // namespace

DesktopDeviceFiles::DesktopDeviceFiles(DeviceRoots roots) : m_roots(std::move(roots)) {}

QString DesktopDeviceFiles::RootOf(const QStringList& parts) const {
  return IsBelowMyDocuments(parts) ? m_roots.MyDocuments : m_roots.Device;
}

QString DesktopDeviceFiles::Locate(const QStringList& parts) const {
  QString file = RootOf(parts);
  for (const QString& part : parts.mid(IsBelowMyDocuments(parts) ? 1 : 0))
    file = FollowCase(file, part);
  return DeviceReach(m_roots).Includes(file) ? file : QString();
}

QString DesktopDeviceFiles::FileAt(const QString& path) const {
  const auto parts = DevicePathParts(path);
  return parts ? Locate(*parts) : QString();
}

QString DesktopDeviceFiles::PlaceFor(const QString& path) const {
  const auto parts = DevicePathParts(path);
  if (!parts || parts->isEmpty()) return {};
  QDir().mkpath(RootOf(*parts));  // a failure shows when something is made in it
  const QString file = Locate(*parts);
  return IsDeviceName(parts->last()) || QFileInfo::exists(file) ? file : QString();
}

QString DesktopDeviceFiles::FilePlaceFor(const QString& path) const {
  return path.endsWith(u'\\') ? QString() : PlaceFor(path);
}

int DesktopDeviceFiles::CreateFolder(const QString& path) {
  const QString folder = PlaceFor(path);
  if (folder.isEmpty()) {
    Refuse("making folder", path, NotReachable());
    return kDeviceInvalidName;
  }
  if (::mkdir(QFile::encodeName(folder).constData(), kNewFolderMode) == 0) return 0;
  const int error = errno;
  if (error != EEXIST) Refuse("making folder", path, qt_error_string(error));
  return DeviceCode(error);
}

bool DesktopDeviceFiles::Exists(const QString& path) const {
  const QString file = FileAt(path);
  return !file.isEmpty() && QFileInfo::exists(file);
}

QStringList DesktopDeviceFiles::Find(const QString& pattern) const {
  const qsizetype folderEnd = pattern.lastIndexOf(u'\\') + 1;
  const QString folder = FileAt(pattern.left(folderEnd));
  if (folder.isEmpty()) Refuse("listing", pattern, NotReachable());
  if (!QFileInfo(folder).isDir()) return {};  // a folder that is not there is an empty one
  const QStringView names = QStringView(pattern).mid(folderEnd);
  const QString real = RealPath(folder);
  const DeviceReach reach(m_roots);
  QStringList found;
  QDirIterator entries(folder, QDir::Files | QDir::Hidden);
  while (entries.hasNext()) {
    entries.next();
    const QString name = entries.fileName();
    // A name with a separator in it could not be reached by a path.
    if (!MatchesPattern(name, names) || name.contains(u'\\')) continue;
    if (reach.IncludesIn(real, entries.fileInfo())) found.append(name);
  }
  return found;
}

std::optional<QByteArray> DesktopDeviceFiles::ReadWhole(const QString& path) const {
  QFile file(FileAt(path));
  // Anything but a plain file, such as a pipe, could keep the program waiting.
  const bool opened = QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly);
  QByteArray content = opened ? file.readAll() : QByteArray();
  if (opened && file.error() == QFileDevice::NoError) return content;
  Refuse("reading", path, opened ? file.errorString() : QStringLiteral("no file to read"));
  return std::nullopt;
}

bool DesktopDeviceFiles::WriteWhole(const QString& path, const QByteArray& content) {
  const QString place = RealPath(FilePlaceFor(path));
  const bool isTaken = QFileInfo::exists(place) && !QFileInfo(place).isFile();
  if (place.isEmpty() || isTaken) return Refuse("writing", path, NotReachable());
  const QString problem = WriteWholeFile(place, content);
  return problem.isEmpty() || Refuse("writing", path, problem);
}

bool DesktopDeviceFiles::Remove(const QString& path) {
  QFile file(FileAt(path));
  if (QFileInfo(file).isFile() && file.remove()) return true;
  return Refuse("removing", path, file.errorString());
}

bool DesktopDeviceFiles::Move(const QString& from, const QString& to) {
  const QString source = FileAt(from);
  QString target = FilePlaceFor(to);
  if (target.isEmpty() || !QFileInfo(source).isFile())
    return Refuse("moving", from + QStringLiteral(" to ") + to, NotReachable());
  // The same name in other letters: only its spelling changes.
  if (target == source) target = QFileInfo(source).path() + u'/' + DevicePathParts(to)->last();
  QFile file(source);
  if (file.rename(target)) return true;
  return Refuse("moving", from + QStringLiteral(" to ") + to, file.errorString());
}

bool DesktopDeviceFiles::Copy(const QString& from, const QString& to) {
  if (FileAt(from) == FileAt(to))
    return Refuse("copying", from, QStringLiteral("it would be copied to itself"));
  const auto content = ReadWhole(from);
  return content && WriteWhole(to, *content);
}

}  // namespace quill
