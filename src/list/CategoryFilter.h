// The chosen category as the filters use it.
#pragma once

#include <QString>

#include "list/ListState.h"
#include "store/CategoryText.h"

namespace quill {

inline constexpr int kSeveralCategoriesLimit = 1023;  // UTF-16 units of either list of names

bool IsCategoryChosen(const ListState& list);

// Makes a choice from the category menu the list's filter, instead of an index button or a search,
// and goes to its first row; the page is not built. name may be "Show All", or several names with
// commas between them; count is how many they are.
void FilterByCategory(ListState& list, const QString& name, int count);
// No category is chosen any more; the filter's kind stays.
void DropCategory(ListState& list);

// A category was renamed, or removed (to is empty): the choice has its new name, or is without it,
// and shows all when none is left. The filter's kind stays.
void FollowCategory(ListState& list, const QString& from, const QString& to);

// The names asked of the store: empty for kNoCategories.
QString CategoryToMatch(const ListState& list);

// True when the store may let through contacts that PassesCategoryFilter does not.
bool NeedsSecondTest(const ListState& list);

// True when no category is chosen or the contact's category text satisfies the choice. Nothing
// satisfies a choice of several names when either text is longer than kSeveralCategoriesLimit.
bool PassesCategoryFilter(const ListState& list, const QString& categories);

}  // namespace quill
