#include "list/ui/ContactListCtrl.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include "list/ListLayout.h"
#include "list/PageBuilding.h"
#include "platform/ui/RowPainter.h"
#include "store/ContactStore.h"

namespace quill {

namespace {

constexpr int kWheelNotch = 120;  // an eighth of a degree each
constexpr int kLinesPerNotch = 3;

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
  const int lines = kLinesPerNotch * event->angleDelta().y() / kWheelNotch;
  for (int i = 0; i < std::abs(lines); ++i)
    Ask(lines > 0 ? ScrollRequest::LineUp : ScrollRequest::LineDown);
  event->accept();
}

}  // namespace quill
