// Files as the device has them: paths such as "\My Documents\Fennick\Kim.pwi", names matched
// without case, doubled separators taken as one. A path without a separator before it begins at the
// root too.
//
// Nothing throws: each answer says whether it was done, and the log says why not.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace quill {

// The device's error codes, as far as a caller can meet them.
inline constexpr int kDevicePathNotFound = 3;
inline constexpr int kDeviceAccessDenied = 5;
inline constexpr int kDeviceGeneralFailure = 31;
inline constexpr int kDeviceDiskFull = 112;
inline constexpr int kDeviceInvalidName = 123;
inline constexpr int kDeviceAlreadyExists = 183;

class DeviceFiles {
 public:
  virtual ~DeviceFiles() = default;

  // Makes the last folder of the path; those above it must be there. 0 or the error code.
  virtual int CreateFolder(const QString& path) = 0;
  virtual bool Exists(const QString& path) const = 0;

  // The names, without folder and in no order, of the files whose names match the path's last part,
  // in which "*" stands for any characters and "?" for one.
  virtual QStringList Find(const QString& pattern) const = 0;

  virtual std::optional<QByteArray> ReadWhole(const QString& path) const = 0;
  // Replaces the file's content or makes the file, durably: at any moment the file is there as a
  // whole, with the old content or the new one.
  virtual bool WriteWhole(const QString& path, const QByteArray& content) = 0;
  virtual bool Remove(const QString& path) = 0;
  // Never takes the place of another file.
  virtual bool Move(const QString& from, const QString& to) = 0;
  // Takes the place of a file that is there, as WriteWhole does.
  virtual bool Copy(const QString& from, const QString& to) = 0;
};

}  // namespace quill
