#include "list/IndexStripLayout.h"

#include "list/IndexRanges.h"
#include "list/ListLayout.h"

namespace quill {

namespace {

PaintedRow IndexButtonRow(int button, bool chosen, int height) {
  const QString label = IndexButtonRange(button).Lower.toString();
  const QRect area{(button - 1) * kIndexButtonWidth, 0, kIndexButtonWidth, height};
  PaintedRow row{
      .Rectangle = area, .Key = button, .SpokenName = label, .Role = PaintedRole::Button};
  row.State.setFlag(PaintedStateFlag::Checked, chosen);
  if (chosen) row.Items.push_back({.Rectangle = area, .Fill = kListSelection});
  row.Items.push_back({.Rectangle = area, .Text = label, .Alignment = TextAlign::Centre});
  row.Items.push_back(
      {.Rectangle = {area.right(), area.top(), 1, area.height()}, .Fill = kListSeparator});
  return row;
}

}  // namespace

std::vector<PaintedRow> LayOutIndexStrip(const ListState& list, QSize size) {
  std::vector<PaintedRow> rows;
  for (int button = 1; button <= kIndexButtonCount; ++button)
    rows.push_back(IndexButtonRow(button, button == list.IndexButton, size.height()));
  return rows;
}

}  // namespace quill
