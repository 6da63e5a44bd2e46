// What belongs to the record sheet that is open, process-wide: only one is open at a time.
#pragma once

#include <QString>

#include <array>
#include <cstddef>

namespace quill {

// The telephone rows that say whether the contact had a number when its sheet opened.
enum class PhoneFlag { Home2, Home, Work2, Work, Mobile2, Mobile };
inline constexpr std::size_t kPhoneFlagCount = 6;

// In the order of PhoneFlag. Set and cleared with the rows; nothing decides by them, intended.
using PhoneFlags = std::array<bool, kPhoneFlagCount>;

constexpr std::size_t IndexOf(PhoneFlag flag) { return static_cast<std::size_t>(flag); }

struct SheetState {
  quill::PhoneFlags PhoneFlags = {};
  QString SeedText = {};  // waits for the next new contact, which uses it up
};
extern SheetState g_sheet;

}  // namespace quill
