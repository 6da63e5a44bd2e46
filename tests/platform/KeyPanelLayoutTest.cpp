#include "platform/KeyPanelLayout.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <algorithm>

#include "resources/KeyPictures.h"

namespace quill {
namespace {

constexpr KeyPanelState kStates[] = {{KeySet::Latin, KeyShift::Off},
                                     {KeySet::Latin, KeyShift::Once},
                                     {KeySet::Hangul, KeyShift::Off},
                                     {KeySet::Hangul, KeyShift::Once},
                                     {KeySet::Symbols, KeyShift::Off}};

class KeyPage : public testing::TestWithParam<KeyPanelState> {
 protected:
  std::vector<PaintedRow> Rows() const { return LayOutKeyPanel(GetParam(), -1); }
};

INSTANTIATE_TEST_SUITE_P(Pages, KeyPage, testing::ValuesIn(kStates));

int KeyNamed(const KeyPanelState& state, const QString& name) {
  const auto rows = LayOutKeyPanel(state, -1);
  const auto found = std::ranges::find(rows, name, &PaintedRow::SpokenName);
  return found == rows.end() ? -1 : found->Key;
}

std::optional<KeyIntention> Tap(const KeyPanelState& state, const QString& name) {
  return IntentionOf(state, KeyNamed(state, name));
}

// The texts that the keys of a page give when tapped.
QString TextsOf(const KeyPanelState& state) {
  QString texts;
  for (int key = 0; const auto intention = IntentionOf(state, key); ++key) texts += intention->Text;
  return texts;
}

TEST_P(KeyPage, ItsKeysFillFiveRowsWithoutGaps) {
  int left = 0;
  int top = 0;
  for (const PaintedRow& row : Rows()) {
    EXPECT_EQ(row.Rectangle.topLeft(), QPoint(left, top)) << row.SpokenName.toStdString();
    EXPECT_EQ(row.Rectangle.height(), 16);
    EXPECT_GE(row.Rectangle.width(), 20);
    left += row.Rectangle.width();
    ASSERT_LE(left, 240);
    if (left < 240) continue;
    left = 0;
    top += 16;
  }
  EXPECT_EQ(left, 0);
  EXPECT_EQ(top, 80);
}

TEST_P(KeyPage, ItsKeysAreNumberedAndAllMeanSomething) {
  const auto rows = Rows();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i].Key, static_cast<int>(i));
    EXPECT_EQ(rows[i].Role, PaintedRole::Button);
    EXPECT_FALSE(rows[i].SpokenName.isEmpty());
    EXPECT_TRUE(IntentionOf(GetParam(), rows[i].Key).has_value());
  }
  EXPECT_FALSE(IntentionOf(GetParam(), static_cast<int>(rows.size())).has_value());
  EXPECT_FALSE(IntentionOf(GetParam(), -1).has_value());
}

TEST_P(KeyPage, NoTwoKeysHaveTheSameName) {
  QStringList names;
  for (const PaintedRow& row : Rows()) names.append(row.SpokenName);
  EXPECT_EQ(names.removeDuplicates(), 0) << names.join(u' ').toStdString();
}

TEST_P(KeyPage, AFaceStandsOnePixelWithinItsKeyAndItsSignInTheMiddle) {
  for (const PaintedRow& row : Rows()) {
    ASSERT_EQ(row.Items.size(), 2U);
    EXPECT_EQ(row.Items[0].Rectangle, row.Rectangle.adjusted(1, 1, -1, -1));
    EXPECT_TRUE(row.Items[0].Fill.has_value());
    const PaintedItem& sign = row.Items[1];
    EXPECT_NE(sign.Text.isEmpty(), sign.Picture == nullptr) << row.SpokenName.toStdString();
    EXPECT_EQ(sign.Alignment, sign.Picture ? TextAlign::Left : TextAlign::Centre);
    EXPECT_LE((sign.Rectangle.center() - row.Rectangle.center()).manhattanLength(), 1);
    EXPECT_EQ(sign.Rectangle.height(), sign.Picture ? 14 : 16);
    EXPECT_EQ(sign.Rectangle.width(), sign.Picture ? 14 : row.Rectangle.width());
  }
}

