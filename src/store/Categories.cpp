#include "store/Categories.h"

#include "store/CategoryText.h"
#include "store/ContactStore.h"
#include "store/StoreLog.h"

namespace quill {

namespace {

CategoryLibrary* Library() { return g_store.Provider ? g_store.Provider->Categories() : nullptr; }

}  // namespace

bool Cate_OpenCreate_DB() {
  if (Library()) return true;
  qCWarning(storeLog) << "There is no category library";
  return false;
}

QStringList UserCategories() {
  CategoryLibrary* library = Library();
  return library ? library->Names() : QStringList();
}

QStringList OfferedCategories() { return UserCategories() << kNoCategories.toString(); }

QString Cate_GetCategoryList(int) { return OfferedCategories().join(u','); }

bool SetUserCategories(const QStringList& names) {
  CategoryLibrary* library = Library();
  if (library && library->SetNames(names)) return true;
  qCWarning(storeLog) << "Categories not written";
  return false;
}

}  // namespace quill
