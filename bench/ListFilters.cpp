#include "ListFilters.h"

#include <algorithm>

#include "list/CategoryFilter.h"
#include "list/IndexRanges.h"
#include "list/RestrictionText.h"
#include "list/Search.h"
#include "store/CategoryText.h"

namespace quill::bench {

namespace {

constexpr QStringView kFirstCategory = u"Friends";
constexpr QStringView kSecondCategory = u"Club";

ListFilter Filter(const QString& name, const ListState& list) {
  return {.Name = name, .Restriction = RestrictionText(list)};
}

ListFilter SearchFilter(const QString& text) {
  ListState list;
  SearchList(list, text);
  return Filter(QStringLiteral("search \"%1\"").arg(text), list);
}

ListFilter CategoryFilter(QStringView category, const QString& name) {
  ListState list;
  list.Filter = FilterKind::Category;
  list.CategoryName = category.toString();
  return Filter(name, list);
}

// In the order of companies, as its mode restricts it; button 0 is none.
ListFilter CompanyFilter(int button) {
  ListState list;
  list.Mode = ViewMode::ByCompany;
  ChooseIndexButton(list, button);
  ListFilter filter = Filter(QStringLiteral("by company"), list);
  if (button > 0) filter.Name += QStringLiteral(", button %1").arg(IndexButtonRange(button).Lower);
  filter.Order = ContactOrder::ByCompany;
  return filter;
}

ListFilter ButtonAndCategoryFilter(int button) {
  ListState list;
  ChooseIndexButton(list, button);
  list.CategoryName = kFirstCategory.toString();
  return Filter(QStringLiteral("button %1 and a category").arg(list.IndexLower), list);
}

}  // namespace

ListFilter IndexButtonFilter(int button) {
  ListState list;
  ChooseIndexButton(list, button);
  return Filter(QStringLiteral("button %1").arg(list.IndexLower), list);
}

std::vector<ListFilter> ListFilters() {
  std::vector<ListFilter> filters{{.Name = QStringLiteral("no filter")}};
  for (int button = 1; button <= kIndexButtonCount; ++button)
    filters.push_back(IndexButtonFilter(button));
  for (const QStringView text : {u"B", u"Bro", u"김", u"김민지"})
    filters.push_back(SearchFilter(text.toString()));
  filters.push_back(CategoryFilter(kFirstCategory, QStringLiteral("a category")));
  filters.push_back(CategoryFilter(kNoCategories, kNoCategories.toString()));
  filters.push_back(ButtonAndCategoryFilter(3));
  filters.push_back(ButtonAndCategoryFilter(kIndexButtonCount));
  filters.push_back(CompanyFilter(0));
  filters.push_back(CompanyFilter(3));
  filters.push_back(CompanyFilter(kIndexButtonCount));
  return filters;
}

std::vector<ListFilter> TwoCategoryFilters() {
  const QString name = QStringLiteral("two categories");
  const auto both = [&name](QStringView first, QStringView second) {
    return CategoryFilter(first.toString() + u',' + second.toString(), name);
  };
  return {both(kFirstCategory, kSecondCategory), both(kSecondCategory, kFirstCategory)};
}

std::optional<ContactCollection> Ask(ContactsFolder& folder, const ListFilter& filter) {
  ContactCollection collection = folder.Items();
  if (filter.Order != collection.Order) folder.Sort(collection, filter.Order);
  if (filter.Restriction.isEmpty()) return collection;
  return folder.Restrict(collection, filter.Restriction);
}

bool ReadPage(ContactsFolder& folder, const ContactCollection& collection, int total, int from) {
  const int end = std::min(from + kPageRows, total + 1);
  ContactRecord record;
  for (int position = from; position < end; ++position) {
    const Oid oid = folder.OidAt(collection, position);
    if (oid == 0 || !folder.ReadListRow(oid, record)) return false;
  }
  return true;
}

bool BuildList(ContactsFolder& folder, const ListFilter& filter) {
  const auto collection = Ask(folder, filter);
  return collection && ReadPage(folder, *collection, folder.Count(*collection), 1);
}

}  // namespace quill::bench
