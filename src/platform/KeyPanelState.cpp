#include "platform/KeyPanelState.h"

namespace quill {

namespace {

constexpr Qt::InputMethodHints kDigitHints =
    Qt::ImhDigitsOnly | Qt::ImhDialableCharactersOnly | Qt::ImhFormattedNumbersOnly;
constexpr Qt::InputMethodHints kLatinHints =
    Qt::ImhEmailCharactersOnly | Qt::ImhUrlCharactersOnly | Qt::ImhLatinOnly;

KeyShift NextShift(KeyShift shift) {
  switch (shift) {
    case KeyShift::Off:
      return KeyShift::Once;
    case KeyShift::Once:
      return KeyShift::Locked;
    case KeyShift::Locked:
      return KeyShift::Off;
  }
  Q_UNREACHABLE();
}

}  // namespace

KeyPanelMemory g_keyPanel;

KeyPanelState StateAfter(const KeyPanelState& state, KeyAction action) {
  switch (action) {
    case KeyAction::Shift:
      return {state.Set, NextShift(state.Shift)};
    case KeyAction::ToLatin:
      return {KeySet::Latin};
    case KeyAction::ToHangul:
      return {KeySet::Hangul};
    case KeyAction::ToSymbols:
      return {KeySet::Symbols};
    case KeyAction::Text:
    case KeyAction::Jamo:
      return {state.Set, state.Shift == KeyShift::Once ? KeyShift::Off : state.Shift};
    default:
      return state;
  }
}

bool Repeats(KeyAction action) {
  return action == KeyAction::Backspace || action == KeyAction::Left || action == KeyAction::Right;
}

KeySet FirstSet(Qt::InputMethodHints hints, KeySet letters) {
  if (hints & kDigitHints) return KeySet::Symbols;
  return hints & kLatinHints ? KeySet::Latin : letters;
}

}  // namespace quill
