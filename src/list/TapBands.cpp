#include "list/TapBands.h"

namespace quill {

namespace {

constexpr int kViewWidth = 240;
constexpr int kListEnd = 270;  // the first pixel row below the list

constexpr QRect kTitle{0, 1, kViewWidth, 24};
constexpr QRect kIndexStrip{0, 26, kViewWidth, 19};
constexpr int kListTop = 45;
constexpr int kListTopWithoutStrip = 25;

constexpr int kCategoryLeft = 156;
constexpr int kCategoryWidth = 79;

}  // namespace

IndexStripMode IndexStripModeOf(const ListState& list) {
  return list.RowsPerPage == kRowsWithIndex ? IndexStripMode::Shown : IndexStripMode::Off;
}

QRect TapBandArea(TapBand band, IndexStripMode mode) {
  const bool hasStrip = mode == IndexStripMode::Shown;
  const int listTop = hasStrip ? kListTop : kListTopWithoutStrip;
  switch (band) {
    case TapBand::Title:
      return kTitle;
    case TapBand::IndexStrip:
      return hasStrip ? kIndexStrip : QRect();
    case TapBand::List:
      return {0, listTop, kViewWidth, kListEnd - listTop};
  }
  Q_UNREACHABLE();
}

QRect CategoryTapArea() { return {kCategoryLeft, kTitle.top(), kCategoryWidth, kTitle.height()}; }

}  // namespace quill
