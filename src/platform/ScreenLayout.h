// The pen screen's fixed measures, in logical pixels.
#pragma once

namespace quill {

inline constexpr int kScreenWidth = 240;
inline constexpr int kScreenHeight = 320;
inline constexpr int kTitleBarHeight = 26;
inline constexpr int kMenuBarHeight = 24;
inline constexpr int kClientHeight = kScreenHeight - kTitleBarHeight - kMenuBarHeight;
inline constexpr int kInputPanelHeight = 80;

// A line of text, whatever the font's own metrics say: a cell of this height whose base line lies
// this far below its top.
inline constexpr int kCellHeight = 14;
inline constexpr int kCellAscent = 12;

}  // namespace quill
