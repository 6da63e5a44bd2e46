// How large the pen screen stands on the desktop, on top of the desktop's own scale.
#pragma once

#include <QSize>
#include <QString>

#include <compare>
#include <optional>

namespace quill {

// In quarters: 4 is one desktop pixel for each logical pixel, 8 is two.
struct Scale {
  int Quarters = 8;

  auto operator<=>(const Scale&) const = default;
};

inline constexpr Scale kSmallestScale{4};
inline constexpr Scale kLargestScale{32};

// A decimal number from 1 to 8 that is a multiple of 0.25, such as "2" or "1.25".
std::optional<Scale> ParseScale(QStringView text);

// The shortest such number; the form of QT_SCALE_FACTOR.
QString ScaleText(Scale scale);

// The largest scale at which the whole screen fits into this many desktop pixels; the smallest
// scale when none does.
Scale LargestFitting(QSize available);

// The wanted scale, lowered until it fits; one step up if that still fits; one step down.
Scale FitScale(Scale wanted, QSize available);
Scale StepUp(Scale scale, QSize available);
Scale StepDown(Scale scale);

// Whether a desktop of this many pixels is a handheld's: upright and narrow, or small either way.
bool IsHandheldScreen(QSize desktop);

}  // namespace quill
