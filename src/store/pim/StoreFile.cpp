#include "store/pim/StoreFile.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <fcntl.h>
#include <unistd.h>

namespace quill {

namespace {

// The header of an SQLite file: places in bytes, numbers big-endian.
constexpr QByteArrayView kMagic("SQLite format 3\0", 16);
constexpr qsizetype kUserVersionAt = 60;
constexpr qsizetype kApplicationIdAt = 68;

bool MayWrite(const QString& path) {
  return ::faccessat(AT_FDCWD, QFile::encodeName(path).constData(), W_OK, AT_EACCESS) == 0;
}

quint32 NumberAt(const QByteArray& header, qsizetype place) {
  return qFromBigEndian<quint32>(header.constData() + place);
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

std::optional<StoreFileFault> ExaminePlace(const QString& path) {
  const QFileInfo info(path);
  if (!info.exists() || info.isFile()) return std::nullopt;
  return StoreFileFault{SQLITE_CANTOPEN, QStringLiteral("not a file")};
}

std::optional<StoreFileFault> ExamineWriting(const QString& path) {
  if (!QFileInfo::exists(path)) return std::nullopt;
  if (!MayWrite(path))
    return StoreFileFault{SQLITE_READONLY, QStringLiteral("the file can only be read")};
  if (MayWrite(QFileInfo(path).path())) return std::nullopt;
  if (MayWrite(StoreLogPath(path)) && MayWrite(StoreLogIndexPath(path))) return std::nullopt;
  return StoreFileFault{SQLITE_READONLY,
                        QStringLiteral("the file can only be read: its folder cannot be written")};
}

QString StoreLogPath(const QString& path) { return path + QStringLiteral("-wal"); }

QString StoreLogIndexPath(const QString& path) { return path + QStringLiteral("-shm"); }

std::optional<StoreFileFault> ExamineHeader(const QByteArray& header) {
  if (header.isEmpty()) return std::nullopt;
  if (header.size() < kStoreHeaderSize || !header.startsWith(kMagic)) {
    return StoreFileFault{SQLITE_NOTADB, QStringLiteral("the file is damaged or not a store")};
  }
  const quint32 applicationId = NumberAt(header, kApplicationIdAt);
  if (applicationId == 0) return std::nullopt;
  if (applicationId != kStoreApplicationId) return ForeignStoreFault();
  const quint32 version = NumberAt(header, kUserVersionAt);
  return version > kStoreVersion ? std::optional(NewerStoreFault(version)) : std::nullopt;
}

}  // namespace quill
