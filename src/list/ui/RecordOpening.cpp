#include "list/ui/RecordOpening.h"

#include "editor/ui/EditRecordSheet.h"
#include "list/CategoryFilter.h"
#include "list/ui/CategoryCommands.h"
#include "list/ui/ContactsView.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"

namespace quill {

namespace {

void Run(CEditRecordSheet& sheet, CContactsView& view) {
  const bool isSaved = sheet.DoModal() == kResultOK;
  const std::vector<CategoryChange>& changes = sheet.CategoryChanges();
  for (const CategoryChange& change : changes) FollowCategory(g_list, change.From, change.To);
  if (!changes.empty())
    ShowCategoriesAnew(view);
  else if (isSaved)
    view.Rebuild();
}

}  // namespace

void EditContact(CContactsView& view, Oid oid) {
  CEditRecordSheet sheet(*ScreenAround(&view), QStringLiteral("Edit"));
  sheet.SetContact(oid);
  Run(sheet, view);
}

void MakeNewContact(CContactsView& view) {
  CEditRecordSheet sheet(*ScreenAround(&view), QStringLiteral("New"));
  Run(sheet, view);
}

}  // namespace quill
