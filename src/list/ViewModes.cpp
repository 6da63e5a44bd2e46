#include "list/ViewModes.h"

#include "list/CategoryFilter.h"
#include "list/Selection.h"

namespace quill {

void SwitchViewMode(ListState& list, ViewMode mode) {
  list.Mode = mode;
  list.Filter = FilterKind::None;
  list.SubFilter = FilterSubKind::None;
  DropCategory(list);
  list.Top = 0;
  DropSelection(list);
  list.IndexButton = 0;
}

}  // namespace quill
