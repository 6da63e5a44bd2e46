// A list of check boxes without its window: what is painted where, what scrolls and where keys go.
// Pure layout, in logical pixels of the list; rows are counted from 0.
#pragma once

#include <QSize>
#include <QString>

#include <optional>
#include <vector>

#include "platform/PaintedRow.h"
#include "platform/TextFitting.h"

namespace quill {

struct CheckListItem {
  QString Text;
  bool Checked = false;

  bool operator==(const CheckListItem&) const = default;
};

struct CheckListModel {
  std::vector<CheckListItem> Items = {};
  int Current = -1;  // the row that keys act on, -1 none
  int Top = 0;       // the first row that is shown
};

inline constexpr int kCheckRowHeight = 20;
inline constexpr int kCheckListBarWidth = 15;

// One painted row for each item, with its index as key; those scrolled out lie outside the list. A
// text that is too wide for its row ends with dots.
std::vector<PaintedRow> LayOutCheckList(const CheckListModel& model, int width,
                                        const TextWidth& textWidth);

// How many rows are shown whole, at least 1.
int CheckRowsShown(int height);
// The greatest value of Top, 0 when all rows are shown.
int LastCheckTop(const CheckListModel& model, int height);
// Top, or the nearest to it at which the list has no empty end and this row, if there is one, is
// shown whole.
int CheckTopShowing(const CheckListModel& model, int row, int height);

// The row that one of Qt's keys makes current; nothing for other keys and in an empty list.
std::optional<int> CheckRowAfterKey(const CheckListModel& model, int key, int height);

}  // namespace quill
