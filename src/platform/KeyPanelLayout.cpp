#include "platform/KeyPanelLayout.h"

#include <array>
#include <span>

#include "resources/KeyPictures.h"

namespace quill {

namespace {

constexpr int kPictureSize = 14;
constexpr Rgb kLetterFace = 0xFFFFFF;
constexpr Rgb kOtherFace = 0xDDE6EB;
constexpr Rgb kHeldFace = 0xD6EDBA;  // shift, while it holds
constexpr Rgb kPressedFace = 0x2F5568;
constexpr Rgb kInk = 0x000000;
constexpr Rgb kPressedInk = 0xFFFFFF;

constexpr std::array kBackspaceKey = {
    PanelKey{{}, KeyAction::Backspace, 2 * kKeyWidth, u"Backspace", &resources::kBackspacePicture}};
constexpr std::array kReturnKey = {
    PanelKey{{}, KeyAction::Return, 2 * kKeyWidth, u"Return", &resources::kReturnPicture}};
constexpr std::array kShiftKey = {
    PanelKey{{}, KeyAction::Shift, 2 * kKeyWidth, u"Shift", &resources::kShiftPicture}};

constexpr PanelKey kTabKey{u"Tab", KeyAction::Tab, 30, u"Tab"};
constexpr PanelKey kLatinKey{u"Abc", KeyAction::ToLatin, 35, u"Latin letters"};
constexpr PanelKey kHangulKey{u"한글", KeyAction::ToHangul, 35, u"Hangul"};
constexpr PanelKey kSymbolsKey{u"123", KeyAction::ToSymbols, 35, u"Digits and signs"};
constexpr PanelKey kSpaceKey{u"Space", KeyAction::Space, 80, u"Space"};
constexpr PanelKey kLeftKey{{}, KeyAction::Left, 30, u"Left", &resources::kLeftPicture};
constexpr PanelKey kRightKey{{}, KeyAction::Right, 30, u"Right", &resources::kRightPicture};

constexpr std::array kLatinFoot = {kTabKey,   kSymbolsKey, kHangulKey,
                                   kSpaceKey, kLeftKey,    kRightKey};
constexpr std::array kHangulFoot = {kTabKey,   kSymbolsKey, kLatinKey,
                                    kSpaceKey, kLeftKey,    kRightKey};
constexpr std::array kSymbolsFoot = {kTabKey,   kLatinKey, kHangulKey,
                                     kSpaceKey, kLeftKey,  kRightKey};

// Keys of one letter, between others.
struct KeyRow {
  std::span<const PanelKey> Before = {};
  QStringView Letters = {};
  std::span<const PanelKey> After = {};
};

using KeyPage = std::array<KeyRow, kKeyPanelSize.height() / kKeyRowHeight>;

constexpr KeyPage kLatinPage = {{{{}, u"1234567890", kBackspaceKey},
                                 {{}, u"qwertyuiop-_", {}},
                                 {{}, u"asdfghjkl'", kReturnKey},
                                 {kShiftKey, u"zxcvbnm,.@", {}},
                                 {kLatinFoot, {}, {}}}};
constexpr KeyPage kLatinShiftedPage = {{{{}, u"1234567890", kBackspaceKey},
                                        {{}, u"QWERTYUIOP-_", {}},
                                        {{}, u"ASDFGHJKL'", kReturnKey},
                                        {kShiftKey, u"ZXCVBNM,.@", {}},
                                        {kLatinFoot, {}, {}}}};
constexpr KeyPage kHangulPage = {{{{}, u"1234567890", kBackspaceKey},
                                  {{}, u"ㅂㅈㄷㄱㅅㅛㅕㅑㅐㅔ-_", {}},
                                  {{}, u"ㅁㄴㅇㄹㅎㅗㅓㅏㅣ'", kReturnKey},
                                  {kShiftKey, u"ㅋㅌㅊㅍㅠㅜㅡ,.@", {}},
                                  {kHangulFoot, {}, {}}}};
constexpr KeyPage kHangulShiftedPage = {{{{}, u"1234567890", kBackspaceKey},
                                         {{}, u"ㅃㅉㄸㄲㅆㅛㅕㅑㅒㅖ-_", {}},
                                         {{}, u"ㅁㄴㅇㄹㅎㅗㅓㅏㅣ'", kReturnKey},
                                         {kShiftKey, u"ㅋㅌㅊㅍㅠㅜㅡ,.@", {}},
                                         {kHangulFoot, {}, {}}}};
constexpr KeyPage kSymbolsPage = {{{{}, u"1234567890", kBackspaceKey},
                                   {{}, u"-+*#()/.,:@_", {}},
                                   {{}, u"!?'\"&%$;=~", kReturnKey},
                                   {{}, u"<>[]{}|\\^`₩·", {}},
                                   {kSymbolsFoot, {}, {}}}};

const KeyPage& PageOf(const KeyPanelState& state) {
  const bool shifted = state.Shift != KeyShift::Off;
  switch (state.Set) {
    case KeySet::Latin:
      return shifted ? kLatinShiftedPage : kLatinPage;
    case KeySet::Hangul:
      return shifted ? kHangulShiftedPage : kHangulPage;
    case KeySet::Symbols:
      return kSymbolsPage;
  }
  Q_UNREACHABLE();
}

bool IsJamo(QChar letter) { return letter >= u'ㄱ' && letter <= u'ㅣ'; }

PanelKey LetterKey(QStringView letter) {
  return {letter, IsJamo(letter.front()) ? KeyAction::Jamo : KeyAction::Text};
}

std::vector<PanelKey> KeysOf(const KeyRow& row) {
  std::vector<PanelKey> keys(row.Before.begin(), row.Before.end());
  for (qsizetype i = 0; i < row.Letters.size(); ++i)
    keys.push_back(LetterKey(row.Letters.sliced(i, 1)));
  keys.insert(keys.end(), row.After.begin(), row.After.end());
  return keys;
}

bool IsLetter(const PanelKey& key) { return key.Spoken.isEmpty(); }

Rgb FaceOf(const PanelKey& key, KeyShift shift) {
  if (IsLetter(key)) return kLetterFace;
  return key.Does == KeyAction::Shift && shift != KeyShift::Off ? kHeldFace : kOtherFace;
}

// Single letters are small in fonts that are made for whole syllables.
TextWeight WeightOf(const PanelKey& key) {
  return key.Does == KeyAction::Jamo ? TextWeight::Bold : TextWeight::Normal;
}

const resources::Picture* PictureOf(const PanelKey& key, KeyShift shift) {
  const bool locked = key.Does == KeyAction::Shift && shift == KeyShift::Locked;
  return locked ? &resources::kShiftLockPicture : key.Picture;
}

QRect PictureArea(QRect key) {
  return {key.left() + (key.width() - kPictureSize) / 2,
          key.top() + (key.height() - kPictureSize) / 2, kPictureSize, kPictureSize};
}

PaintedRow LayOutKey(const PanelKey& key, QRect area, KeyShift shift, bool pressed) {
  PaintedRow row{.Rectangle = area,
                 .SpokenName = (IsLetter(key) ? key.Label : key.Spoken).toString(),
                 .Role = PaintedRole::Button};
  row.State.setFlag(PaintedStateFlag::Checked,
                    key.Does == KeyAction::Shift && shift != KeyShift::Off);
  const Rgb ink = pressed ? kPressedInk : kInk;
  row.Items.push_back({.Rectangle = area.adjusted(1, 1, -1, -1),
                       .Fill = pressed ? kPressedFace : FaceOf(key, shift)});
  if (const resources::Picture* const picture = PictureOf(key, shift))
    row.Items.push_back({.Rectangle = PictureArea(area), .Color = ink, .Picture = picture});
  else
    row.Items.push_back({.Rectangle = area,
                         .Text = key.Label.toString(),
                         .Alignment = TextAlign::Centre,
                         .Weight = WeightOf(key),
                         .Color = ink});
  return row;
}

}  // namespace

std::vector<PaintedRow> LayOutKeyPanel(const KeyPanelState& state, int pressed) {
  std::vector<PaintedRow> rows;
  int top = 0;
  for (const KeyRow& keyRow : PageOf(state)) {
    int left = 0;
    for (const PanelKey& key : KeysOf(keyRow)) {
      const int number = static_cast<int>(rows.size());
      const QRect area(left, top, key.Width, kKeyRowHeight);
      rows.push_back(LayOutKey(key, area, state.Shift, number == pressed));
      rows.back().Key = number;
      left += key.Width;
    }
    top += kKeyRowHeight;
  }
  return rows;
}

std::optional<KeyIntention> IntentionOf(const KeyPanelState& state, int key) {
  int left = key;
  for (const KeyRow& row : PageOf(state)) {
    const std::vector<PanelKey> keys = KeysOf(row);
    const int count = static_cast<int>(keys.size());
    if (left >= 0 && left < count) {
      const PanelKey& found = keys[static_cast<std::size_t>(left)];
      if (found.Does == KeyAction::Space) return KeyIntention{KeyAction::Text, QStringLiteral(" ")};
      return KeyIntention{found.Does, IsLetter(found) ? found.Label.toString() : QString()};
    }
    left -= count;
  }
  return std::nullopt;
}

}  // namespace quill
