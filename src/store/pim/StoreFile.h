// Tells a store file from others before any statement runs on it, so that a file of somebody else
// stays as it is.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quill {

// Both stand in the header of every store file.
inline constexpr quint32 kStoreApplicationId = 0x5175696C;  // "Quil"
inline constexpr quint32 kStoreVersion = 2;

struct StoreFileFault {
  int Code;  // an SQLite result code
  QString Reason;
};

StoreFileFault ForeignStoreFault();
StoreFileFault NewerStoreFault(qint64 version);

// What speaks against a store at this place, looked at without opening anything; nothing when there
// is a file, or none yet.
std::optional<StoreFileFault> ExaminePlace(const QString& path);

// Why the file there cannot be written, though perhaps read: it says so itself, or nothing can be
// made beside it; nothing when it can be, or when there is none.
std::optional<StoreFileFault> ExamineWriting(const QString& path);

// What SQLite keeps beside the file while somebody has it open, or after he was killed: the log of
// what was written last, and the log's index.
QString StoreLogPath(const QString& path);
QString StoreLogIndexPath(const QString& path);

inline constexpr int kStoreHeaderSize = 100;  // bytes
// What speaks against a file that begins with these bytes; nothing when it is a store, or empty and
// so can become one. A file without an application id is left to a closer look.
std::optional<StoreFileFault> ExamineHeader(const QByteArray& header);

}  // namespace quill
