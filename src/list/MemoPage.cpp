#include "list/MemoPage.h"

#include <algorithm>

#include "list/PageBuilding.h"
#include "list/Selection.h"
#include "memo/MemoListing.h"

namespace quill {

namespace {

QStringList ListedMemos(const ListState& list, const MemoState& memo) {
  if (list.Filter != FilterKind::Range) return AllMemos(memo);
  if (list.SubFilter == FilterSubKind::IndexRange)
    return MemosInRange(memo, list.IndexLower, list.IndexUpper);
  return MemosWithPrefix(memo, list.SearchText);
}

// The keys are positions, so they are found again by the names.
QStringList SelectedMemos(const ListState& list, const MemoState& memo) {
  QStringList names;
  for (const int key : list.SelectedKeys)
    if (const auto name = MemoAt(memo, key)) names.append(*name);
  return names;
}

void SelectMemos(ListState& list, const MemoState& memo, const QStringList& names) {
  list.SelectedKeys.clear();
  for (const QString& name : names) {
    const auto position = memo.NameList.indexOf(name);
    if (position >= 0) list.SelectedKeys.push_back(static_cast<int>(position));
  }
}

}  // namespace

void BuildMemoPage(ListState& list, MemoState& memo) {
  const QStringList selected = SelectedMemos(list, memo);
  memo.NameList = ListedMemos(list, memo);
  list.Collection = {};
  list.Restriction.clear();
  list.Total = static_cast<int>(memo.NameList.size());
  FitMemoPage(list);
  SelectMemos(list, memo, selected);
  KeepSelection(list);
}

void FitMemoPage(ListState& list) {
  list.RowsShown = std::min(list.Total, list.RowsPerPage);
  list.Top = std::clamp(list.Top, 0, LargestTop(list));
}

}  // namespace quill
