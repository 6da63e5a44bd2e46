#include "list/ui/IndexStrip.h"

#include "list/IndexRanges.h"
#include "list/IndexStripLayout.h"

namespace quill {

namespace {

constexpr Rgb kStripBackground = 0xEEF3F6;

}  // namespace

CIndexStrip::CIndexStrip(QWidget* view) : CPaintedWindow(view, QAccessible::ToolBar) {
  setAccessibleName(QStringLiteral("Index"));
  SetBackground(kStripBackground);
}

void CIndexStrip::ShowChosen() { SetRows(LayOutIndexStrip(g_list, size())); }

void CIndexStrip::ActivateRow(int row) {
  if (Tapped) Tapped(Rows()[static_cast<std::size_t>(row)].Key);
}

void CIndexStrip::PenPress(QPoint at) {
  const int button = IndexButtonAt(at.x());
  if (button > 0 && Tapped) Tapped(button);
}

}  // namespace quill
