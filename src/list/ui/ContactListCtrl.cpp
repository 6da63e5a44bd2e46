#include "list/ui/ContactListCtrl.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include "list/ListLayout.h"
#include "list/PageBuilding.h"
#include "platform/ui/RowPainter.h"
#include "store/ContactStore.h"

namespace quill {

namespace {

constexpr int kWheelLine = 40;  // eighths of a degree: three lines for a notch of 15 degrees

}  // namespace

CContactListCtrl::CContactListCtrl(QWidget* view) : CPaintedWindow(view, QAccessible::List) {
  setAccessibleName(QStringLiteral("Contacts"));
  setFocusPolicy(Qt::StrongFocus);
  SetBackground(kListBackground);
}

void CContactListCtrl::ShowPage() {
  if (!g_store.Provider) return SetRows({});  // without a store nobody can be added
  SetRows(LayOutList(g_list, {}, -1, NormalTextWidth()));
}

void CContactListCtrl::Ask(ScrollRequest request, int thumb) {
  if (ScrollAsked) ScrollAsked(request, thumb);
}

void CContactListCtrl::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
      return Ask(ScrollRequest::LineUp);
    case Qt::Key_Down:
      return Ask(ScrollRequest::LineDown);
    case Qt::Key_PageUp:
      return Ask(ScrollRequest::PageUp);
    case Qt::Key_PageDown:
      return Ask(ScrollRequest::PageDown);
    case Qt::Key_Home:
      return Ask(ScrollRequest::ThumbTrack, 0);
    case Qt::Key_End:
      return Ask(ScrollRequest::ThumbTrack, LargestTop(g_list));
    default:
      return CPaintedWindow::keyPressEvent(event);
  }
}

void CContactListCtrl::wheelEvent(QWheelEvent* event) {
  m_wheelRest += event->angleDelta().y();
  const int lines = m_wheelRest / kWheelLine;
  m_wheelRest -= lines * kWheelLine;
  for (int i = 0; i < std::abs(lines); ++i)
    Ask(lines > 0 ? ScrollRequest::LineUp : ScrollRequest::LineDown);
  event->accept();
}

}  // namespace quill
