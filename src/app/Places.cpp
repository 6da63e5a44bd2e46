#include "app/Places.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>

#include <sys/stat.h>

#include "app/InstanceLock.h"
#include "app/RequestChannel.h"
#include "platform/DesktopRecoveryFiles.h"

namespace quill {
namespace {

QString AbsoluteOr(const QProcessEnvironment& environment, const QString& variable,
                   const QString& fallback) {
  const QString value = environment.value(variable);
  return QDir::isAbsolutePath(value) ? QDir::cleanPath(value) : fallback;
}

QString UserHome(const QProcessEnvironment& environment) {
  return AbsoluteOr(environment, QStringLiteral("HOME"), QDir::homePath());
}

QString BaseFolder(const QProcessEnvironment& environment, const QString& variable,
                   const QString& belowHome) {
  return AbsoluteOr(environment, variable, UserHome(environment) + belowHome);
}

QString DataFolder(const QProcessEnvironment& environment) {
  return BaseFolder(environment, QStringLiteral("XDG_DATA_HOME"), QStringLiteral("/.local/share")) +
         QStringLiteral("/quill");
}

QString RuntimeFolderOf(const QProcessEnvironment& environment) {
  return AbsoluteOr(environment, QStringLiteral("XDG_RUNTIME_DIR"), QString());
}

QString MakeFolder(const QString& folder) {
  if (QFileInfo(folder).isDir()) return {};
  const QString above = QFileInfo(folder).path();
  if (above != folder) {
    const QString problem = MakeFolder(above);
    if (!problem.isEmpty()) return problem;
  }
  if (::mkdir(QFile::encodeName(folder).constData(), S_IRWXU) == 0) return {};
  const int error = errno;
  // Another program may have made it in between.
  if (error == EEXIST && QFileInfo(folder).isDir()) return {};
  return QStringLiteral("cannot make the folder %1: %2")
      .arg(QDir::toNativeSeparators(folder), qt_error_string(error));
}

}  // namespace

Places HomePlaces(const QString& folder, const QProcessEnvironment& environment) {
  const QString home = QDir::cleanPath(QDir::current().absoluteFilePath(folder));
  const QDir below(home);
  Places places;
  places.StoreFile = below.filePath(QStringLiteral("store.db"));
  places.SettingsFile = below.filePath(QStringLiteral("settings.json"));
  places.StateFolder = home;
  places.DocumentsFolder = below.filePath(QStringLiteral("My Documents"));
  places.DeviceFolder = home;
  places.HomeFolder = home;
  places.RuntimeFolder = RuntimeFolderOf(environment);
  return places;
}

Places UserPlaces(const QProcessEnvironment& environment) {
  const QString config =
      BaseFolder(environment, QStringLiteral("XDG_CONFIG_HOME"), QStringLiteral("/.config"));
  const QString state =
      BaseFolder(environment, QStringLiteral("XDG_STATE_HOME"), QStringLiteral("/.local/state"));
  Places places;
  places.StoreFile = DataFolder(environment) + QStringLiteral("/store.db");
  places.SettingsFile = config + QStringLiteral("/quill/settings.json");
  places.StateFolder = state + QStringLiteral("/quill");
  places.DocumentsFolder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  places.DeviceFolder = DataFolder(environment) + QStringLiteral("/device");
  places.HomeFolder = UserHome(environment);
  places.RuntimeFolder = RuntimeFolderOf(environment);
  return places;
}

QString SampleHome(const QProcessEnvironment& environment) {
  return DataFolder(environment) + QStringLiteral("/demo");
}

DeviceRoots DeviceRootsOf(const Places& places) {
  DeviceRoots roots{
      .Device = places.DeviceFolder,
      .MyDocuments = places.DocumentsFolder,
      .Own = {places.StoreFile, places.SettingsFile, InstanceLockFile(places.StateFolder),
              places.StateFolder + u'/' + kRecoveryPrefix.toString()}};
  for (const QString& folder : {places.StateFolder, places.RuntimeFolder})
    if (!folder.isEmpty()) roots.Own.append(folder + u'/' + RequestSocketName(places));
  return roots;
}

QString MakeFolders(const Places& places) {
  for (const QString& folder : {QFileInfo(places.StoreFile).path(),
                                QFileInfo(places.SettingsFile).path(), places.StateFolder}) {
    const QString problem = MakeFolder(folder);
    if (!problem.isEmpty()) return problem;
  }
  return {};
}

}  // namespace quill
