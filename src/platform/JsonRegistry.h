// The registry on a desktop: one JSON file (RegistryJson.h), written anew as a whole each time
// values are put, also when they are those that were there.
//
// A file that cannot be understood, or is far too long, is renamed to NAME.bad, NAME.bad-2, ... and
// the registry begins empty. A file that can be neither read nor renamed stays, and every change
// fails.
#pragma once

#include "platform/RegistryJson.h"
#include "platform/RegistryStore.h"

namespace quill {

class JsonRegistry : public RegistryStore {
 public:
  explicit JsonRegistry(const QString& file);

  RegistryKeyState Create(const QString& key) override;
  bool Put(const QString& key, const std::vector<RegistryEntry>& values) override;
  std::optional<quint32> QueryNumber(const QString& key, const QString& name) const override;
  RegistryTextRead QueryText(const QString& key, const QString& name,
                             std::span<char> buffer) const override;

 private:
  void Load();
  // Stores these as the file's and the registry's content; on failure both stay as they were.
  bool Replace(RegistryKeys keys);
  const RegistryValue* Find(const QString& key, const QString& name) const;

  QString m_file;
  RegistryKeys m_keys;
  bool m_writable = true;
};

}  // namespace quill
