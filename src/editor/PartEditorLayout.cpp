#include "editor/PartEditorLayout.h"

#include "editor/RecordRowLayout.h"

namespace quill {

namespace {

constexpr int kLabelLeft = 3;
constexpr int kLabelRight = 50;
constexpr int kLineLeft = 52;
constexpr int kLineRight = 195;
constexpr int kValueWidth = kLineRight - kPartValueLeft;
constexpr int kTextLimit = kValueWidth - 19;

constexpr QRect kStreetEditArea(kPartValueLeft, 1, kValueWidth, 46);
constexpr int kStreetLineHeight = 16;
constexpr int kStreetLines = kStreetHeight / kStreetLineHeight;
constexpr int kStreetUnits = 1000;  // more than its lines can show
constexpr int kPartEditHeight = 17;

int RowTop(RowSet parts, int row) {
  const bool isBelowStreet = row > 0 && IsStreet(parts, 0);
  return isBelowStreet ? kStreetHeight + (row - 1) * kRecordRowHeight : row * kRecordRowHeight;
}

QRect RowArea(RowSet parts, int row) {
  return {0, RowTop(parts, row), PartEditorArea(parts).width(),
          IsStreet(parts, row) ? kStreetHeight : kRecordRowHeight};
}

PaintedItem ValueLine(int top, int height, const QString& text) {
  return {.Rectangle = {kPartValueLeft, top, kValueWidth, height}, .Text = text};
}

// As many lines as the row has room for. A long street is not wrapped to its end for them.
void AddStreet(PaintedRow& painted, const QString& street, const TextWidth& width) {
  const QString beginning = CutText(street, kStreetUnits);
  const QStringList lines = WrapLines(beginning, kValueWidth, width).mid(0, kStreetLines);
  for (int line = 0; line < lines.size(); ++line)
    painted.Items.push_back(
        ValueLine(1 + line * kStreetLineHeight, kStreetLineHeight, lines[line]));
}

void AddValue(PaintedRow& painted, const RecordRow& row, RowSet parts, const TextWidth& width) {
  if (IsStreet(parts, painted.Key)) return AddStreet(painted, row.Value, width);
  const QString text = ShortenText(OnOneLine(row.Value), kTextLimit, width);
  painted.Items.push_back(ValueLine(painted.Rectangle.top(), kRecordRowHeight, text));
}

PaintedRow LayOutFrame(const RecordRow& row, int index, RowSet parts) {
  const QRect area = RowArea(parts, index);
  PaintedRow painted{.Rectangle = area, .Key = index, .SpokenName = row.Label};
  if (!row.Value.isEmpty()) painted.SpokenName += QStringLiteral(", ") + OnOneLine(row.Value);
  painted.Items.push_back(
      {.Rectangle = {kLabelLeft, area.top(), kLabelRight - kLabelLeft, kRecordRowHeight},
       .Text = row.Label,
       .Alignment = TextAlign::Right,
       .Color = kRecordLabelColor});
  painted.Items.push_back({.Rectangle = {kLineLeft, area.bottom(), kLineRight - kLineLeft, 1},
                           .Fill = kRecordLineColor,
                           .Pattern = FillPattern::Dots});
  return painted;
}

}  // namespace

QRect PartEditorArea(RowSet parts) {
  return parts == RowSet::NameParts ? kNameEditorArea : kAddressEditorArea;
}

bool IsStreet(RowSet parts, int row) {
  return row == 0 && (parts == RowSet::WorkAddress || parts == RowSet::HomeAddress);
}

int PartTypedFirst(RowSet parts) { return parts == RowSet::NameParts ? 1 : 0; }

std::vector<PaintedRow> LayOutParts(std::span<const RecordRow> rows, RowSet parts, int current,
                                    const TextWidth& width) {
  std::vector<PaintedRow> painted;
  for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
    const RecordRow& row = rows[static_cast<std::size_t>(i)];
    painted.push_back(LayOutFrame(row, i, parts));
    painted.back().State = PaintedStateFlag::Selectable;
    painted.back().State.setFlag(PaintedStateFlag::Current, i == current);
    if (i != current) AddValue(painted.back(), row, parts, width);
  }
  return painted;
}

std::optional<int> PartToEdit(RowSet parts, QPoint tap) {
  if (tap.x() < kPartValueLeft) return std::nullopt;
  for (int row = 0; row < kPartRowCount; ++row) {
    const QRect area = RowArea(parts, row);
    if (tap.y() >= area.top() && tap.y() <= area.bottom()) return row;
  }
  return std::nullopt;
}

QRect PartEditArea(RowSet parts, int row) {
  if (IsStreet(parts, row)) return kStreetEditArea;
  return {kPartValueLeft, RowTop(parts, row) + 1, kValueWidth, kPartEditHeight};
}

}  // namespace quill
