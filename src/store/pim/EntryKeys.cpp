#include "store/pim/EntryKeys.h"

#include "store/CategoryText.h"
#include "store/Collation.h"

namespace quill {

namespace {

constexpr int kOrdersWithoutCategories = 2;
constexpr int kOrdersWithCategories = 2;

QByteArray OrderKey(EntryOrder order) { return QByteArray(1, static_cast<char>(order)); }

QByteArray CategoryKey(EntryOrder order, QStringView category) {
  return OrderKey(order) + UnitKey(category);
}

// The categories a contact is found under: no name twice, the empty one for a contact without any.
QStringList EntryCategories(QStringView categories) {
  if (categories.isEmpty()) return {QString()};
  QStringList names = SplitCategories(categories);
  names.removeDuplicates();
  return names;
}

QByteArray CompanyKey(const ContactKeyTexts& texts) {
  return FoldKey(texts.CompanyName) + '\0' + FoldKey(texts.FileAs);
}

}  // namespace

KeyRange WholeOrder(EntryOrder order) {
  return {.From = OrderKey(order), .To = QByteArray(1, static_cast<char>(order) + 1)};
}

KeyRange WholeCategory(EntryOrder order, QStringView category) {
  const QByteArray key = CategoryKey(order, category);
  return {.From = key + '\0', .To = key + '\1'};
}

int ContactEntryCount(QStringView categories) {
  const auto names = static_cast<int>(EntryCategories(categories).size());
  return kOrdersWithoutCategories + kOrdersWithCategories * names;
}

QByteArray ContactEntryKey(const ContactKeyTexts& texts, int number) {
  if (number == 0) return OrderKey(EntryOrder::FileAs) + FoldKey(texts.FileAs);
  if (number == 1) return OrderKey(EntryOrder::Company) + CompanyKey(texts);
  const int name = (number - kOrdersWithoutCategories) / kOrdersWithCategories;
  const QString category = EntryCategories(texts.Categories).value(name);
  if (number % kOrdersWithCategories == 0) {
    return CategoryKey(EntryOrder::CategoryFileAs, category) + '\0' + FoldKey(texts.FileAs);
  }
  return CategoryKey(EntryOrder::CategoryCompany, category) + '\0' + CompanyKey(texts);
}

QByteArray SubjectEntryKey(QStringView subject) {
  return OrderKey(EntryOrder::Subject) + UnitKey(subject);
}

}  // namespace quill
