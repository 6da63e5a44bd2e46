#include "store/pim/StoreFile.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace quill {

namespace {

// The header of an SQLite file: sizes and places in bytes, numbers big-endian.
constexpr qsizetype kHeaderSize = 100;
constexpr QByteArrayView kMagic("SQLite format 3\0", 16);
constexpr qsizetype kUserVersionAt = 60;
constexpr qsizetype kApplicationIdAt = 68;

quint32 NumberAt(const QByteArray& header, qsizetype place) {
  return qFromBigEndian<quint32>(header.constData() + place);
}

std::optional<StoreFileFault> ExamineHeader(const QByteArray& header) {
  if (header.size() < kHeaderSize || !header.startsWith(kMagic)) {
    return StoreFileFault{SQLITE_NOTADB, QStringLiteral("the file is damaged or not a store")};
  }
  const quint32 applicationId = NumberAt(header, kApplicationIdAt);
  if (applicationId == 0) return std::nullopt;
  if (applicationId != kStoreApplicationId) return ForeignStoreFault();
  const quint32 version = NumberAt(header, kUserVersionAt);
  return version > kStoreVersion ? std::optional(NewerStoreFault(version)) : std::nullopt;
}

}  // namespace

StoreFileFault ForeignStoreFault() {
  return {SQLITE_NOTADB, QStringLiteral("the file belongs to another program")};
}

StoreFileFault NewerStoreFault(qint64 version) {
  return {SQLITE_SCHEMA, QStringLiteral("the file has version %1, this program knows %2")
                             .arg(version)
                             .arg(kStoreVersion)};
}

std::optional<StoreFileFault> ExamineStoreFile(const QString& path) {
  const QFileInfo info(path);
  if (info.exists() && !info.isFile()) {
    return StoreFileFault{SQLITE_CANTOPEN, QStringLiteral("not a file")};
  }
  if (info.size() == 0) return std::nullopt;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return StoreFileFault{SQLITE_CANTOPEN, file.errorString()};
  }
  return ExamineHeader(file.read(kHeaderSize));
}

}  // namespace quill
