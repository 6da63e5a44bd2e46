#include "list/CategoryFilter.h"

#include <algorithm>

#include "list/Selection.h"

namespace quill {

bool IsCategoryChosen(const ListState& list) { return list.CategoryName != kShowAllCategories; }

void FilterByCategory(ListState& list, const QString& name, int count) {
  list.Filter = FilterKind::Category;
  list.SubFilter = FilterSubKind::None;
  list.CategoryName = name;
  list.CategoryCount = count;
  list.IndexButton = 0;
  list.Top = 0;
  DropSelection(list);
}

void DropCategory(ListState& list) {
  list.CategoryName = kShowAllCategories.toString();
  list.CategoryCount = 1;
}

void FollowCategory(ListState& list, const QString& from, const QString& to) {
  QStringList names = list.CategoryName.split(u',');
  if (!names.contains(from)) return;
  if (to.isEmpty()) {
    names.removeAll(from);
    list.CategoryCount = static_cast<int>(names.size());
  }
  std::ranges::replace(names, from, to);
  list.CategoryName = names.join(u',');
  if (names.isEmpty()) DropCategory(list);
}

QString CategoryToMatch(const ListState& list) {
  return list.CategoryName == kNoCategories ? QString() : list.CategoryName;
}

bool NeedsSecondTest(const ListState& list) {
  return IsCategoryChosen(list) && list.CategoryName.contains(u',');
}

bool PassesCategoryFilter(const ListState& list, const QString& categories) {
  if (!IsCategoryChosen(list)) return true;
  const QString chosen = CategoryToMatch(list);
  if (NeedsSecondTest(list) && std::max(chosen.size(), categories.size()) > kSeveralCategoriesLimit)
    return false;
  return CategoriesMatch(chosen, categories);
}

}  // namespace quill
