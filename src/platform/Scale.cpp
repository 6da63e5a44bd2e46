#include "platform/Scale.h"

#include <algorithm>

#include "platform/ScreenLayout.h"

namespace quill {

namespace {

constexpr int kUprightWidth = 600;  // a phone's screen, held upright, is no wider
constexpr QSize kSmallDesktop = {640, 480};

bool IsPlainDecimal(QStringView text) {
  return !text.isEmpty() && std::ranges::all_of(text, [](QChar unit) {
    return unit == u'.' || (u'0' <= unit && unit <= u'9');
  });
}

}  // namespace

std::optional<Scale> ParseScale(QStringView text) {
  if (!IsPlainDecimal(text)) return std::nullopt;
  bool isNumber = false;
  const double quarters = text.toDouble(&isNumber) * 4;
  if (!isNumber) return std::nullopt;
  if (quarters < kSmallestScale.Quarters || quarters > kLargestScale.Quarters) return std::nullopt;
  const Scale scale{static_cast<int>(quarters)};
  return scale.Quarters == quarters ? std::optional(scale) : std::nullopt;
}

QString ScaleText(Scale scale) { return QString::number(scale.Quarters / 4.0); }

Scale LargestFitting(QSize available) {
  const int quarters =
      std::min(available.width() * 4 / kScreenWidth, available.height() * 4 / kScreenHeight);
  return {std::clamp(quarters, kSmallestScale.Quarters, kLargestScale.Quarters)};
}

Scale FitScale(Scale wanted, QSize available) {
  return std::clamp(wanted, kSmallestScale, LargestFitting(available));
}

Scale StepUp(Scale scale, QSize available) { return FitScale({scale.Quarters + 1}, available); }

Scale StepDown(Scale scale) { return std::max(Scale{scale.Quarters - 1}, kSmallestScale); }

bool IsHandheldScreen(QSize desktop) {
  const bool upright = desktop.height() >= desktop.width() && desktop.width() <= kUprightWidth;
  const bool small =
      desktop.width() <= kSmallDesktop.width() && desktop.height() <= kSmallDesktop.height();
  return upright || small;
}

}  // namespace quill
