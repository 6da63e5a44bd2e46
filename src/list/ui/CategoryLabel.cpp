#include "list/ui/CategoryLabel.h"

#include <QGuiApplication>
#include <QPalette>

#include "list/CategoryLabelLayout.h"
#include "platform/ui/RowPainter.h"

namespace quill {

CCategoryLabel::CCategoryLabel(QWidget* view) : CPaintedWindow(view, QAccessible::Grouping) {
  setAccessibleName(QStringLiteral("Category"));
  SetBackground(QGuiApplication::palette().color(QPalette::Window).rgb() & 0xFFFFFF);
}

void CCategoryLabel::ShowChosen() { SetRows({LayOutCategoryLabel(g_list, NormalTextWidth())}); }

void CCategoryLabel::ActivateRow(int) {
  if (Tapped) Tapped();
}

void CCategoryLabel::PenPress(QPoint at) {
  if (RowAt(at) >= 0) ActivateRow(RowAt(at));
}

}  // namespace quill
