// The bands of the contact list view from top to bottom, in logical pixels of the view: what stands
// there takes the taps. The rows between them belong to none.
#pragma once

#include <QRect>

#include "list/ListState.h"

namespace quill {

enum class TapBand { Title, IndexStrip, List };
enum class IndexStripMode { Shown, Off };

// As the page's length has it: the list is a row longer without the strip.
IndexStripMode IndexStripModeOf(const ListState& list);

// The band over the view's whole width. Empty for an index strip that is off; the list then begins
// in its place.
QRect TapBandArea(TapBand band, IndexStripMode mode);

// Where a tap means the category label.
QRect CategoryTapArea();

}  // namespace quill
