// Which keys the key panel shows, and how its own keys change that.
#pragma once

#include <Qt>

namespace quill {

enum class KeySet { Latin, Hangul, Symbols };
enum class KeyShift { Off, Once, Locked };

struct KeyPanelState {
  KeySet Set = KeySet::Latin;
  KeyShift Shift = KeyShift::Off;

  bool operator==(const KeyPanelState&) const = default;
};

// What a key does. Text and Jamo type the key's letter; a jamo is to be composed.
enum class KeyAction {
  Text,
  Jamo,
  Space,
  Backspace,
  Return,
  Tab,
  Left,
  Right,
  Shift,
  ToLatin,
  ToHangul,
  ToSymbols,
};

// Shift holds for one letter; tapped twice it stays until it is tapped again.
KeyPanelState StateAfter(const KeyPanelState& state, KeyAction action);

// Whether the key acts again and again while it is held.
bool Repeats(KeyAction action);

// What an editor begins with: as its hints ask, else the letters that were used last.
KeySet FirstSet(Qt::InputMethodHints hints, KeySet letters);

// What outlives the panel's window.
struct KeyPanelMemory {
  KeySet Letters = KeySet::Latin;  // that the user chose last, never Symbols
};
extern KeyPanelMemory g_keyPanel;

}  // namespace quill
