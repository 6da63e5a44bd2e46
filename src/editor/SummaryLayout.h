// A contact's summary card: where it stands on the screen and what is painted on it, in logical
// pixels.
#pragma once

#include <QRect>

#include <vector>

#include "editor/SummaryText.h"
#include "platform/PaintedRow.h"
#include "platform/TextFitting.h"

namespace quill {

inline constexpr int kCardWidth = 180;
inline constexpr Rgb kCardBackground = 0xFFFFE1;
inline constexpr Rgb kCardColor = 0x009664;

// How many lines high the card's text is; 0 when there is nothing to show.
int CardLineCount(const std::vector<SummaryLine>& lines);
int CardHeight(int lineCount);

// The card's rectangle on the screen. AnchorY is a y in the list, whose top on the screen is
// listTop: the upper rows have their card below, the others above.
QRect PlaceCard(int lineCount, int anchorY, int listTop);

// The card's ground and its lines, an address wrapped in as many as it may take; what is longer is
// not shown.
std::vector<PaintedRow> LayOutCard(const std::vector<SummaryLine>& lines, const TextWidth& width);

}  // namespace quill
