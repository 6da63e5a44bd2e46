#include "store/CategoryChoice.h"

#include <algorithm>

#include "platform/TextFitting.h"
#include "store/CategoryText.h"

namespace quill {

namespace {

bool IsChecked(const CategoryItems& items, const QString& name) {
  return std::ranges::any_of(
      items, [&name](const CheckListItem& item) { return item.Checked && item.Text == name; });
}

QString ShortName(const QString& name) {
  if (name.size() <= kCategoryInTextLimit) return name;
  return CutText(name, kCategoryInTextLimit) + QStringLiteral("...");
}

}  // namespace

CategoryItems CheckedCategories(QStringView names) {
  CategoryItems items;
  for (const QString& name : SplitCategories(names)) items.push_back({name, true});
  return items;
}

CategoryItems OfferCategories(const QStringList& offered, const CategoryItems& before) {
  QStringList names = offered;
  for (const CheckListItem& item : before) names.append(item.Text);
  names.removeDuplicates();
  CategoryItems items;
  for (const QString& name : names) items.push_back({name, IsChecked(before, name)});
  return items;
}

CategoryItems WithCategory(CategoryItems items, const QString& name) {
  items.push_back({name, true});
  return items;
}

CategoryItems WithoutCategory(CategoryItems items, const QString& name) {
  std::erase_if(items, [&name](const CheckListItem& item) { return item.Text == name; });
  return items;
}

CategoryItems WithCategoryRenamed(CategoryItems items, const QString& from, const QString& to) {
  for (CheckListItem& item : items)
    if (item.Text == from) item.Text = to;
  return items;
}

CategoryChoice ChosenCategories(const CategoryItems& items) {
  QStringList names;
  CategoryChoice choice;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (!items[i].Checked) continue;
    names.append(items[i].Text);
    choice.Positions.push_back(static_cast<int>(i));
  }
  choice.Names = names.join(u',');
  choice.Positions.push_back(kCategoryPositionsEnd);
  return choice;
}

QString CategoryRemovalQuestion(const QString& name, int contacts) {
  const QString shown = ShortName(name);
  if (contacts == 0)
    return QStringLiteral("No contact has the category \"%1\". Remove it from the list?")
        .arg(shown);
  if (contacts == 1)
    return QStringLiteral(
               "1 contact has the category \"%1\". Remove it from the contact and the list?")
        .arg(shown);
  return QStringLiteral("%1 contacts have the category \"%2\". Remove it from them and the list?")
      .arg(QString::number(contacts), shown);
}

QString CategoryEditRefusal(CategoryEdit edit, const QString& name) {
  switch (edit) {
    case CategoryEdit::Done:
      break;
    case CategoryEdit::NotAName:
      return QStringLiteral(
                 "\"%1\" cannot be a category: a name has no comma and is none of \"Show All\", "
                 "\"No Categories\" and \"More...\".")
          .arg(ShortName(name));
    case CategoryEdit::ExistsAlready:
      return QStringLiteral("There is a category \"%1\" already.").arg(ShortName(name));
    case CategoryEdit::NotWritten:
      return QStringLiteral("The categories cannot be saved now. They stay as they are.");
  }
  return {};
}

}  // namespace quill
