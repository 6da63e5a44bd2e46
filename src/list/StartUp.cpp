#include "list/StartUp.h"

#include "list/CategoryMenu.h"
#include "list/ListAreas.h"
#include "list/PageBuilding.h"
#include "memo/MemoFolder.h"
#include "settings/Settings.h"
#include "store/Categories.h"

namespace quill {

StartupCode StartList(StoreProvider& provider) {
  const StartupCode code = OpenSession(provider);
  if (code != StartupCode::Opened) return code;
  FixMemoFolder(g_memo);
  LoadSettings(g_settings);
  g_list.RowsPerPage = LayOutAreas(g_settings).RowsPerPage;
  Cate_OpenCreate_DB();  // a failure is on the log: the list works without
  FillCategoryMenu(g_categoryMenu, OfferedCategories(), g_list.CategoryName);
  BuildPage(g_list);
  return code;
}

}  // namespace quill
