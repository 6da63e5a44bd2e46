#include "list/CategoryMenu.h"

#include <algorithm>

#include "list/CategoryFilter.h"
#include "resources/Ids.h"
#include "store/CategoryChoice.h"
#include "store/CategoryText.h"

namespace quill {

CategoryMenu g_categoryMenu;

namespace {

constexpr QChar kNameSeparator = u',';

void CheckOnly(CategoryMenu& menu, std::size_t position) {
  menu.Checked.assign(menu.Checked.size(), false);
  menu.Checked[position] = true;
}

// Positions end at the first end mark, also where that is a category's own position: intended.
std::ptrdiff_t CountPositions(const std::vector<int>& positions) {
  return std::ranges::find(positions, kCategoryPositionsEnd) - positions.begin();
}

}  // namespace

void FillCategoryMenu(CategoryMenu& menu, const QStringList& offered, const QString& chosen) {
  menu.Texts = QStringList(kShowAllCategories.toString()) + offered;
  menu.Texts.append(kMoreCategories.toString());
  menu.Checked.clear();
  const QStringList names = chosen.split(kNameSeparator);
  for (const QString& text : std::as_const(menu.Texts))
    menu.Checked.push_back(names.contains(text));
}

std::vector<MenuItem> CategoryMenuItems(const CategoryMenu& menu) {
  std::vector<MenuItem> items;
  int id = ID_CATEGORY_FIRST;
  for (const bool checked : menu.Checked) {
    const QString text = menu.Texts[id - ID_CATEGORY_FIRST];
    items.push_back({.Text = text, .Id = id++, .Checked = checked});
  }
  return items;
}

CategoryMenuChoice ChooseCategory(ListState& list, CategoryMenu& menu, int id) {
  const int position = id - ID_CATEGORY_FIRST;
  if (list.Mode == ViewMode::ByMemo || position < 0 || position >= menu.Texts.size())
    return CategoryMenuChoice::Ignored;
  const QString text = menu.Texts[position].left(kCategoryNameLimit);
  if (text == kMoreCategories) return CategoryMenuChoice::AskForMore;
  CheckOnly(menu, static_cast<std::size_t>(position));
  FilterByCategory(list, text, 1);
  return CategoryMenuChoice::Chosen;
}

bool ChooseSeveralCategories(ListState& list, CategoryMenu& menu, const QStringList& offered,
                             const QString& names, const std::vector<int>& positions) {
  if (names.isEmpty()) return false;
  const auto count = CountPositions(positions);
  FillCategoryMenu(menu, offered, {});
  for (auto position = positions.begin(); position != positions.begin() + count; ++position) {
    const auto item = static_cast<std::size_t>(*position) + 1;  // behind "Show All"
    if (item < menu.Checked.size()) menu.Checked[item] = true;
  }
  FilterByCategory(list, names, static_cast<int>(count));
  return true;
}

}  // namespace quill
