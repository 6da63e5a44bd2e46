// Commands that only keys have: what a pen does by tapping the place itself.
#pragma once

namespace quill {

inline constexpr int ID_KEY_OK = 60100;
inline constexpr int ID_KEY_CLOSE = 60101;
inline constexpr int ID_KEY_MENU_BAR = 60102;
inline constexpr int ID_KEY_CONTEXT_MENU = 60103;
inline constexpr int ID_KEY_TITLE_MENU = 60104;
inline constexpr int ID_KEY_SEARCH = 60110;
inline constexpr int ID_KEY_CATEGORIES = 60111;
inline constexpr int ID_KEY_INDEX_FIRST = 60121;  // one for each button of the index strip
inline constexpr int ID_KEY_INDEX_LAST = 60125;

}  // namespace quill
