#include "list/Selection.h"

#include <algorithm>

namespace quill {

namespace {

bool IsItemShown(const ListState& list, int key) {
  return list.Mode == ViewMode::ByMemo ? key < list.Total : RowOfKey(list, key) >= 0;
}

int WithinPage(const ListState& list, int row) { return std::min(row, SelectableRows(list) - 1); }

}  // namespace

int SelectableRows(const ListState& list) {
  if (list.Mode != ViewMode::ByMemo) return list.RowsShown;
  return std::clamp(list.Total - list.Top, 0, list.RowsPerPage);
}

bool IsSelectableRow(const ListState& list, int row) {
  return row >= 0 && row < SelectableRows(list);
}

int KeyOfRow(const ListState& list, int row) {
  if (list.Mode == ViewMode::ByMemo) return list.Top + row;
  return list.Rows[static_cast<std::size_t>(row)].Oid;
}

int RowOfKey(const ListState& list, int key) {
  const int rows = std::min(SelectableRows(list), list.RowsPerPage);
  for (int row = 0; row < rows; ++row)
    if (KeyOfRow(list, row) == key) return row;
  return -1;
}

bool IsKeySelected(const ListState& list, int key) {
  return std::ranges::find(list.SelectedKeys, key) != list.SelectedKeys.end();
}

int SingleSelectedRow(const ListState& list) {
  if (list.SelectedKeys.size() != 1 || !IsSelectableRow(list, list.CurrentRow)) return -1;
  return KeyOfRow(list, list.CurrentRow) == list.SelectedKeys.front() ? list.CurrentRow : -1;
}

int FirstSelectedRow(const ListState& list) {
  int first = -1;
  for (const int key : list.SelectedKeys) {
    const int row = RowOfKey(list, key);
    if (row >= 0 && (first < 0 || row < first)) first = row;
  }
  return first >= 0 ? first : list.CurrentRow;
}

void SelectRow(ListState& list, int row) { SelectRun(list, row, row); }

void SelectRun(ListState& list, int anchor, int row) {
  list.SelectedKeys.clear();
  const int step = row < anchor ? -1 : 1;
  for (int next = anchor; next != row + step; next += step)
    list.SelectedKeys.push_back(KeyOfRow(list, next));
  list.CurrentRow = row;
}

void ClearSelectedKeys(ListState& list) { list.SelectedKeys.clear(); }

void DropSelection(ListState& list) {
  ClearSelectedKeys(list);
  list.CurrentRow = -1;
}

void SelectAfterScroll(ListState& list) {
  const int row = WithinPage(list, list.CurrentRow);
  row < 0 ? DropSelection(list) : SelectRow(list, row);
}

void KeepSelection(ListState& list) {
  std::erase_if(list.SelectedKeys, [&list](int key) { return !IsItemShown(list, key); });
  const int followed = list.SelectedKeys.empty() ? -1 : RowOfKey(list, list.SelectedKeys.front());
  list.CurrentRow = followed >= 0 ? followed : WithinPage(list, list.CurrentRow);
}

void SelectInPlace(ListState& list, int row) {
  const int there = WithinPage(list, row);
  if (list.SelectedKeys.empty() && there >= 0) SelectRow(list, there);
}

}  // namespace quill
