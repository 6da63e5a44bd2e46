#include "list/CategoryFilter.h"

#include <algorithm>

#include "store/CategoryText.h"

namespace quill {

bool IsCategoryChosen(const ListState& list) { return list.CategoryName != kShowAllCategories; }

QString CategoryToMatch(const ListState& list) {
  return list.CategoryName == kNoCategories ? QString() : list.CategoryName;
}

bool PassesCategoryFilter(const ListState& list, const QString& categories) {
  if (!IsCategoryChosen(list)) return true;
  const QString chosen = CategoryToMatch(list);
  const bool several = chosen.contains(u',');
  if (several && std::max(chosen.size(), categories.size()) > kSeveralCategoriesLimit) return false;
  return CategoriesMatch(chosen, categories);
}

}  // namespace quill
