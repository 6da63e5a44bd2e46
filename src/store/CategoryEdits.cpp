#include "store/CategoryEdits.h"

#include <algorithm>
#include <functional>
#include <vector>

#include "store/Categories.h"
#include "store/CategoryText.h"
#include "store/ContactFields.h"
#include "store/ContactStore.h"
#include "store/Restriction.h"
#include "store/StoreLog.h"

namespace quill {

namespace {

using ChangeText = std::function<QString(const QString& categories)>;

QString RestrictionTo(const QString& category) {
  return QStringLiteral("[%1] = ").arg(FieldRow(ContactField::Categories).Property) +
         QuoteRestrictionValue(category);
}

// Their Oids at one time: the collection changes with every contact that is written.
std::vector<Oid> OidsOf(ContactsFolder& folder, const ContactCollection& collection) {
  std::vector<Oid> oids;
  const int count = folder.Count(collection);
  for (int position = 1; position <= count; ++position)
    oids.push_back(folder.OidAt(collection, position));
  return oids;
}

bool ChangeContact(ContactsFolder& folder, Oid oid, const ChangeText& change) {
  ContactItem item;
  if (!folder.Read(oid, item)) return false;
  QString& categories = item.Record[ContactField::Categories];
  categories = change(categories);
  return folder.SaveWhole(oid, item) != 0;
}

bool ChangeContactsOf(const QString& category, const ChangeText& change) {
  ContactsFolder& folder = *g_store.Provider->Contacts();
  const auto collection = folder.Restrict(folder.Items(), RestrictionTo(category));
  if (!collection) return false;
  const std::vector<Oid> oids = OidsOf(folder, *collection);
  return std::ranges::all_of(oids, [&](Oid oid) { return ChangeContact(folder, oid, change); });
}

CategoryEdit Written(bool done) { return done ? CategoryEdit::Done : CategoryEdit::NotWritten; }

// Whatever the work does holds only when it is done.
CategoryEdit InTransaction(const std::function<CategoryEdit()>& work) {
  const auto transaction = g_store.Provider ? g_store.Provider->Begin() : nullptr;
  CategoryEdit result = transaction ? work() : CategoryEdit::NotWritten;
  if (result == CategoryEdit::Done) result = Written(transaction->Commit());
  if (result == CategoryEdit::NotWritten) qCWarning(storeLog) << "The categories stay as they were";
  return result;
}

}  // namespace

CategoryEdit AddCategory(const QString& name) {
  if (!IsNewCategoryName(name)) return CategoryEdit::NotAName;
  return InTransaction([&name] {
    const QStringList names = UserCategories();
    if (names.contains(name)) return CategoryEdit::ExistsAlready;
    return Written(SetUserCategories(names + QStringList(name)));
  });
}

CategoryEdit RenameCategory(const QString& from, const QString& to) {
  if (!IsCategoryName(from) || !IsNewCategoryName(to)) return CategoryEdit::NotAName;
  return InTransaction([&from, &to] {
    QStringList names = UserCategories();
    if (names.contains(to)) return CategoryEdit::ExistsAlready;
    std::ranges::replace(names, from, to);
    return Written(SetUserCategories(names) && ChangeContactsOf(from, [&](const QString& text) {
                     return RenameInCategories(text, from, to);
                   }));
  });
}

CategoryEdit RemoveCategory(const QString& name) {
  if (!IsCategoryName(name)) return CategoryEdit::NotAName;
  return InTransaction([&name] {
    QStringList names = UserCategories();
    names.removeAll(name);
    return Written(SetUserCategories(names) && ChangeContactsOf(name, [&](const QString& text) {
                     return RemoveFromCategories(text, name);
                   }));
  });
}

int CountContactsOf(const QString& category) {
  return Count(RestrictContacts(AllContacts(), RestrictionTo(category)));
}

}  // namespace quill
