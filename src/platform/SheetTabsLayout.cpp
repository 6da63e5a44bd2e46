#include "platform/SheetTabsLayout.h"

namespace quill {

namespace {

constexpr Rgb kGround = 0xDDE6EB;
constexpr Rgb kActiveGround = 0xF0F0F0;  // that of the page above
constexpr Rgb kPressedGround = 0xD6EDBA;
constexpr Rgb kLine = 0x2F5568;
constexpr int kMargin = 3;  // beside the title

int Count(const SheetTabsModel& model) { return static_cast<int>(model.Titles.size()); }

QRect TabArea(int page, int count, QSize size) {
  const int left = page * size.width() / count;
  return {left, 0, (page + 1) * size.width() / count - left, size.height()};
}

Rgb GroundOf(const SheetTabsModel& model, int page) {
  if (page == model.Pressed) return kPressedGround;
  return page == model.Active ? kActiveGround : kGround;
}

// The line between page and tabs is open above the active one; the one below keeps the tabs from
// the menu bar.
void AddLines(PaintedRow& row, const SheetTabsModel& model) {
  const QRect& area = row.Rectangle;
  row.Items.push_back({.Rectangle = {area.left(), area.bottom(), area.width(), 1}, .Fill = kLine});
  if (row.Key != model.Active)
    row.Items.push_back({.Rectangle = {area.left(), 0, area.width(), 1}, .Fill = kLine});
  if (row.Key > 0)
    row.Items.push_back({.Rectangle = {area.left(), 0, 1, area.height()}, .Fill = kLine});
}

PaintedRow LayOutTab(const SheetTabsModel& model, int page, QSize size) {
  const QRect area = TabArea(page, Count(model), size);
  PaintedRow row{.Rectangle = area,
                 .Key = page,
                 .SpokenName = model.Titles[page],
                 .Role = PaintedRole::PageTab,
                 .State = PaintedStateFlag::Selectable};
  row.State.setFlag(PaintedStateFlag::Selected, page == model.Active);
  row.Items.push_back({.Rectangle = area, .Fill = GroundOf(model, page)});
  AddLines(row, model);
  row.Items.push_back({.Rectangle = area.adjusted(kMargin, 0, -kMargin, 0),
                       .Text = model.Titles[page],
                       .Alignment = TextAlign::Centre,
                       .Weight = page == model.Active ? TextWeight::Bold : TextWeight::Normal});
  return row;
}

// How many pages further a key goes; 0 for keys that mean something else.
int StepOf(int key, Qt::KeyboardModifiers modifiers) {
  if (!modifiers.testFlag(Qt::ControlModifier) || modifiers.testFlag(Qt::AltModifier)) return 0;
  const bool shift = modifiers.testFlag(Qt::ShiftModifier);
  if (key == Qt::Key_Tab) return shift ? -1 : 1;
  if (key == Qt::Key_Backtab) return -1;
  if (key == Qt::Key_PageDown && !shift) return 1;
  if (key == Qt::Key_PageUp && !shift) return -1;
  return 0;
}

}  // namespace

std::vector<PaintedRow> LayOutSheetTabs(const SheetTabsModel& model, QSize size) {
  std::vector<PaintedRow> rows;
  rows.reserve(static_cast<std::size_t>(Count(model)));
  for (int page = 0; page < Count(model); ++page) rows.push_back(LayOutTab(model, page, size));
  return rows;
}

std::optional<int> SheetPageAfterKey(const SheetTabsModel& model, int key,
                                     Qt::KeyboardModifiers modifiers) {
  const int step = StepOf(key, modifiers);
  const int count = Count(model);
  if (step == 0 || count == 0) return std::nullopt;
  return (model.Active + step + count) % count;
}

}  // namespace quill
