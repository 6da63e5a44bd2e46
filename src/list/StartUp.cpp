#include "list/StartUp.h"

#include "list/CategoryMenu.h"
#include "list/ListAreas.h"
#include "list/PageBuilding.h"
#include "memo/MemoFolder.h"
#include "settings/Settings.h"
#include "store/Categories.h"

namespace quill {

namespace {

void TakeSettings() {
  LoadSettings(g_settings);
  g_list.RowsPerPage = LayOutAreas(g_settings).RowsPerPage;
}

}  // namespace

StartupCode StartList(StoreProvider& provider) {
  const StartupCode code = OpenSession(provider);
  if (code != StartupCode::Opened) {
    TakeSettings();  // the configuration works without a session, and saves what it was given
    return code;
  }
  FixMemoFolder(g_memo);
  TakeSettings();
  Cate_OpenCreate_DB();  // a failure is on the log: the list works without
  FillCategoryMenu(g_categoryMenu, OfferedCategories(), g_list.CategoryName);
  BuildPage(g_list);
  return code;
}

}  // namespace quill
