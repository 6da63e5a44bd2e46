#include "settings/DeleteScope.h"

namespace quill {

DeleteScope g_deleteScope = DeleteScope::Selected;

QString DeleteQuestion(DeleteScope scope) {
  return scope == DeleteScope::All
             ? QStringLiteral("All items in the list would be permanently Removed. Continue?")
             : QStringLiteral("Selected item(s) would be permanently removed. Continue?");
}

}  // namespace quill
