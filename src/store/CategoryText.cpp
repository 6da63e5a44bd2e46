#include "store/CategoryText.h"

#include <algorithm>

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
    return AnyName(categories, [wanted](QStringView name) { return name == wanted; });
  });
}

QStringList ValidCategories(const QStringList& names) {
  QStringList valid;
  for (const QString& name : names) {
    const bool isOneName = SplitCategories(name) == QStringList(name);
    if (isOneName && name != kNoCategories && !valid.contains(name)) valid.append(name);
  }
  return valid;
}

}  // namespace quill
