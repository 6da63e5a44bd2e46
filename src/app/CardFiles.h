// The files that the words of an import name.
#pragma once

#include <QStringList>

namespace quill {

// The names of card files: "*.vcf" first.
QStringList CardFilePatterns();

// For a folder the .vcf and .vcard files in it and in the folders below, sorted by their paths
// (links to folders are not followed, hidden ones not looked into); anything else stands for
// itself.
QStringList CardFilesOf(const QString& name);

}  // namespace quill
