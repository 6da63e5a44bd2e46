// A folder's entries as a list that a pen and keys move in, with a scroll bar when it is long. It
// reads no folder: it shows what it is given and says what is wanted.
#pragma once

#include <functional>

#include "platform/FileListLayout.h"
#include "platform/ui/PaintedWindow.h"

class QScrollBar;

namespace quill {

class CFileList : public CPaintedWindow {
  Q_OBJECT
 public:
  explicit CFileList(QWidget* parent);

  // From its beginning; the entry with this name is selected, if there is one.
  void ShowListing(FolderListing listing, const QString& selected = {});
  const FolderListing& Listing() const { return m_listing; }
  // The selected entry; null when none is. Valid until the next ShowListing.
  const FolderEntry* Selected() const;
  void ClearSelection();
  QScrollBar& ScrollBar() const { return *m_scrollBar; }

  // An entry was selected; it was tapped when it was selected already; the folder above is wanted.
  std::function<void()> SelectionChanged;
  std::function<void()> OpenAsked;
  std::function<void()> UpAsked;

  void ActivateRow(int row) override;

 protected:
  void PenPress(QPoint at) override;
  void PenRelease(QPoint at) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int Count() const { return static_cast<int>(m_listing.Entries.size()); }
  int EntryAt(QPoint at) const;
  void Select(int entry);
  void ScrollTo(int top);
  void LayOut();

  FolderListing m_listing;
  FileListView m_view;
  QScrollBar* m_scrollBar;
  int m_pressedAgain = -1;  // the entry under the pen that was selected before
};

}  // namespace quill
