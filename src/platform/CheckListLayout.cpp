#include "platform/CheckListLayout.h"

#include <algorithm>

namespace quill {

namespace {

constexpr int kBoxSize = 13;
constexpr int kBoxLeft = 6;
constexpr int kTextLeft = 26;
constexpr int kMarkSize = 14;
constexpr Rgb kHighlight = 0xD6EDBA;
constexpr Rgb kBoxBorder = 0x2F5568;
constexpr Rgb kBoxGround = 0xFFFFFF;
constexpr Rgb kMark = 0x000000;

int Count(const CheckListModel& model) { return static_cast<int>(model.Items.size()); }

void AddBox(PaintedRow& row, bool checked) {
  const QRect& area = row.Rectangle;
  const QRect box(kBoxLeft, area.top() + (area.height() - kBoxSize) / 2, kBoxSize, kBoxSize);
  row.Items.push_back({.Rectangle = box, .Fill = kBoxBorder});
  row.Items.push_back({.Rectangle = box.adjusted(1, 1, -1, -1), .Fill = kBoxGround});
  if (!checked) return;
  row.Items.push_back({.Rectangle = QRect(box.topLeft(), QSize(kMarkSize, kMarkSize)),
                       .Color = kMark,
                       .Picture = &resources::kCheckPicture});
}

PaintedRow LayOutRow(const CheckListModel& model, int index, int width,
                     const TextWidth& textWidth) {
  const CheckListItem& item = model.Items[static_cast<std::size_t>(index)];
  const QRect area(0, (index - model.Top) * kCheckRowHeight, width, kCheckRowHeight);
  PaintedRow row{
      .Rectangle = area, .Key = index, .SpokenName = item.Text, .Role = PaintedRole::CheckBox};
  row.State.setFlag(PaintedStateFlag::Checked, item.Checked);
  row.State.setFlag(PaintedStateFlag::Current, index == model.Current);
  if (index == model.Current) row.Items.push_back({.Rectangle = area, .Fill = kHighlight});
  AddBox(row, item.Checked);
  const QRect textArea = area.adjusted(kTextLeft, 0, 0, 0);
  row.Items.push_back(
      {.Rectangle = textArea, .Text = ElideText(item.Text, textArea.width(), textWidth)});
  return row;
}

// The row that a key leads to, before it is kept within the list.
std::optional<int> Target(const CheckListModel& model, int key, int page) {
  switch (key) {
    case Qt::Key_Up:
      return model.Current - 1;
    case Qt::Key_Down:
      return model.Current + 1;
    case Qt::Key_PageUp:
      return model.Current - page;
    case Qt::Key_PageDown:
      return model.Current + page;
    case Qt::Key_Home:
      return 0;
    case Qt::Key_End:
      return Count(model) - 1;
    default:
      return std::nullopt;
  }
}

}  // namespace

std::vector<PaintedRow> LayOutCheckList(const CheckListModel& model, int width,
                                        const TextWidth& textWidth) {
  std::vector<PaintedRow> rows;
  rows.reserve(model.Items.size());
  for (int i = 0; i < Count(model); ++i) rows.push_back(LayOutRow(model, i, width, textWidth));
  return rows;
}

int CheckRowsShown(int height) { return std::max(height / kCheckRowHeight, 1); }

int LastCheckTop(const CheckListModel& model, int height) {
  return std::max(Count(model) - CheckRowsShown(height), 0);
}

int CheckTopShowing(const CheckListModel& model, int row, int height) {
  int top = model.Top;
  if (row >= 0) top = std::clamp(top, row - CheckRowsShown(height) + 1, row);
  return std::clamp(top, 0, LastCheckTop(model, height));
}

std::optional<int> CheckRowAfterKey(const CheckListModel& model, int key, int height) {
  const auto target = Target(model, key, CheckRowsShown(height));
  if (!target || model.Items.empty()) return std::nullopt;
  return std::clamp(*target, 0, Count(model) - 1);
}

}  // namespace quill
