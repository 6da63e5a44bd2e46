#include "platform/HangulComposer.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <ostream>

namespace quill {
namespace {

constexpr QStringView kLeads = u"ㄱㄲㄴㄷㄸㄹㅁㅂㅃㅅㅆㅇㅈㅉㅊㅋㅌㅍㅎ";

// Every vowel and every final of a syllable with the keys that make it, in the order of the code
// table; the first final is none.
const QStringList& Vowels() {
  static const QStringList vowels =
      QStringLiteral("ㅏ ㅐ ㅑ ㅒ ㅓ ㅔ ㅕ ㅖ ㅗ ㅗㅏ ㅗㅐ ㅗㅣ ㅛ ㅜ ㅜㅓ ㅜㅔ ㅜㅣ ㅠ ㅡ ㅡㅣ ㅣ")
          .split(u' ');
  return vowels;
}

const QStringList& Finals() {
  static const QStringList finals = QStringLiteral(
                                        ",ㄱ,ㄲ,ㄱㅅ,ㄴ,ㄴㅈ,ㄴㅎ,ㄷ,ㄹ,ㄹㄱ,ㄹㅁ,ㄹㅂ,ㄹㅅ,ㄹㅌ,"
                                        "ㄹㅍ,ㄹㅎ,ㅁ,ㅂ,ㅂㅅ,ㅅ,ㅆ,ㅇ,ㅈ,ㅊ,ㅋ,ㅌ,ㅍ,ㅎ")
                                        .split(u',');
  return finals;
}

// The letters of the compatibility block that stand alone for these vowels.
constexpr QStringView kVowelLetters = u"ㅏㅐㅑㅒㅓㅔㅕㅖㅗㅘㅙㅚㅛㅜㅝㅞㅟㅠㅡㅢㅣ";

QString Syllable(qsizetype lead, qsizetype vowel, qsizetype final) {
  return QChar(static_cast<char16_t>(0xAC00 + (lead * 21 + vowel) * 28 + final));
}

// What all keys committed, and the preedit after the last.
HangulStep FeedAll(HangulComposer& composer, QStringView keys) {
  HangulStep all;
  for (const QChar key : keys) {
    const HangulStep step = composer.Feed(key.unicode());
    all = {all.Committed + step.Committed, step.Preedit};
  }
  return all;
}

QString Typed(QStringView keys) {
  HangulComposer composer;
  const QString committed = FeedAll(composer, keys).Committed;
  return committed + composer.Flush();
}

TEST(HangulComposer, EverySyllableThereIsIsMadeOfItsKeys) {
  ASSERT_EQ(kLeads.size() * Vowels().size() * Finals().size(), 11172);
  for (qsizetype lead = 0; lead < kLeads.size(); ++lead)
    for (qsizetype vowel = 0; vowel < Vowels().size(); ++vowel)
      for (qsizetype final = 0; final < Finals().size(); ++final) {
        const QString keys = kLeads[lead] + Vowels()[vowel] + Finals()[final];
        HangulComposer composer;
        ASSERT_EQ(FeedAll(composer, keys), (HangulStep{{}, Syllable(lead, vowel, final)}))
            << keys.toStdString();
      }
}

TEST(HangulComposer, EveryFinalGoesOnToAVowelThatFollows) {
  for (qsizetype final = 1; final < Finals().size(); ++final) {
    const QString keys = Finals()[final];
    const qsizetype kept = keys.size() == 1 ? 0 : Finals().indexOf(keys.first(1));
    const qsizetype moved = kLeads.indexOf(keys.back());
    HangulComposer composer;
    EXPECT_EQ(FeedAll(composer, QStringLiteral("ㄱㅏ") + keys + QStringLiteral("ㅣ")),
              (HangulStep{Syllable(0, 0, kept), Syllable(moved, 20, 0)}))
        << keys.toStdString();
  }
}

TEST(HangulComposer, BackspaceGoesBackOverEveryKeyOfEverySyllable) {
  for (qsizetype vowel = 0; vowel < Vowels().size(); ++vowel)
    for (const QString& final : Finals()) {
      const QString keys = QStringLiteral("ㅎ") + Vowels()[vowel] + final;
      HangulComposer composer;
      FeedAll(composer, keys);
      for (qsizetype left = keys.size() - 1; left >= 0; --left) {
        HangulComposer shorter;
        const HangulStep expected{{}, FeedAll(shorter, keys.first(left)).Preedit};
        ASSERT_EQ(composer.Backspace(), expected) << keys.toStdString() << " at " << left;
      }
      EXPECT_FALSE(composer.IsComposing());
    }
}

TEST(HangulComposer, VowelsAloneAreTheirLettersAndCanBeTakenBack) {
  for (qsizetype vowel = 0; vowel < Vowels().size(); ++vowel) {
    const QString keys = Vowels()[vowel];
    HangulComposer composer;
    EXPECT_EQ(FeedAll(composer, keys), (HangulStep{{}, kVowelLetters[vowel]}));
    const QString left = keys.size() == 1 ? QString() : keys.first(1);
    EXPECT_EQ(composer.Backspace(), (HangulStep{{}, left}));
  }
}

TEST(HangulComposer, ConsonantsAloneAreTheirLetters) {
  for (const QChar lead : kLeads) {
    HangulComposer composer;
    EXPECT_EQ(composer.Feed(lead.unicode()), (HangulStep{{}, lead}));
    EXPECT_EQ(composer.Backspace(), HangulStep{});
  }
}

struct TypingCase {
  QString Keys;
  QString Text;
};

void PrintTo(const TypingCase& each, std::ostream* out) { *out << each.Keys.toStdString(); }

class HangulTyping : public testing::TestWithParam<TypingCase> {};

TEST_P(HangulTyping, Makes) { EXPECT_EQ(Typed(GetParam().Keys), GetParam().Text); }

TypingCase Case(const char16_t* keys, const char16_t* text) {
  return {QString::fromUtf16(keys), QString::fromUtf16(text)};
}

INSTANTIATE_TEST_SUITE_P(
    Words, HangulTyping,
    testing::Values(Case(u"ㄱㅣㅁㅊㅓㄹㅅㅜ", u"김철수"), Case(u"ㅇㅗㅏㄴㄱㅏㅂㅅㅏ", u"완갑사"),
                    Case(u"ㄷㅏㄹㄱㅇㅣ", u"닭이"), Case(u"ㄷㅏㄹㄱㅣ", u"달기"),
                    Case(u"ㄱㅏㅂㅅㅇㅡㄴ", u"값은"), Case(u"ㅇㅣㅆㅇㅓ", u"있어"),
                    Case(u"ㅇㅣㅆㅓ", u"이써"), Case(u"ㄲㅗㅊ", u"꽃"),
                    Case(u"ㅇㅡㅣㅈㅏ", u"의자"), Case(u"ㅎㅏㄴㄱㅜㄱ", u"한국")));
// What finds no place in a syllable begins the next one.
INSTANTIATE_TEST_SUITE_P(Ends, HangulTyping,
                         testing::Values(Case(u"ㄱㄱㅏ", u"ㄱ가"), Case(u"ㄱㅅㅏ", u"ㄱ사"),
                                         Case(u"ㅏㄱ", u"ㅏㄱ"), Case(u"ㅏㅏ", u"ㅏㅏ"),
                                         Case(u"ㅗㅏㅣ", u"ㅘㅣ"), Case(u"ㅗㅏㄱㅏ", u"ㅘ가"),
                                         Case(u"ㄱㅏㅏ", u"가ㅏ"), Case(u"ㄱㅗㅏㅣ", u"과ㅣ"),
                                         Case(u"ㄱㅏㄸㅏ", u"가따"), Case(u"ㄱㅏㅃ", u"가ㅃ"),
                                         Case(u"ㄱㅏㅉ", u"가ㅉ"), Case(u"ㄱㅏㄱㄱㅏ", u"각가"),
                                         Case(u"ㄱㅏㄹㄱㅅ", u"갉ㅅ"), Case(u"ㄱㅏㄴㄷ", u"간ㄷ")));
INSTANTIATE_TEST_SUITE_P(OtherCharacters, HangulTyping,
                         testing::Values(Case(u"ㄱㅏ1ㄴㅏ", u"가1나"), Case(u"ㄱㅏㄳ", u"가ㄳ"),
                                         Case(u" ㄱ", u" ㄱ"), Case(u"ㄱㅏㆎ", u"가ㆎ")));

TEST(HangulComposer, SaysWhetherItComposes) {
  HangulComposer composer;
  EXPECT_FALSE(composer.IsComposing());
  composer.Feed(u'ㄱ');
  EXPECT_TRUE(composer.IsComposing());
  EXPECT_EQ(composer.Preedit(), QStringLiteral("ㄱ"));
  EXPECT_EQ(composer.Flush(), QStringLiteral("ㄱ"));
  EXPECT_FALSE(composer.IsComposing());
  EXPECT_EQ(composer.Flush(), QString());
  EXPECT_EQ(composer.Backspace(), HangulStep{});
}

TEST(HangulComposer, BackspaceStopsAtTheSyllableBefore) {
  HangulComposer composer;
  FeedAll(composer, u"ㄷㅏㄹㄱㅣ");
  EXPECT_EQ(composer.Backspace(), (HangulStep{{}, QStringLiteral("ㄱ")}));
  EXPECT_EQ(composer.Backspace(), HangulStep{});
  EXPECT_EQ(composer.Feed(u'ㅏ'), (HangulStep{{}, QStringLiteral("ㅏ")}));
}

TEST(HangulComposer, AKeyTakenBackCanBeTypedAnew) {
  HangulComposer composer;
  FeedAll(composer, u"ㄱㅏㅂㅅ");
  composer.Backspace();
  EXPECT_EQ(FeedAll(composer, u"ㅅㅏ"), (HangulStep{QStringLiteral("갑"), QStringLiteral("사")}));
}

}  // namespace
}  // namespace quill
