// The category library's chooser.
#pragma once

namespace quill {
inline constexpr int kCategoryPositionsEnd = 35;
}  // namespace quill