TEST_P(KeyPage, HasTheKeysOfEveryPage) {
  const auto does = [](const QString& name) { return Tap(GetParam(), name).value().Does; };
  EXPECT_EQ(does(QStringLiteral("Backspace")), KeyAction::Backspace);
  EXPECT_EQ(does(QStringLiteral("Return")), KeyAction::Return);
  EXPECT_EQ(does(QStringLiteral("Tab")), KeyAction::Tab);
  EXPECT_EQ(does(QStringLiteral("Left")), KeyAction::Left);
  EXPECT_EQ(does(QStringLiteral("Right")), KeyAction::Right);
  EXPECT_EQ(Tap(GetParam(), QStringLiteral("Space")),
            (KeyIntention{KeyAction::Text, QStringLiteral(" ")}));
}

TEST_P(KeyPage, LeadsToTheTwoOtherSets) {
  const KeySet set = GetParam().Set;
  const auto leads = [](const QString& name, KeyAction action) {
    const auto intention = Tap(GetParam(), name);
    return intention && intention->Does == action && intention->Text.isEmpty();
  };
  EXPECT_EQ(leads(QStringLiteral("Latin letters"), KeyAction::ToLatin), set != KeySet::Latin);
  EXPECT_EQ(leads(QStringLiteral("Hangul"), KeyAction::ToHangul), set != KeySet::Hangul);
  EXPECT_EQ(leads(QStringLiteral("Digits and signs"), KeyAction::ToSymbols),
            set != KeySet::Symbols);
  EXPECT_EQ(leads(QStringLiteral("Shift"), KeyAction::Shift), set != KeySet::Symbols);
}

TEST_P(KeyPage, HasDigitsAndWhatAnAddressNeeds) {
  for (const QChar each : QStringLiteral("0123456789@.-_"))
    EXPECT_TRUE(TextsOf(GetParam()).contains(each)) << each.toLatin1();
}

TEST(KeyPanelLayout, EveryPrintableCharacterOfAsciiHasAKey) {
  QString texts;
  for (const KeyPanelState& state : kStates)
    if (state.Set != KeySet::Hangul) texts += TextsOf(state);
  for (char each = ' '; each <= '~'; ++each) EXPECT_TRUE(texts.contains(QLatin1Char(each))) << each;
}

TEST(KeyPanelLayout, SignsNeedNoLetters) {
  const QString texts = TextsOf({KeySet::Symbols});
  for (char each = ' '; each <= '~'; ++each) {
    const QLatin1Char character(each);
    EXPECT_EQ(texts.contains(character), !QChar(character).isLetter()) << each;
  }
}

TEST(KeyPanelLayout, EveryJamoOfTheTwoSetKeyboardHasAKey) {
  const QString plain = TextsOf({KeySet::Hangul});
  const QString shifted = TextsOf({KeySet::Hangul, KeyShift::Once});
  for (const QChar each : QStringLiteral("ㅂㅈㄷㄱㅅㅛㅕㅑㅐㅔㅁㄴㅇㄹㅎㅗㅓㅏㅣㅋㅌㅊㅍㅠㅜㅡ"))
    EXPECT_TRUE(plain.contains(each)) << QString(each).toStdString();
  for (const QChar each : QStringLiteral("ㅃㅉㄸㄲㅆㅛㅕㅑㅒㅖㅁㄴㅇㄹㅎㅗㅓㅏㅣㅋㅌㅊㅍㅠㅜㅡ"))
    EXPECT_TRUE(shifted.contains(each)) << QString(each).toStdString();
}

