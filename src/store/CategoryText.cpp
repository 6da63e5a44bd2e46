#include "store/CategoryText.h"

#include <utility>

namespace quill {

namespace {

QStringView WithoutLeadingBlanks(QStringView text) {
  while (text.startsWith(u' ')) text = text.mid(1);
  return text;
}

// Calls visit for each name until it returns true; true when one did.
template <typename Visit>
bool AnyName(QStringView categories, Visit visit) {
  for (const QStringView piece : categories.tokenize(u',')) {
    const QStringView name = WithoutLeadingBlanks(piece);
    if (!name.isEmpty() && visit(name)) return true;
  }
  return false;
}

// With this name in place of the first one of that name and without further ones; an empty name
// takes the place of none.
QString Replaced(QStringView categories, QStringView from, QStringView to) {
  QStringList pieces;
  for (const QStringView piece : categories.tokenize(u',')) {
    if (WithoutLeadingBlanks(piece) != from) {
      pieces.append(piece.toString());
    } else if (!to.isEmpty()) {
      const QStringView blanks = piece.chopped(from.size());
      pieces.append(blanks.toString() + std::exchange(to, QStringView()).toString());
    }
  }
  return WithoutLeadingBlanks(pieces.join(u',')).toString();
}

}  // namespace

QStringList SplitCategories(QStringView categories) {
  QStringList names;
  AnyName(categories, [&names](QStringView name) {
    names.append(name.toString());
    return false;
  });
  return names;
}

QString JoinCategories(const QStringList& names) { return names.join(QStringLiteral(", ")); }

bool CategoriesMatch(QStringView chosen, QStringView categories) {
  if (chosen.isEmpty()) return categories.isEmpty();
  return AnyName(chosen, [categories](QStringView wanted) {
    return wanted != kNoCategories &&
           AnyName(categories, [wanted](QStringView name) { return name == wanted; });
  });
}

QString RemoveFromCategories(QStringView categories, QStringView name) {
  return Replaced(categories, name, {});
}

QString RenameInCategories(QStringView categories, QStringView from, QStringView to) {
  return Replaced(categories, from, CategoriesMatch(to, categories) ? QStringView() : to);
}

QStringList ValidCategories(const QStringList& names) {
  QStringList valid;
  for (const QString& name : names) {
    if (IsCategoryName(name) && !valid.contains(name)) valid.append(name);
  }
  return valid;
}

bool IsCategoryName(const QString& name) {
  const bool isReserved = name == kNoCategories || name == kShowAllCategories;
  return !isReserved && SplitCategories(name) == QStringList(name);
}

bool IsNewCategoryName(const QString& name) {
  return IsCategoryName(name) && name != kMoreCategories && name.size() <= kCategoryNameLimit;
}

}  // namespace quill
