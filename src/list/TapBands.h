// The bands of the contact list view from top to bottom, in logical pixels of the view: what stands
// there takes the taps. The rows between them belong to none.
#pragma once

#include <QRect>

#include "settings/Settings.h"

namespace quill {

enum class TapBand { Title, IndexStrip, List };

// The band over the view's whole width. Empty for an index strip that is off; the list then begins
// in its place.
QRect TapBandArea(TapBand band, const Settings& settings);

// Where a tap means the category label.
QRect CategoryTapArea();

}  // namespace quill
