#include "list/ListLayout.h"

#include <algorithm>

namespace quill {

namespace {

// Columns of a row: left edge and width.
constexpr int kFirstColumn = 5;
constexpr int kFirstColumnWidth = 75;
constexpr int kSecondColumn = 85;
constexpr int kSecondColumnWidth = 110;

constexpr QStringView kNoCompany = u"<None>";
constexpr QStringView kEmptyHint = u"Add people: quill import FILE.vcf";

QRect RowRectangle(int row) { return {0, row * kListRowHeight, kListWidth, kListRowHeight}; }

QRect ColumnRectangle(int row, int left, int width) {
  return {left, row * kListRowHeight, width, kListRowHeight};
}

PaintedItem Separator(int row) {
  return {.Rectangle = {0, row * kListRowHeight, kListWidth, 1}, .Fill = kListSeparator};
}

struct RowTexts {
  QString First;
  QString Second;
};

RowTexts TextsOf(const ListState& list, const ListRow& row) {
  if (list.Mode != ViewMode::ByCompany) return {row.Name, row.Text};
  return {row.Company.isEmpty() ? kNoCompany.toString() : row.Company, row.Name};
}

QString SpokenName(const RowTexts& texts) {
  if (texts.First.isEmpty() || texts.Second.isEmpty()) return texts.First + texts.Second;
  return texts.First + QStringLiteral(", ") + texts.Second;
}

PaintedRow LayOutRow(const RowTexts& texts, const ListRow& row, bool isSelected,
                     const TextWidth& width) {
  const int n = row.Position;
  PaintedRow painted{.Rectangle = RowRectangle(n), .Key = row.Oid, .SpokenName = SpokenName(texts)};
  painted.State = PaintedStateFlag::Selectable;
  if (isSelected) {
    painted.State |= PaintedStateFlag::Selected;
    painted.Items.push_back({.Rectangle = RowRectangle(n), .Fill = kListSelection});
  }
  painted.Items.push_back({.Rectangle = ColumnRectangle(n, kFirstColumn, kFirstColumnWidth),
                           .Text = ShortenText(texts.First, kListNameWidth, width)});
  painted.Items.push_back(
      {.Rectangle = ColumnRectangle(n, kSecondColumn, kSecondColumnWidth), .Text = texts.Second});
  painted.Items.push_back(Separator(n));
  return painted;
}

PaintedRow LayOutEnd(int row) {
  return {
      .Rectangle = RowRectangle(row), .Role = PaintedRole::Separator, .Items = {Separator(row)}};
}

PaintedRow LayOutHint() {
  const QRect text(kFirstColumn, 0, kListWidth - 2 * kFirstColumn, kListRowHeight);
  return {.Rectangle = RowRectangle(0),
          .SpokenName = kEmptyHint.toString(),
          .Role = PaintedRole::Text,
          .Items = {{.Rectangle = text, .Text = kEmptyHint.toString(), .Color = kListHintColor},
                    Separator(0)}};
}

bool IsEmptyStore(const ListState& list) {
  return list.Filter == FilterKind::None && list.Total == 0;
}

}  // namespace

int ListRowAt(int y) { return y < 0 ? -1 : y / kListRowHeight; }

std::vector<PaintedRow> LayOutList(const ListState& list, std::span<const Oid> selected,
                                   int currentRow, const TextWidth& width) {
  if (IsEmptyStore(list)) return {LayOutHint()};
  std::vector<PaintedRow> rows;
  for (int n = 0; n < list.RowsShown; ++n) {
    const ListRow& row = list.Rows[n];
    const bool isSelected = std::ranges::find(selected, row.Oid) != selected.end();
    rows.push_back(LayOutRow(TextsOf(list, row), row, isSelected, width));
    if (n == currentRow) rows.back().State |= PaintedStateFlag::Current;
  }
  if (list.RowsShown < list.RowsPerPage) rows.push_back(LayOutEnd(list.RowsShown));
  return rows;
}

}  // namespace quill
