#include "platform/JsonRegistry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <algorithm>

#include "platform/WholeFile.h"

namespace quill {

namespace {

Q_LOGGING_CATEGORY(logRegistry, "quill.registry")

constexpr qint64 kLargestFile = 8 * 1024 * 1024;  // bytes; what is longer is not looked at

// Nothing when it is no registry.
std::optional<RegistryKeys> KeysIn(QFile& file) {
  return file.size() > kLargestFile ? std::nullopt : RegistryFromJson(file.readAll());
}

bool SetAside(const QString& file) {
  const QString aside = SetFileAside(file);
  if (!aside.isEmpty()) qCWarning(logRegistry) << "damaged settings are kept as" << aside;
  return !aside.isEmpty();
}

}  // namespace

JsonRegistry::JsonRegistry(const QString& file) : m_file(file) { Load(); }

void JsonRegistry::Load() {
  if (!QFileInfo::exists(m_file)) return;
  QFile file(m_file);
  // Anything but a plain file, such as a pipe, could keep the program waiting.
  if (!QFileInfo(m_file).isFile() || !file.open(QIODevice::ReadOnly)) {
    qCWarning(logRegistry) << "cannot read" << m_file << file.errorString();
    m_writable = false;
    return;
  }
  if (auto keys = KeysIn(file)) {
    m_keys = std::move(*keys);
    return;
  }
  file.close();
  m_writable = SetAside(m_file);
  if (!m_writable) qCWarning(logRegistry) << "damaged settings cannot be set aside:" << m_file;
}

RegistryKeyState JsonRegistry::Create(const QString& key) {
  if (m_keys.contains(RegistryFold(key))) return RegistryKeyState::Opened;
  RegistryKeys keys = m_keys;
  RegistryKeyIn(keys, key);
  return Replace(std::move(keys)) ? RegistryKeyState::Created : RegistryKeyState::Failed;
}

bool JsonRegistry::Put(const QString& key, const std::vector<RegistryEntry>& values) {
  RegistryKeys keys = m_keys;
  RegistryKey& changed = RegistryKeyIn(keys, key);
  for (const RegistryEntry& entry : values) RegistryValueIn(changed, entry.Name) = entry.Value;
  return Replace(std::move(keys));
}

bool JsonRegistry::Replace(RegistryKeys keys) {
  if (!m_writable) {
    qCWarning(logRegistry) << "settings are not written over" << m_file;
    return false;
  }
  const QByteArray json = JsonFromRegistry(keys);
  if (!RegistryFromJson(json)) {
    qCWarning(logRegistry) << "settings that could not be read again are not written:" << m_file;
    return false;
  }
  QDir().mkpath(QFileInfo(m_file).absolutePath());  // a failure shows when the file is opened
  const QString problem = WriteWholeFile(m_file, json);
  if (!problem.isEmpty()) {
    qCWarning(logRegistry) << "cannot write" << m_file << problem;
    return false;
  }
  m_keys = std::move(keys);
  return true;
}

std::optional<quint32> JsonRegistry::QueryNumber(const QString& key, const QString& name) const {
  const RegistryValue* value = Find(key, name);
  const auto* number = value ? std::get_if<quint32>(value) : nullptr;
  return number ? std::optional(*number) : std::nullopt;
}

RegistryTextRead JsonRegistry::QueryText(const QString& key, const QString& name,
                                         std::span<char> buffer) const {
  const RegistryValue* value = Find(key, name);
  const auto* block = value ? std::get_if<QByteArray>(value) : nullptr;
  if (!block) return {};
  const int size = static_cast<int>(block->size());
  if (static_cast<std::size_t>(size) > buffer.size()) return {RegistryStatus::MoreData, size};
  std::ranges::copy(*block, buffer.begin());
  return {RegistryStatus::Done, size};
}

const RegistryValue* JsonRegistry::Find(const QString& key, const QString& name) const {
  const auto found = m_keys.find(RegistryFold(key));
  if (found == m_keys.end()) return nullptr;
  const auto& values = found->second.Values;
  const auto value = values.find(RegistryFold(name));
  return value == values.end() ? nullptr : &value->second.Content;
}

}  // namespace quill
