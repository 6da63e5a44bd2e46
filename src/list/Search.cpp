#include "list/Search.h"

#include "list/CategoryFilter.h"
#include "list/Selection.h"

namespace quill {

void SearchList(ListState& list, const QString& text) {
  list.SearchText = text;
  list.Filter = text.isEmpty() ? FilterKind::None : FilterKind::Range;
  list.SubFilter = text.isEmpty() ? FilterSubKind::None : FilterSubKind::SearchText;
  DropCategory(list);
  list.IndexButton = 0;
  list.Top = 0;
  DropSelection(list);
}

}  // namespace quill
