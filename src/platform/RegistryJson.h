// The registry's content as one JSON text.
//
//   { "\\Software\\Fennick\\Quill": { "ABC": 1, "AreaCodeValue": { "text": "02", "bytes": 520 } } }
//
// A text's "bytes" is its block's size, the rest of it zero; a block that this form cannot hold
// stands as { "base64": "..." }.
#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>

#include "platform/RegistryStore.h"

namespace quill {

// Spelling is the name as it was first put; the maps go by RegistryFold of it.
struct RegistryNamedValue {
  QString Spelling;
  RegistryValue Content;
};

struct RegistryKey {
  QString Spelling;
  std::map<QString, RegistryNamedValue> Values;
};

using RegistryKeys = std::map<QString, RegistryKey>;

QString RegistryFold(const QString& name);

// Each makes what is missing.
RegistryKey& RegistryKeyIn(RegistryKeys& keys, const QString& key);
RegistryValue& RegistryValueIn(RegistryKey& key, const QString& name);

// Nothing when the text is not such JSON in every part, or asks for more than a mebibyte of
// blocks.
std::optional<RegistryKeys> RegistryFromJson(const QByteArray& json);
QByteArray JsonFromRegistry(const RegistryKeys& keys);

}  // namespace quill
