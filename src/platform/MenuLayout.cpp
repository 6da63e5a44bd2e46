#include "platform/MenuLayout.h"

#include <algorithm>
#include <cmath>

namespace quill {

namespace {

constexpr int kBorder = 1;
constexpr int kMargin = 20;       // of the screen, for a pen that wants to leave the menu
constexpr int kCheckColumn = 16;  // left of the text
constexpr int kArrowColumn = 16;  // right of it
constexpr int kPictureSize = 14;
constexpr Rgb kTextColor = 0x000000;
constexpr Rgb kDisabledColor = 0x8C8C8C;
constexpr Rgb kHighlight = 0xD6EDBA;
constexpr Rgb kLine = 0x999999;

int RowHeight(const MenuItem& item) {
  return item.Separator ? kMenuSeparatorHeight : kMenuRowHeight;
}

int HeightOf(const std::vector<MenuItem>& items, int first, int last) {
  int height = 0;
  for (int i = first; i <= last; ++i) height += RowHeight(items[static_cast<std::size_t>(i)]);
  return height;
}

int MenuWidth(const std::vector<MenuItem>& items, const TextWidth& width, int limit) {
  double widest = 0;
  for (const MenuItem& item : items) widest = std::max(widest, width(item.Text));
  const int wanted = kCheckColumn + static_cast<int>(std::ceil(widest)) + kArrowColumn;
  return std::min(wanted + 2 * kBorder, limit);
}

QPoint MenuOrigin(QSize size, const MenuLayoutRequest& request) {
  const QRect anchor = request.Anchor;
  const bool drops = request.Placement == MenuPlacement::Drop;
  int x = drops ? anchor.left() : anchor.left() + anchor.width();
  int y = drops ? anchor.top() + anchor.height() : anchor.top();
  if (!drops && x + size.width() > request.Screen.width()) x = anchor.left() - size.width();
  if (drops && y + size.height() > request.Screen.height()) y = anchor.top() - size.height();
  return {std::clamp(x, 0, std::max(0, request.Screen.width() - size.width())),
          std::clamp(y, 0, std::max(0, request.Screen.height() - size.height()))};
}

// The last item that fits from first on; at least first itself.
int LastFitting(const std::vector<MenuItem>& items, int first, int height) {
  int last = first;
  while (last + 1 < std::ssize(items) && HeightOf(items, first, last + 1) <= height) ++last;
  return last;
}

// The greatest first item that still fills the menu down to its end.
int GreatestFirst(const std::vector<MenuItem>& items, int height) {
  int first = static_cast<int>(std::ssize(items)) - 1;
  while (first > 0 && HeightOf(items, first - 1, static_cast<int>(std::ssize(items)) - 1) <= height)
    --first;
  return first;
}

PaintedState RowState(const MenuItem& item, bool current) {
  PaintedState state;
  state.setFlag(PaintedStateFlag::Disabled, !item.Enabled);
  state.setFlag(PaintedStateFlag::Checked, item.Checked);
  state.setFlag(PaintedStateFlag::HasPopup, !item.Items.empty());
  state.setFlag(PaintedStateFlag::Current, current);
  return state;
}

void AddSeparator(PaintedRow& row) {
  const QRect area = row.Rectangle;
  row.Role = PaintedRole::Separator;
  row.State = PaintedStateFlag::Disabled;
  row.Items.push_back({.Rectangle = {area.left(), area.top() + 2, area.width(), 1}, .Fill = kLine});
}

void AddItem(PaintedRow& row, const MenuItem& item, const TextWidth& width) {
  const QRect area = row.Rectangle;
  const Rgb color = item.Enabled ? kTextColor : kDisabledColor;
  const int pictureTop = area.top() + (area.height() - kPictureSize) / 2;
  if (row.State.testFlag(PaintedStateFlag::Current))
    row.Items.push_back({.Rectangle = area, .Fill = kHighlight});
  if (item.Checked)
    row.Items.push_back({.Rectangle = {area.left() + 1, pictureTop, kPictureSize, kPictureSize},
                         .Color = color,
                         .Picture = &resources::kCheckPicture});
  const QRect text = area.adjusted(kCheckColumn, 0, -kArrowColumn, 0);
  row.Items.push_back({.Rectangle = text,
                       .Text = ElideText(OnOneLine(item.Text), text.width(), width),
                       .Color = color});
  if (!item.Items.empty())
    row.Items.push_back(
        {.Rectangle = {area.right() - kPictureSize, pictureTop, kPictureSize, kPictureSize},
         .Color = color,
         .Picture = &resources::kRightPicture});
}

PaintedRow MakeRow(const MenuItem& item, int key, QRect area, bool current,
                   const TextWidth& width) {
  PaintedRow row{.Rectangle = area,
                 .Key = key,
                 .SpokenName = item.Text,
                 .Role = PaintedRole::MenuItem,
                 .State = RowState(item, current)};
  if (item.Separator)
    AddSeparator(row);
  else
    AddItem(row, item, width);
  return row;
}

}  // namespace

MenuLayout LayOutMenu(const std::vector<MenuItem>& items, const MenuLayoutRequest& request,
                      const TextWidth& width) {
  MenuLayout layout;
  const int count = static_cast<int>(std::ssize(items));
  const int whole = HeightOf(items, 0, count - 1) + 2 * kBorder;
  const int height = std::min(whole, request.Screen.height() - kMargin);
  const bool scrolls = whole > height;
  const int strips = scrolls ? 2 * kMenuStripHeight : 0;
  const int room = height - 2 * kBorder - strips;
  layout.FirstItem = scrolls ? std::clamp(request.FirstItem, 0, GreatestFirst(items, room)) : 0;
  layout.LastItem = scrolls ? LastFitting(items, layout.FirstItem, room) : count - 1;

  const QSize size{MenuWidth(items, width, request.Screen.width() - kMargin), height};
  layout.Frame = QRect(MenuOrigin(size, request), size);
  const int inner = size.width() - 2 * kBorder;
  if (layout.FirstItem > 0) layout.UpStrip = {kBorder, kBorder, inner, kMenuStripHeight};
  if (layout.LastItem < count - 1)
    layout.DownStrip = {kBorder, height - kBorder - kMenuStripHeight, inner, kMenuStripHeight};
  int y = kBorder + strips / 2;
  for (int i = layout.FirstItem; i <= layout.LastItem; ++i) {
    const MenuItem& item = items[static_cast<std::size_t>(i)];
    layout.Rows.push_back(
        MakeRow(item, i, {kBorder, y, inner, RowHeight(item)}, i == request.Current, width));
    y += RowHeight(item);
  }
  return layout;
}

int FirstItemToShow(const std::vector<MenuItem>& items, const MenuLayout& layout, int item) {
  if (item < layout.FirstItem) return item;
  if (item <= layout.LastItem) return layout.FirstItem;
  const int room = HeightOf(items, layout.FirstItem, layout.LastItem);
  int first = layout.FirstItem;
  while (first < item && HeightOf(items, first, item) > room) ++first;
  return first;
}

int NextMenuItem(const std::vector<MenuItem>& items, int from, int step) {
  const int count = static_cast<int>(std::ssize(items));
  if (from < 0 && step < 0) from = count;
  for (int i = 1; i <= count; ++i) {
    const int at = ((from + step * i) % count + count) % count;
    const MenuItem& item = items[static_cast<std::size_t>(at)];
    if (!item.Separator && item.Enabled) return at;
  }
  return -1;
}

}  // namespace quill
