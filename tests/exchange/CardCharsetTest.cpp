#include "exchange/CardCharset.h"

#include <gtest/gtest.h>

namespace quill::test {
namespace {

struct CharsetCase {
  const char* Declared;
  const char* Fallback;
  const char* Bytes;
  const char16_t* Text;
};

class CardCharsets : public testing::TestWithParam<CharsetCase> {};

TEST_P(CardCharsets, DecodeTheBytes) {
  const CharsetCase& c = GetParam();
  EXPECT_EQ(DecodeText(c.Bytes, c.Declared, c.Fallback).toStdU16String(), c.Text);
}

// 0x8141 and 0x81A1 are syllables that only the Windows set of Korean has.
INSTANTIATE_TEST_SUITE_P(
    Rules, CardCharsets,
    testing::Values(CharsetCase{"", "windows-1252", "plain", u"plain"},
                    CharsetCase{"", "windows-1252", "Gr\xC3\xBCn", u"Grün"},
                    CharsetCase{"", "windows-1252", "Gr\xFCn", u"Grün"},
                    CharsetCase{"", "windows-949", "\xB0\xA1", u"가"},
                    CharsetCase{"", "windows-1251", "\xC4\xE0", u"Да"},
                    CharsetCase{"", "no-such-set", "Gr\xFCn", u"Grün"},
                    CharsetCase{"EUC-KR", "", "\xB0\xA1\x81\x41", u"가갂"},
                    CharsetCase{"euc-kr", "", "\xB0\xA1\x81\xA1", u"가걾"},
                    CharsetCase{"KS_C_5601-1987", "", "\x81\x41", u"갂"},
                    CharsetCase{"CP949", "", "\x81\x41", u"갂"},
                    CharsetCase{"UHC", "", "\x81\x41", u"갂"},
                    CharsetCase{"Shift_JIS", "", "\x87\x40", u"①"},
                    CharsetCase{"GB2312", "", "\xB0\xA1\x81\x40", u"啊丂"},
                    CharsetCase{"ISO-8859-1", "", "\x80", u"€"},
                    CharsetCase{"US-ASCII", "", "\xE9", u"é"},
                    CharsetCase{"ISO-8859-2", "", "\xB1", u"ą"},
                    CharsetCase{"UTF-8", "windows-1252", "Gr\xC3", u"Gr\uFFFD"},
                    CharsetCase{"no-such-set", "windows-1252", "Gr\xC3\xBCn", u"Grün"}));

TEST(CardCharset, IsKnownByEveryNameThatCardsUse) {
  for (const char* name : {"EUC-KR", "cp949", "UHC", "windows-1251", "Shift_JIS", "GB2312", "Big5",
                           "ISO-8859-2", "KOI8-R", "Latin1", "us-ascii", "UTF-8"}) {
    EXPECT_TRUE(IsKnownCharset(name)) << name;
  }
}

TEST(CardCharset, IsNotKnownWhereNoCardCouldBeWrittenInIt) {
  for (const char* name : {"", "no-such-set", "UTF-16", "UTF-32LE"}) {
    EXPECT_FALSE(IsKnownCharset(name)) << name;
  }
}

struct LocaleCase {
  const char* Locale;
  const char* Charset;
};

class CardFallbacks : public testing::TestWithParam<LocaleCase> {};

TEST_P(CardFallbacks, FollowTheLocale) {
  EXPECT_EQ(FallbackCharset(QLocale(QString::fromLatin1(GetParam().Locale))), GetParam().Charset);
}

INSTANTIATE_TEST_SUITE_P(
    Locales, CardFallbacks,
    testing::Values(LocaleCase{"ko_KR", "windows-949"}, LocaleCase{"ja_JP", "windows-31j"},
                    LocaleCase{"zh_CN", "GB18030"}, LocaleCase{"zh_TW", "Big5"},
                    LocaleCase{"ru_RU", "windows-1251"}, LocaleCase{"el_GR", "windows-1253"},
                    LocaleCase{"he_IL", "windows-1255"}, LocaleCase{"de_DE", "windows-1252"},
                    LocaleCase{"C", "windows-1252"}));

}  // namespace
}  // namespace quill::test
