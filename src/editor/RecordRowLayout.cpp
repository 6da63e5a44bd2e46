#include "editor/RecordRowLayout.h"

#include "resources/SheetPictures.h"

namespace quill {

namespace {

constexpr int kWidth = kRecordListArea.width();
constexpr int kLabelLeft = 3;
constexpr int kLabelRight = 72;
constexpr int kLineLeft = 77;
constexpr int kBelowLine = 2;  // from the line to the row's bottom, and below an edit
constexpr int kValueWidth = kWidth - kRecordValueLeft;
constexpr int kTextLimit = kValueWidth - 19;
constexpr int kCategoriesLimit = kValueWidth - 20;
constexpr int kPictureMargin = 2;  // right of a picture, and between it and a text

QRect RowArea(int row, int top) {
  return {0, (row - top) * kRecordRowHeight, kWidth, kRecordRowHeight};
}

const resources::Picture* PictureOf(RowKind kind) {
  if (kind == RowKind::Date || kind == RowKind::DropDown) return &resources::kPickPicture;
  return kind == RowKind::Categories ? &resources::kTagPicture : nullptr;
}

PaintedItem PictureItem(const QRect& row, const resources::Picture& picture) {
  const QRect area(kWidth - kPictureMargin - picture.Size,
                   row.top() + (row.height() - picture.Size) / 2, picture.Size, picture.Size);
  return {.Rectangle = area, .Color = kRecordPictureColor, .Picture = &picture};
}

QString ShownValue(const RecordRow& row, const TextWidth& width) {
  const QString text = OnOneLine(row.Value);
  if (row.Kind == RowKind::Date || row.Kind == RowKind::DropDown) return text;
  // The dots must not lie below the picture.
  return row.Kind == RowKind::Categories ? ElideText(text, kCategoriesLimit, width)
                                         : ShortenText(text, kTextLimit, width);
}

QString SpokenName(const RecordRow& row) {
  return row.Value.isEmpty() ? row.Label : row.Label + QStringLiteral(", ") + OnOneLine(row.Value);
}

void AddValue(PaintedRow& painted, const RecordRow& row, const TextWidth& width) {
  QRect area = painted.Rectangle.adjusted(kRecordValueLeft, 0, 0, 0);
  const resources::Picture* const picture = PictureOf(row.Kind);
  if (picture) {
    painted.Items.push_back(PictureItem(painted.Rectangle, *picture));
    area.setRight(painted.Items.back().Rectangle.left() - kPictureMargin - 1);
  }
  painted.Items.push_back({.Rectangle = area, .Text = ShownValue(row, width)});
}

PaintedRow LayOutRow(const RecordRow& row, int index, const RecordRowView& view,
                     const TextWidth& width) {
  const QRect area = RowArea(index, view.Top);
  PaintedRow painted{.Rectangle = area, .Key = index, .SpokenName = SpokenName(row)};
  painted.State = PaintedStateFlag::Selectable;
  painted.State.setFlag(PaintedStateFlag::Current, index == view.Current);
  painted.Items.push_back(
      {.Rectangle = {kLabelLeft, area.top(), kLabelRight - kLabelLeft, area.height()},
       .Text = row.Label,
       .Alignment = TextAlign::Right,
       .Color = kRecordLabelColor});
  painted.Items.push_back(
      {.Rectangle = {kLineLeft, area.top() + area.height() - kBelowLine, kWidth - kLineLeft, 1},
       .Fill = kRecordLineColor,
       .Pattern = FillPattern::Dots});
  AddValue(painted, row, width);
  return painted;
}

}  // namespace

std::vector<PaintedRow> LayOutRecordRows(std::span<const RecordRow> rows, const RecordRowView& view,
                                         const TextWidth& width) {
  std::vector<PaintedRow> painted;
  for (const RecordRow& row : rows) {
    if (row.Kind == RowKind::ClosingBlank) continue;
    painted.push_back(LayOutRow(row, static_cast<int>(&row - rows.data()), view, width));
  }
  return painted;
}

std::optional<int> RecordRowAt(int y, int top) {
  const int row = top + y / kRecordRowHeight;
  return y >= 0 && row < kRecordRowCount ? std::optional(row) : std::nullopt;
}

std::optional<int> RecordRowToEdit(QPoint tap, int top) {
  return tap.x() >= kRecordValueLeft ? RecordRowAt(tap.y(), top) : std::nullopt;
}

QRect RecordEditArea(int row, int top) {
  return RowArea(row, top).adjusted(kRecordValueLeft, 0, 0, -kBelowLine);
}

}  // namespace quill
