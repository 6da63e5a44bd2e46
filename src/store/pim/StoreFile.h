// Looks at a store file before SQLite does, so that a file of somebody else is not even opened.
#pragma once

#include <QString>

#include <optional>

namespace quill {

// Both stand in the header of every store file.
inline constexpr quint32 kStoreApplicationId = 0x5175696C;  // "Quil"
inline constexpr quint32 kStoreVersion = 1;

struct StoreFileFault {
  int Code;  // an SQLite result code
  QString Reason;
};

StoreFileFault ForeignStoreFault();
StoreFileFault NewerStoreFault(qint64 version);

// What speaks against using this file; nothing when it is a store, or absent or empty and so can
// become one. A file without an application id is left to a closer look.
std::optional<StoreFileFault> ExamineStoreFile(const QString& path);

}  // namespace quill
