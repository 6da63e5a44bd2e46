// What a folder of the desktop holds for somebody who looks for a file: the user's own files,
// outside of the device's.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace quill {

enum class FolderEntryKind { Parent, Folder, File };

struct FolderEntry {
  FolderEntryKind Kind = FolderEntryKind::File;
  QString Name;  // ".." for the folder above

  bool operator==(const FolderEntry&) const = default;
};

struct FolderListing {
  QString Folder;  // absolute
  // The folder above, unless there is none, then folders, then files, both by name without case.
  std::vector<FolderEntry> Entries = {};
  bool IsReadable = true;  // false: there is at most the folder above
};

// Files are those that one of the patterns ("*.vcf") matches without case. What is hidden is left
// out.
FolderListing ListFolder(const QString& folder, const QStringList& patterns);

// The absolute path of an entry.
QString EntryPath(const FolderListing& listing, const FolderEntry& entry);

// The position of the entry with this name, -1 when there is none.
int FindEntry(const FolderListing& listing, const QString& name);

}  // namespace quill
