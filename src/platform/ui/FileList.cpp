#include "platform/ui/FileList.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

#include "platform/ui/RowPainter.h"

namespace quill {

namespace {

// Where a key leads in a list of so many entries; nothing for other keys.
std::optional<int> EntryOfKey(int key, const FileListView& view, int count) {
  const int page = FileRowsPerPage(view.Size);
  switch (key) {
    case Qt::Key_Up:
      return view.Current - 1;
    case Qt::Key_Down:
      return view.Current + 1;
    case Qt::Key_PageUp:
      return view.Current - page;
    case Qt::Key_PageDown:
      return view.Current + page;
    case Qt::Key_Home:
      return 0;
    case Qt::Key_End:
      return count - 1;
    default:
      return std::nullopt;
  }
}

}  // namespace

CFileList::CFileList(QWidget* parent)
    : CPaintedWindow(parent, QAccessible::List), m_scrollBar(new QScrollBar(Qt::Vertical, this)) {
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(QStringLiteral("Files"));
  m_scrollBar->setAccessibleName(QStringLiteral("Scroll bar"));
  connect(m_scrollBar, &QScrollBar::valueChanged, this, &CFileList::ScrollTo);
}

void CFileList::ShowListing(FolderListing listing, const QString& selected) {
  m_listing = std::move(listing);
  m_view.Top = 0;
  m_view.Current = FindEntry(m_listing, selected);
  LayOut();
}

const FolderEntry* CFileList::Selected() const {
  return m_view.Current < 0 ? nullptr
                            : &m_listing.Entries[static_cast<std::size_t>(m_view.Current)];
}

void CFileList::ClearSelection() {
  m_view.Current = -1;
  LayOut();
}

void CFileList::Select(int entry) {
  if (Count() == 0) return;
  m_view.Current = std::clamp(entry, 0, Count() - 1);
  LayOut();
  if (SelectionChanged) SelectionChanged();
}

int CFileList::EntryAt(QPoint at) const {
  const int row = RowAt(at);
  return row < 0 ? -1 : Rows()[static_cast<std::size_t>(row)].Key;
}

void CFileList::PenPress(QPoint at) {
  setFocus(Qt::MouseFocusReason);
  const int entry = EntryAt(at);
  m_pressedAgain = entry >= 0 && entry == m_view.Current ? entry : -1;
  if (entry >= 0) Select(entry);
}

void CFileList::PenRelease(QPoint at) {
  const int pressedAgain = std::exchange(m_pressedAgain, -1);
  if (pressedAgain >= 0 && pressedAgain == EntryAt(at) && OpenAsked) OpenAsked();
}

void CFileList::ActivateRow(int row) {
  const int entry = Rows()[static_cast<std::size_t>(row)].Key;
  if (entry < 0) return;
  Select(entry);
  if (OpenAsked) OpenAsked();
}

void CFileList::keyPressEvent(QKeyEvent* event) {
  if (const auto entry = EntryOfKey(event->key(), m_view, Count())) return Select(*entry);
  if (event->key() != Qt::Key_Backspace) return CPaintedWindow::keyPressEvent(event);
  if (UpAsked) UpAsked();
}

// The bar turns the wheel into lines, as it does above itself. Not sent: what it does not take at
// its ends would come back here.
void CFileList::wheelEvent(QWheelEvent* event) {
  m_scrollBar->event(event);
  event->accept();
}

void CFileList::resizeEvent(QResizeEvent*) { LayOut(); }

void CFileList::ScrollTo(int top) {
  m_view.Top = top;
  SetRows(LayOutFileList(m_listing, m_view, NormalTextWidth()));
}

void CFileList::LayOut() {
  const int barWidth = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, m_scrollBar);
  const bool isLong = Count() > FileRowsPerPage(size());
  m_view.Size = {width() - (isLong ? barWidth : 0), height()};
  m_scrollBar->setGeometry(width() - barWidth, 0, barWidth, height());
  m_scrollBar->setVisible(isLong);
  const int top = FileTopToShow(m_view, Count());
  m_scrollBar->setRange(0, GreatestFileTop(m_view, Count()));
  m_scrollBar->setPageStep(FileRowsPerPage(m_view.Size));
  m_scrollBar->setValue(top);
  ScrollTo(top);
}

}  // namespace quill
