#include "list/ListLayout.h"

#include <algorithm>
#include <span>

#include "list/RowIcons.h"
#include "list/Selection.h"

namespace quill {

namespace {

// Columns of a row: left edge and width. The first ends at 80, but the dots of a name in wide
// letters may go on up to the second.
constexpr int kFirstColumn = 5;
constexpr int kSecondColumn = 85;
constexpr int kFirstColumnWidth = kSecondColumn - kFirstColumn;
constexpr int kSecondColumnWidth = 110;
constexpr int kWholeColumnWidth = kListWidth - 2 * kFirstColumn;  // by memo there is only one
constexpr int kIconLeft = 208;
constexpr int kIconTop = 2;  // below the row's top
constexpr int kIconSize = 14;

constexpr Rgb kIconColor = 0x2F5568;

constexpr QStringView kNoCompany = u"<None>";
constexpr QStringView kNoName = u"(no name)";  // spoken only

// What stands in a list without items. A line has the width of the list.
using HintLines = std::span<const QStringView>;
constexpr QStringView kNoContactsHint[] = {
    u"Add people: \"New\"",
    u"or hold the title bar: \"Import...\"",
    u"or drop vCard files here",
};
constexpr QStringView kNobodyFoundHint[] = {u"No contacts found"};
constexpr QStringView kNoMemosHint[] = {u"Write a memo: \"New\""};
constexpr QStringView kNoMemoFoundHint[] = {u"No memos found"};

QRect RowRectangle(int row) { return {0, row * kListRowHeight, kListWidth, kListRowHeight}; }

QRect ColumnRectangle(int row, int left, int width) {
  return {left, row * kListRowHeight, width, kListRowHeight};
}

PaintedItem Separator(int row) {
  return {.Rectangle = {0, row * kListRowHeight, kListWidth, 1}, .Fill = kListSeparator};
}

// The columns of a row. Second is empty where there is only one column.
struct RowTexts {
  QString First;
  QString Second;
};

RowTexts TextsOf(const ListState& list, const ListRow& row) {
  if (list.Mode != ViewMode::ByCompany) return {row.Name, row.Text};
  return {row.Company.isEmpty() ? kNoCompany.toString() : row.Company, row.Name};
}

QString SpokenName(const RowTexts& texts) {
  const QString one = texts.First + texts.Second;
  if (one.isEmpty()) return kNoName.toString();
  if (texts.First.isEmpty() || texts.Second.isEmpty()) return one;
  return texts.First + QStringLiteral(", ") + texts.Second;
}

// The row without what it shows.
PaintedRow LayOutRow(const ListState& list, int n, const QString& spokenName) {
  PaintedRow painted{
      .Rectangle = RowRectangle(n), .Key = KeyOfRow(list, n), .SpokenName = spokenName};
  painted.State = PaintedStateFlag::Selectable;
  painted.State.setFlag(PaintedStateFlag::Current, n == list.CurrentRow);
  if (IsKeySelected(list, painted.Key)) {
    painted.State |= PaintedStateFlag::Selected;
    painted.Items.push_back({.Rectangle = RowRectangle(n), .Fill = kListSelection});
  }
  return painted;
}

PaintedItem Icon(int n, const resources::Picture& picture) {
  return {.Rectangle = {kIconLeft, n * kListRowHeight + kIconTop, kIconSize, kIconSize},
          .Color = kIconColor,
          .Picture = &picture};
}

PaintedRow LayOutContact(const ListState& list, int n, const TextWidth& width) {
  const ListRow& row = list.Rows[static_cast<std::size_t>(n)];
  const RowTexts texts = TextsOf(list, row);
  PaintedRow painted = LayOutRow(list, n, SpokenName(texts));
  painted.Items.push_back({.Rectangle = ColumnRectangle(n, kFirstColumn, kFirstColumnWidth),
                           .Text = ShortenText(texts.First, kListNameWidth, width)});
  painted.Items.push_back({.Rectangle = ColumnRectangle(n, kSecondColumn, kSecondColumnWidth),
                           .Text = ElideText(OnOneLine(texts.Second), kSecondColumnWidth, width)});
  if (const resources::Picture* const picture = RowPicture(row.Icon))
    painted.Items.push_back(Icon(n, *picture));
  painted.Items.push_back(Separator(n));
  return painted;
}

PaintedRow LayOutMemo(const ListState& list, int n, const QString& name, const TextWidth& width) {
  PaintedRow painted = LayOutRow(list, n, name);
  painted.Items.push_back({.Rectangle = ColumnRectangle(n, kFirstColumn, kWholeColumnWidth),
                           .Text = ElideText(name, kWholeColumnWidth, width)});
  painted.Items.push_back(Separator(n));
  return painted;
}

PaintedRow LayOutEnd(int row) {
  return {
      .Rectangle = RowRectangle(row), .Role = PaintedRole::Separator, .Items = {Separator(row)}};
}

HintLines Hint(const ListState& list) {
  if (list.Mode == ViewMode::ByMemo)
    return list.Filter == FilterKind::Range ? HintLines(kNoMemoFoundHint) : kNoMemosHint;
  return list.Restriction.isEmpty() ? HintLines(kNoContactsHint) : kNobodyFoundHint;
}

PaintedRow LayOutHint(HintLines texts) {
  const int count = static_cast<int>(texts.size());
  PaintedRow hint{.Rectangle = {0, 0, kListWidth, count * kListRowHeight},
                  .Role = PaintedRole::Text,
                  .Items = {Separator(0)}};
  QStringList lines;
  for (int n = 0; n < count; ++n) {
    lines.append(texts[static_cast<std::size_t>(n)].toString());
    hint.Items.push_back({.Rectangle = ColumnRectangle(n, kFirstColumn, kWholeColumnWidth),
                          .Text = lines.last(),
                          .Color = kListHintColor});
  }
  hint.SpokenName = lines.join(u' ');
  return hint;
}

}  // namespace

int ListRowAt(int y) { return y < 0 ? -1 : y / kListRowHeight; }

std::vector<PaintedRow> LayOutList(const ListState& list, const QStringList& memoNames,
                                   const TextWidth& width) {
  if (list.Total == 0) return {LayOutHint(Hint(list))};
  std::vector<PaintedRow> rows;
  const int count = std::min(SelectableRows(list), list.RowsPerPage);
  rows.reserve(static_cast<std::size_t>(list.RowsPerPage));
  for (int n = 0; n < count; ++n)
    rows.push_back(list.Mode == ViewMode::ByMemo
                       ? LayOutMemo(list, n, memoNames.value(list.Top + n), width)
                       : LayOutContact(list, n, width));
  if (count < list.RowsPerPage) rows.push_back(LayOutEnd(count));
  return rows;
}

}  // namespace quill
