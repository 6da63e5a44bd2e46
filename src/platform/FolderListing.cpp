#include "platform/FolderListing.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace quill {

namespace {

void Append(FolderListing& listing, FolderEntryKind kind, const QStringList& names) {
  for (const QString& name : names) listing.Entries.push_back({kind, name});
}

}  // namespace

FolderListing ListFolder(const QString& folder, const QStringList& patterns) {
  const QDir directory(QDir::cleanPath(QFileInfo(folder).absoluteFilePath()));
  const QFileInfo info(directory.path());
  FolderListing listing{.Folder = directory.path()};
  if (!directory.isRoot()) Append(listing, FolderEntryKind::Parent, {QStringLiteral("..")});
  listing.IsReadable = info.isDir() && info.isReadable() && info.isExecutable();
  if (!listing.IsReadable) return listing;
  constexpr auto kOrder = QDir::Name | QDir::IgnoreCase;
  Append(listing, FolderEntryKind::Folder,
         directory.entryList(QDir::Dirs | QDir::NoDotAndDotDot, kOrder));
  Append(listing, FolderEntryKind::File, directory.entryList(patterns, QDir::Files, kOrder));
  return listing;
}

QString EntryPath(const FolderListing& listing, const FolderEntry& entry) {
  return QDir::cleanPath(QDir(listing.Folder).filePath(entry.Name));
}

int FindEntry(const FolderListing& listing, const QString& name) {
  const auto found = std::ranges::find(listing.Entries, name, &FolderEntry::Name);
  return found == listing.Entries.end() ? -1 : static_cast<int>(found - listing.Entries.begin());
}

}  // namespace quill
