// The device's files on a desktop: plain files below a few folders, the roots.
//
// A name is looked for as it is written, then without case. What is new must have a name that the
// device allows (IsDeviceName); files that are there already are taken whatever their names.
// Nothing but what DeviceReach includes is listed, read, made or changed, whatever a path says.
#pragma once

#include "platform/DeviceFiles.h"
#include "platform/DeviceRoots.h"

namespace quill {

class DesktopDeviceFiles : public DeviceFiles {
 public:
  explicit DesktopDeviceFiles(DeviceRoots roots);

  int CreateFolder(const QString& path) override;
  bool Exists(const QString& path) const override;
  QStringList Find(const QString& pattern) const override;
  std::optional<QByteArray> ReadWhole(const QString& path) const override;
  bool WriteWhole(const QString& path, const QByteArray& content) override;
  bool Remove(const QString& path) override;
  bool Move(const QString& from, const QString& to) override;
  bool Copy(const QString& from, const QString& to) override;

  // The desktop's path of a device path, whether or not a file is there; empty when it is not
  // reachable.
  QString FileAt(const QString& path) const;

 private:
  QString RootOf(const QStringList& parts) const;
  QString Locate(const QStringList& parts) const;
  // As FileAt, for what may be made: its root is there then, as on a device, and its name is
  // allowed.
  QString PlaceFor(const QString& path) const;
  // The same for a file, whose path does not end as a folder's may.
  QString FilePlaceFor(const QString& path) const;

  DeviceRoots m_roots;
};

}  // namespace quill
