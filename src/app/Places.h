// Where a home keeps what it keeps: plain absolute paths, worked out once at the start.
//
// A home is either a folder of its own, with everything in it, or the user's own places as the
// desktop names them. Nothing is made on disk before MakeFolders.
#pragma once

#include <QProcessEnvironment>
#include <QString>

#include "platform/DesktopDeviceFiles.h"

namespace quill {

struct Places {
  QString StoreFile;
  QString SettingsFile;
  QString StateFolder;      // instance lock, recovery files, logs
  QString DocumentsFolder;  // the device's "\My Documents"; memos lie below it, in Fennick/
  QString DeviceFolder;     // the device's "\" with all its other folders
  QString HomeFolder;       // where the user begins to look for files of their own
  QString RuntimeFolder;    // of this login, for sockets; empty when the desktop names none

  bool operator==(const Places&) const = default;
};

// Everything in one folder; a relative one counts from the current folder.
Places HomePlaces(const QString& folder, const QProcessEnvironment& environment);

// The user's own places. As the base directory rules say, a variable that is empty or holds a
// relative path counts as unset.
Places UserPlaces(const QProcessEnvironment& environment);

// The folder of the sample people's home.
QString SampleHome(const QProcessEnvironment& environment);

// Where the device's files lie. The home's own files are not among them.
DeviceRoots DeviceRootsOf(const Places& places);

// Makes the folders of store, settings and state that do not exist, for this user only; existing
// ones keep their permissions. Returns why it could not, as text for the user, or an empty string.
QString MakeFolders(const Places& places);

}  // namespace quill
