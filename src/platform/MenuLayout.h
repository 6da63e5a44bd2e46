// Where a popup menu stands on the screen and what rows it shows: pure layout, in logical pixels.
#pragma once

#include <QRect>
#include <QStringView>

#include <vector>

#include "platform/MenuModel.h"
#include "platform/PaintedRow.h"
#include "platform/TextFitting.h"

namespace quill {

inline constexpr int kMenuRowHeight = 17;
inline constexpr int kMenuSeparatorHeight = 5;
inline constexpr int kMenuStripHeight = 10;

// Drop: below the anchor, above it when there is no room. Beside: a submenu at the anchor's right.
enum class MenuPlacement { Drop, Beside };

struct MenuLayoutRequest {
  QRect Anchor;  // on the screen; of empty size for a point
  MenuPlacement Placement = MenuPlacement::Drop;
  QSize Screen;       // the menu always stands inside and never takes all of it
  int FirstItem = 0;  // the first item shown, when not all fit
  int Current = -1;   // the highlighted item, -1 none
};

struct MenuLayout {
  QRect Frame;                   // on the screen
  std::vector<PaintedRow> Rows;  // relative to Frame; Key is the item's index
  int FirstItem = 0;             // the request's, clamped
  int LastItem = -1;             // the last item shown
  QRect UpStrip;                 // null when there is nothing more above
  QRect DownStrip;               // null when there is nothing more below
};

MenuLayout LayOutMenu(const std::vector<MenuItem>& items, const MenuLayoutRequest& request,
                      const TextWidth& width);

// The least FirstItem that brings this item into view, given the layout now shown.
int FirstItemToShow(const std::vector<MenuItem>& items, const MenuLayout& layout, int item);

// The next item in this direction (+1, -1) that can be highlighted, wrapping round; -1 when none
// can.
int NextMenuItem(const std::vector<MenuItem>& items, int from, int step);

}  // namespace quill