TEST(KeyPanelLayout, JamosAreToBeComposedAndLettersAreNot) {
  EXPECT_EQ(Tap({KeySet::Hangul}, QStringLiteral("ㄱ")),
            (KeyIntention{KeyAction::Jamo, QStringLiteral("ㄱ")}));
  EXPECT_EQ(Tap({KeySet::Hangul}, QStringLiteral("ㅣ")),
            (KeyIntention{KeyAction::Jamo, QStringLiteral("ㅣ")}));
  EXPECT_EQ(Tap({KeySet::Hangul}, QStringLiteral("7")),
            (KeyIntention{KeyAction::Text, QStringLiteral("7")}));
  EXPECT_EQ(Tap({KeySet::Symbols}, QStringLiteral("₩")),
            (KeyIntention{KeyAction::Text, QStringLiteral("₩")}));
}

TEST(KeyPanelLayout, JamosAreBoldAndOtherSignsAreNot) {
  const KeyPanelState hangul{KeySet::Hangul};
  for (const PaintedRow& row : LayOutKeyPanel(hangul, -1))
    EXPECT_EQ(row.Items[1].Weight == TextWeight::Bold,
              IntentionOf(hangul, row.Key)->Does == KeyAction::Jamo)
        << row.SpokenName.toStdString();
}

TEST(KeyPanelLayout, LockedLettersAreTheShiftedOnes) {
  EXPECT_EQ(TextsOf({KeySet::Latin, KeyShift::Locked}), TextsOf({KeySet::Latin, KeyShift::Once}));
  EXPECT_EQ(TextsOf({KeySet::Latin}).toUpper(), TextsOf({KeySet::Latin, KeyShift::Once}));
}

TEST(KeyPanelLayout, ThePressedKeyAloneIsReversed) {
  const auto plain = LayOutKeyPanel({}, -1);
  const auto pressed = LayOutKeyPanel({}, 3);
  for (std::size_t i = 0; i < plain.size(); ++i) {
    EXPECT_EQ(plain[i].Items[0].Fill == pressed[i].Items[0].Fill, i != 3) << i;
    EXPECT_EQ(plain[i].Items[1].Color == pressed[i].Items[1].Color, i != 3) << i;
  }
}

TEST(KeyPanelLayout, KeysOfLettersStandOutFromTheOthers) {
  const auto rows = LayOutKeyPanel({}, -1);
  const auto face = [&rows](const QString& name) {
    return std::ranges::find(rows, name, &PaintedRow::SpokenName)->Items[0].Fill;
  };
  EXPECT_EQ(face(QStringLiteral("q")), face(QStringLiteral("7")));
  EXPECT_EQ(face(QStringLiteral("Tab")), face(QStringLiteral("Shift")));
  EXPECT_NE(face(QStringLiteral("q")), face(QStringLiteral("Tab")));
}

TEST(KeyPanelLayout, ShiftShowsThatItHoldsAndThatItIsLocked) {
  const auto shift = [](KeyShift held) {
    const KeyPanelState state{KeySet::Latin, held};
    return LayOutKeyPanel(state,
                          -1)[static_cast<std::size_t>(KeyNamed(state, QStringLiteral("Shift")))];
  };
  const PaintedRow off = shift(KeyShift::Off);
  const PaintedRow once = shift(KeyShift::Once);
  const PaintedRow locked = shift(KeyShift::Locked);
  EXPECT_FALSE(off.State.testFlag(PaintedStateFlag::Checked));
  EXPECT_TRUE(once.State.testFlag(PaintedStateFlag::Checked));
  EXPECT_TRUE(locked.State.testFlag(PaintedStateFlag::Checked));
  EXPECT_NE(off.Items[0].Fill, once.Items[0].Fill);
  EXPECT_EQ(once.Items[0].Fill, locked.Items[0].Fill);
  EXPECT_EQ(once.Items[1].Picture, &resources::kShiftPicture);
  EXPECT_EQ(locked.Items[1].Picture, &resources::kShiftLockPicture);
}

TEST(KeyPanelLayout, OnlyShiftIsEverChecked) {
  for (const PaintedRow& row : LayOutKeyPanel({KeySet::Latin, KeyShift::Once}, -1))
    EXPECT_EQ(row.State.testFlag(PaintedStateFlag::Checked),
              row.SpokenName == QStringLiteral("Shift"));
}

}  // namespace
}  // namespace quill
