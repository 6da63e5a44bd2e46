#include "platform/KeyPanelState.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

struct ActionCase {
  KeyPanelState Before;
  KeyAction Action;
  KeyPanelState After;
};

class KeyPanelAction : public testing::TestWithParam<ActionCase> {};

TEST_P(KeyPanelAction, ChangesWhichKeysAreShown) {
  EXPECT_EQ(StateAfter(GetParam().Before, GetParam().Action), GetParam().After);
}

constexpr KeyPanelState kLatin{KeySet::Latin, KeyShift::Off};
constexpr KeyPanelState kLatinOnce{KeySet::Latin, KeyShift::Once};
constexpr KeyPanelState kLatinLocked{KeySet::Latin, KeyShift::Locked};
constexpr KeyPanelState kHangul{KeySet::Hangul, KeyShift::Off};
constexpr KeyPanelState kHangulOnce{KeySet::Hangul, KeyShift::Once};
constexpr KeyPanelState kSymbols{KeySet::Symbols, KeyShift::Off};

INSTANTIATE_TEST_SUITE_P(Shift, KeyPanelAction,
                         testing::Values(ActionCase{kLatin, KeyAction::Shift, kLatinOnce},
                                         ActionCase{kLatinOnce, KeyAction::Shift, kLatinLocked},
                                         ActionCase{kLatinLocked, KeyAction::Shift, kLatin},
                                         ActionCase{kHangul, KeyAction::Shift, kHangulOnce},
                                         ActionCase{kLatinOnce, KeyAction::Text, kLatin},
                                         ActionCase{kLatinLocked, KeyAction::Text, kLatinLocked},
                                         ActionCase{kHangulOnce, KeyAction::Jamo, kHangul}));
INSTANTIATE_TEST_SUITE_P(Sets, KeyPanelAction,
                         testing::Values(ActionCase{kLatinOnce, KeyAction::ToHangul, kHangul},
                                         ActionCase{kHangulOnce, KeyAction::ToLatin, kLatin},
                                         ActionCase{kLatinLocked, KeyAction::ToSymbols, kSymbols},
                                         ActionCase{kSymbols, KeyAction::ToLatin, kLatin}));
INSTANTIATE_TEST_SUITE_P(OtherKeys, KeyPanelAction,
                         testing::Values(ActionCase{kLatinOnce, KeyAction::Backspace, kLatinOnce},
                                         ActionCase{kHangulOnce, KeyAction::Return, kHangulOnce},
                                         ActionCase{kSymbols, KeyAction::Left, kSymbols}));

TEST(KeyPanelState, OnlyWhatCanBeTakenBackRepeats) {
  for (const KeyAction action : {KeyAction::Backspace, KeyAction::Left, KeyAction::Right})
    EXPECT_TRUE(Repeats(action)) << static_cast<int>(action);
  for (const KeyAction action :
       {KeyAction::Text, KeyAction::Jamo, KeyAction::Space, KeyAction::Return, KeyAction::Tab,
        KeyAction::Shift, KeyAction::ToLatin, KeyAction::ToHangul, KeyAction::ToSymbols})
    EXPECT_FALSE(Repeats(action)) << static_cast<int>(action);
}

struct HintCase {
  Qt::InputMethodHints Hints;
  KeySet Letters;
  KeySet First;
};

class KeyPanelHint : public testing::TestWithParam<HintCase> {};

TEST_P(KeyPanelHint, SaysWhatAnEditorBeginsWith) {
  EXPECT_EQ(FirstSet(GetParam().Hints, GetParam().Letters), GetParam().First);
}

INSTANTIATE_TEST_SUITE_P(
    Hints, KeyPanelHint,
    testing::Values(HintCase{Qt::ImhNone, KeySet::Latin, KeySet::Latin},
                    HintCase{Qt::ImhNone, KeySet::Hangul, KeySet::Hangul},
                    HintCase{Qt::ImhMultiLine, KeySet::Hangul, KeySet::Hangul},
                    HintCase{Qt::ImhDigitsOnly, KeySet::Hangul, KeySet::Symbols},
                    HintCase{Qt::ImhDialableCharactersOnly, KeySet::Hangul, KeySet::Symbols},
                    HintCase{Qt::ImhFormattedNumbersOnly, KeySet::Latin, KeySet::Symbols},
                    HintCase{Qt::ImhEmailCharactersOnly, KeySet::Hangul, KeySet::Latin},
                    HintCase{Qt::ImhUrlCharactersOnly, KeySet::Hangul, KeySet::Latin},
                    HintCase{Qt::ImhLatinOnly, KeySet::Hangul, KeySet::Latin}));

TEST(KeyPanelState, BeginsWithLatinLetters) {
  EXPECT_EQ(KeyPanelState{}, kLatin);
  EXPECT_EQ(KeyPanelMemory{}.Letters, KeySet::Latin);
}

}  // namespace
}  // namespace quill
