// A folder's entries as painted rows, in logical pixels of the list.
#pragma once

#include <QSize>

#include <vector>

#include "platform/FolderListing.h"
#include "platform/PaintedRow.h"
#include "platform/TextFitting.h"

namespace quill {

inline constexpr int kFileRowHeight = 18;
inline constexpr int kFileNoteKey = -1;

// What of the list is seen. Entries count from 0.
struct FileListView {
  QSize Size = {};
  int Top = 0;       // the first entry shown
  int Current = -1;  // the entry that is selected, -1 when none
};

// How many whole rows there is room for; at least one.
int FileRowsPerPage(QSize size);
// The greatest Top that still fills the list.
int GreatestFileTop(const FileListView& view, int count);
// The Top nearest to the present one that shows the current entry and does not leave room empty.
int FileTopToShow(const FileListView& view, int count);

// One row for each entry shown, its key the entry's position. A folder that cannot be read or holds
// nothing to show has a last row that says so, with kFileNoteKey.
std::vector<PaintedRow> LayOutFileList(const FolderListing& listing, const FileListView& view,
                                       const TextWidth& width);

}  // namespace quill
