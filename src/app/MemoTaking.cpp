#include "app/MemoTaking.h"

#include <QFile>
#include <QFileInfo>

#include <optional>

#include "memo/MemoFiles.h"
#include "memo/MemoFolder.h"
#include "platform/DeviceFiles.h"
#include "platform/Services.h"

namespace quill {
namespace {

constexpr QStringView kExtension = u".pwi";

// Anything but a plain file, such as a pipe, could keep the program waiting.
std::optional<QByteArray> ReadDesktopFile(const QString& name) {
  QFile file(name);
  const bool isOpen = QFileInfo(name).isFile() && file.open(QIODevice::ReadOnly);
  return isOpen ? std::optional(file.readAll()) : std::nullopt;
}

// "A.pwi", "A (2).pwi", "A (3).pwi", ...: the first that is free or holds this already.
QString PlaceFor(const QByteArray& content, const QString& name, const MemoState& memo) {
  const QString stem = name.chopped(kExtension.size());
  const QString extension = name.last(kExtension.size());
  QString path = MemoPath(memo, name);
  for (int number = 2; g_services.Files->Exists(path); ++number) {
    if (g_services.Files->ReadWhole(path) == content) break;
    path = MemoPath(memo, QStringLiteral("%1 (%2)%3").arg(stem).arg(number).arg(extension));
  }
  return path;
}

}  // namespace

bool IsMemoFile(const QString& file) { return file.endsWith(kExtension, Qt::CaseInsensitive); }

QString TakeMemoFile(const QString& file, const DeviceRoots& roots, const MemoState& memo) {
  const QString onDevice = DevicePathOf(roots, file);
  if (!onDevice.isEmpty()) return onDevice;
  const auto content = ReadDesktopFile(file);
  if (!content) return {};
  const QString path = PlaceFor(*content, QFileInfo(file).fileName(), memo);
  const bool isThere = g_services.Files->Exists(path);
  return isThere || WriteMemo(memo, path, *content) ? path : QString();
}

}  // namespace quill
