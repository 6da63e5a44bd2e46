// Where the list and its scroll bar stand in the view, with the index strip above them and without
// it.
#pragma once

#include <QRect>

#include "settings/Settings.h"

namespace quill {

struct ListAreas {
  int RowsPerPage;
  QRect List;  // logical pixels of the view
  QRect ScrollBar;

  bool operator==(const ListAreas&) const = default;
};

bool ShowsIndexStrip(const Settings& settings);

ListAreas LayOutAreas(const Settings& settings);

}  // namespace quill
