#include "list/TapBands.h"

#include "list/ListAreas.h"

namespace quill {

namespace {

constexpr int kViewWidth = 240;

constexpr QRect kTitle{0, 1, kViewWidth, 24};
constexpr QRect kIndexStrip{0, 26, kViewWidth, 19};

constexpr int kCategoryLeft = 156;
constexpr int kCategoryWidth = 79;

}  // namespace

QRect TapBandArea(TapBand band, const Settings& settings) {
  switch (band) {
    case TapBand::Title:
      return kTitle;
    case TapBand::IndexStrip:
      return ShowsIndexStrip(settings) ? kIndexStrip : QRect();
    case TapBand::List:
      break;
  }
  const QRect list = LayOutAreas(settings).List;
  return {0, list.top(), kViewWidth, list.height()};
}

QRect CategoryTapArea() { return {kCategoryLeft, kTitle.top(), kCategoryWidth, kTitle.height()}; }

}  // namespace quill
