#include "platform/FileListLayout.h"

#include <algorithm>

#include "resources/FilePictures.h"

namespace quill {

namespace {

constexpr int kMargin = 4;
constexpr int kPictureSize = 14;
constexpr int kTextLeft = kMargin + kPictureSize + 6;
constexpr Rgb kSelection = 0xD6EDBA;
constexpr Rgb kPictureColor = 0x2F5568;
constexpr Rgb kNoteColor = 0x666666;

int CountOf(const FolderListing& listing) { return static_cast<int>(listing.Entries.size()); }

QRect RowArea(const FileListView& view, int row) {
  return {0, row * kFileRowHeight, view.Size.width(), kFileRowHeight};
}

QString SpokenName(const FolderEntry& entry) {
  switch (entry.Kind) {
    case FolderEntryKind::Parent:
      return QStringLiteral("Folder above");
    case FolderEntryKind::Folder:
      return QStringLiteral("Folder ") + entry.Name;
    case FolderEntryKind::File:
      break;
  }
  return entry.Name;
}

// ShortenText goes beyond its limit by a letter and the dots.
QString FittedName(const QString& name, int room, const TextWidth& width) {
  return width(name) <= room ? name : ShortenText(name, room - width(u"한..."), width);
}

PaintedRow EntryRow(const FolderEntry& entry, int key, QRect area, const TextWidth& width) {
  const bool isFile = entry.Kind == FolderEntryKind::File;
  const QRect text = area.adjusted(kTextLeft, 0, -kMargin, 0);
  const int pictureTop = area.top() + (area.height() - kPictureSize) / 2;
  PaintedRow row{.Rectangle = area,
                 .Key = key,
                 .SpokenName = SpokenName(entry),
                 .State = PaintedStateFlag::Selectable};
  row.Items = {{.Rectangle = {kMargin, pictureTop, kPictureSize, kPictureSize},
                .Color = kPictureColor,
                .Picture = isFile ? &resources::kSheetPicture : &resources::kFolderPicture},
               {.Rectangle = text, .Text = FittedName(entry.Name, text.width(), width)}};
  return row;
}

void Select(PaintedRow& row) {
  row.State |= PaintedStateFlag::Selected;
  row.State |= PaintedStateFlag::Current;
  row.Items.insert(row.Items.begin(), {.Rectangle = row.Rectangle, .Fill = kSelection});
}

QString NoteOf(const FolderListing& listing) {
  if (!listing.IsReadable) return QStringLiteral("This folder cannot be read.");
  const bool isEmpty = std::ranges::all_of(listing.Entries, [](const FolderEntry& entry) {
    return entry.Kind == FolderEntryKind::Parent;
  });
  return isEmpty ? QStringLiteral("There is nothing to choose here.") : QString();
}

}  // namespace

int FileRowsPerPage(QSize size) { return std::max(1, size.height() / kFileRowHeight); }

int GreatestFileTop(const FileListView& view, int count) {
  return std::max(0, count - FileRowsPerPage(view.Size));
}

int FileTopToShow(const FileListView& view, int count) {
  const int rows = FileRowsPerPage(view.Size);
  int top = view.Top;
  if (view.Current >= 0) top = std::clamp(top, view.Current - rows + 1, view.Current);
  return std::clamp(top, 0, GreatestFileTop(view, count));
}

std::vector<PaintedRow> LayOutFileList(const FolderListing& listing, const FileListView& view,
                                       const TextWidth& width) {
  std::vector<PaintedRow> rows;
  const int end = std::min(CountOf(listing), view.Top + FileRowsPerPage(view.Size));
  for (int i = view.Top; i < end; ++i) {
    rows.push_back(EntryRow(listing.Entries[static_cast<std::size_t>(i)], i,
                            RowArea(view, i - view.Top), width));
    if (i == view.Current) Select(rows.back());
  }
  const QString note = NoteOf(listing);
  if (note.isEmpty()) return rows;
  const QRect area = RowArea(view, static_cast<int>(rows.size()));
  rows.push_back(
      {.Rectangle = area,
       .Key = kFileNoteKey,
       .SpokenName = note,
       .Role = PaintedRole::Text,
       .Items = {
           {.Rectangle = area.adjusted(kTextLeft, 0, 0, 0), .Text = note, .Color = kNoteColor}}});
  return rows;
}

}  // namespace quill
