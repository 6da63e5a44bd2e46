// Holding: a pen that rests in its place for so long means a menu, not a tap.
#pragma once

namespace quill {

inline constexpr int kHoldMilliseconds = 500;

}  // namespace quill
