#include "list/ui/CategoryCommands.h"

#include "list/CategoryFilter.h"
#include "list/CategoryMenu.h"
#include "list/ui/ContactsView.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"
#include "store/Categories.h"
#include "store/ui/CategoryChooser.h"

namespace quill {

namespace {

constexpr QPoint kMenuAt{158, 34};  // in the view

void ChooseSeveral(CContactsView& view) {
  QString names;
  std::vector<int> positions;
  const bool isDone = Cate_ShowCategoryList(
      *ScreenAround(&view), 1, names, positions,
      [](const QString& from, const QString& to) { FollowCategory(g_list, from, to); });
  const QStringList offered = OfferedCategories();
  if (isDone && ChooseSeveralCategories(g_list, g_categoryMenu, offered, names, positions))
    return view.ShowFiltered();
  ShowCategoriesAnew(view);
}

void Choose(CContactsView& view, int id) {
  switch (ChooseCategory(g_list, g_categoryMenu, id)) {
    case CategoryMenuChoice::Ignored:
      return;
    case CategoryMenuChoice::Chosen:
      return view.ShowFiltered();
    case CategoryMenuChoice::AskForMore:
      return ChooseSeveral(view);
  }
}

}  // namespace

std::unique_ptr<CommandTarget> MakeCategoryCommands(CContactsView& view) {
  const auto choose = [&view](int id) { Choose(view, id); };
  // The search button's id lies among theirs.
  constexpr int other = ContactsViewIds::kSearchButton;
  return std::make_unique<CommandTarget>(std::vector<CommandRow>{
      {ID_CATEGORY_FIRST, other - 1, choose}, {other + 1, ID_CATEGORY_LAST, choose}});
}

void ShowCategoriesAnew(CContactsView& view) {
  FillCategoryMenu(g_categoryMenu, OfferedCategories(), g_list.CategoryName);
  view.Rebuild();
}

void ShowCategoryMenu(CContactsView& view) {
  if (g_list.Mode == ViewMode::ByMemo) return;
  FillCategoryMenu(g_categoryMenu, OfferedCategories(), g_list.CategoryName);
  CScreen* const screen = ScreenAround(&view);
  const int id = screen->TrackMenu(view.mapTo(screen, kMenuAt), CategoryMenuItems(g_categoryMenu));
  if (id != 0) Choose(view, id);
}

}  // namespace quill
