// The menu behind the category label: "Show All", the library's categories, "More...".
#pragma once

#include <QStringList>

#include <vector>

#include "list/ListState.h"
#include "platform/MenuModel.h"

namespace quill {

// As it was shown last. The item at a position (0-based) runs ID_CATEGORY_FIRST + position.
struct CategoryMenu {
  QStringList Texts = {};
  std::vector<bool> Checked = {};  // one for each text
};
extern CategoryMenu g_categoryMenu;

// offered: the library's categories, in its order. Checked is what chosen, names with commas
// between them, says exactly.
void FillCategoryMenu(CategoryMenu& menu, const QStringList& offered, const QString& chosen);

std::vector<MenuItem> CategoryMenuItems(const CategoryMenu& menu);

enum class CategoryMenuChoice {
  Ignored,     // by memo, or an id past the menu's last
  Chosen,      // the list is filtered by it now; its page is not built
  AskForMore,  // "More...": nothing has changed yet
};
CategoryMenuChoice ChooseCategory(ListState& list, CategoryMenu& menu, int id);

// What was chosen behind "More...": names as Cate_ShowCategoryList gives them, and their
// positions in it, ended by kCategoryPositionsEnd. No names: nothing changes, false.
bool ChooseSeveralCategories(ListState& list, CategoryMenu& menu, const QStringList& offered,
                             const QString& names, const std::vector<int>& positions);

}  // namespace quill
