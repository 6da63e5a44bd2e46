// The device's files, passed on to others except for the calls that are made to fail.
#pragma once

#include "driver/FaultTable.h"
#include "platform/DeviceFiles.h"

namespace quill::driver {

class FaultyFiles : public DeviceFiles {
 public:
  // Owns neither; both live longer.
  FaultyFiles(DeviceFiles& inner, const FaultTable& faults) : m_inner(inner), m_faults(faults) {}

  int CreateFolder(const QString& path) override;
  bool Exists(const QString& path) const override { return m_inner.Exists(path); }
  QStringList Find(const QString& pattern) const override { return m_inner.Find(pattern); }
  std::optional<QByteArray> ReadWhole(const QString& path) const override {
    return m_inner.ReadWhole(path);
  }
  bool WriteWhole(const QString& path, const QByteArray& content) override;
  bool Remove(const QString& path) override { return m_inner.Remove(path); }
  bool Move(const QString& from, const QString& to) override { return m_inner.Move(from, to); }
  bool Copy(const QString& from, const QString& to) override { return m_inner.Copy(from, to); }

 private:
  DeviceFiles& m_inner;
  const FaultTable& m_faults;
};

}  // namespace quill::driver
