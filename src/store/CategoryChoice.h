// A choice of several categories without its window: what it offers, what it gives back, and what
// becomes of it when categories are added, renamed or removed meanwhile.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

#include "platform/CheckListLayout.h"
#include "store/CategoryEdits.h"

namespace quill {

using CategoryItems = std::vector<CheckListItem>;

// The names of a category text, each checked.
CategoryItems CheckedCategories(QStringView names);
// What the library offers, in its order, then the other names there were before, in theirs; each
// name once. Checked is what was checked before.
CategoryItems OfferCategories(const QStringList& offered, const CategoryItems& before);

// The items before the library is offered anew. One that was added is checked.
CategoryItems WithCategory(CategoryItems items, const QString& name);
CategoryItems WithoutCategory(CategoryItems items, const QString& name);
CategoryItems WithCategoryRenamed(CategoryItems items, const QString& from, const QString& to);

inline constexpr int kCategoryPositionsEnd = 35;

struct CategoryChoice {
  QString Names;  // joined by commas without blanks, empty when none is checked
  // Their positions among the items, from 0, ascending, then kCategoryPositionsEnd: which is also a
  // position that an item may have, intended.
  std::vector<int> Positions;
};
CategoryChoice ChosenCategories(const CategoryItems& items);

inline constexpr int kCategoryInTextLimit = 60;  // UTF-16 units of a name within these texts

// What is asked before a category goes that so many contacts have. A name that is too long ends
// with dots, here and below.
QString CategoryRemovalQuestion(const QString& name, int contacts);
// What the user is told of an edit that was not done; empty for one that was.
QString CategoryEditRefusal(CategoryEdit edit, const QString& name);

}  // namespace quill
