// The tabs of a property sheet as painted rows, and the keys that switch its pages. Pure layout, in
// logical pixels of the strip of tabs; pages are counted from 0.
#pragma once

#include <QSize>
#include <QStringList>

#include <optional>
#include <vector>

#include "platform/PaintedRow.h"

namespace quill {

inline constexpr int kSheetTabsHeight = 22;

struct SheetTabsModel {
  QStringList Titles;
  int Active = -1;   // the page that is shown, -1 none
  int Pressed = -1;  // the tab under the pen, -1 none
};

// One row for each page, with its number as key. Tabs are equally wide and fill the strip.
std::vector<PaintedRow> LayOutSheetTabs(const SheetTabsModel& model, QSize size);

// The page that one of Qt's keys leads to, round the ends; nothing for other keys and without
// pages.
std::optional<int> SheetPageAfterKey(const SheetTabsModel& model, int key,
                                     Qt::KeyboardModifiers modifiers);

}  // namespace quill
