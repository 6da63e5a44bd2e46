#include "app/CardFiles.h"

#include <QDirIterator>
#include <QFileInfo>

namespace quill {

QStringList CardFilePatterns() { return {QStringLiteral("*.vcf"), QStringLiteral("*.vcard")}; }

QStringList CardFilesOf(const QString& name) {
  if (!QFileInfo(name).isDir()) return {name};
  QStringList files;
  // Patterns are compared without case.
  QDirIterator found(name, CardFilePatterns(), QDir::Files, QDirIterator::Subdirectories);
  while (found.hasNext()) files.append(found.next());
  files.sort();
  return files;
}

}  // namespace quill
