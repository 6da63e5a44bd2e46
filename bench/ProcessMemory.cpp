#include "ProcessMemory.h"

#include <QFile>

namespace quill::bench {

QString MemoryLine(const QString& file, const QByteArray& name) {
  QFile account(file);
  if (!account.open(QIODevice::ReadOnly)) return QStringLiteral("unknown");
  for (const QByteArray& line : account.readAll().split('\n'))
    if (line.startsWith(name + ':'))
      return QString::fromLatin1(line.mid(name.size() + 1)).trimmed();
  return QStringLiteral("unknown");
}

double ResidentMegabytes() {
  const QString line = MemoryLine(QStringLiteral("/proc/self/status"), "VmRSS");
  return line.section(u' ', 0, 0).toDouble() / 1024;
}

}  // namespace quill::bench
