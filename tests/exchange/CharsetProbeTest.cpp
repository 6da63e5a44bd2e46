#include "exchange/CharsetProbe.h"

#include <QBuffer>
#include <QStringConverter>

#include <gtest/gtest.h>

#include "exchange/CardCharset.h"
#include "exchange/CharsetChoices.h"

namespace quill {
namespace {

const QByteArray kKim = "\xB1\xE8;\xC3\xB6\xBC\xF6";  // in Korean Windows

std::optional<QByteArray> Find(QByteArray text) {
  QBuffer buffer(&text);
  EXPECT_TRUE(buffer.open(QIODevice::ReadOnly));
  return FindUndeclaredText(buffer);
}

QByteArray Card(const QByteArray& lines) {
  return "BEGIN:VCARD\r\nVERSION:2.1\r\n" + lines + "\r\nEND:VCARD\r\n";
}

struct ProbeCase {
  const char* Name;
  QByteArray Text;
  QByteArray Line;  // empty when there is nothing to choose
};

class CharsetProbe : public testing::TestWithParam<ProbeCase> {};

TEST_P(CharsetProbe, FindsTheFirstTextThatAChoiceWouldChange) {
  EXPECT_EQ(Find(GetParam().Text).value_or(QByteArray()), GetParam().Line);
}

INSTANTIATE_TEST_SUITE_P(
    Files, CharsetProbe,
    testing::Values(
        ProbeCase{"Ascii", Card("N:Kim;Chul"), {}},
        ProbeCase{"Utf8", Card("N:\xEA\xB9\x80;\xEC\xB2\xA0"), {}},
        ProbeCase{"Raw", Card("N:" + kKim), "N:" + kKim},
        ProbeCase{"SecondCard", Card("N:Lee") + Card("N:" + kKim), "N:" + kKim},
        ProbeCase{"Declared", Card("N;CHARSET=EUC-KR:" + kKim), {}},
        ProbeCase{"DeclaredAsNobodyKnows", Card("N;CHARSET=x-none:" + kKim),
                  "N;CHARSET=x-none:" + kKim},
        ProbeCase{"Quoted", Card("N;ENCODING=QUOTED-PRINTABLE:=B1=E8"),
                  "N;ENCODING=QUOTED-PRINTABLE:=B1=E8"},
        ProbeCase{"QuotedUtf8", Card("N;ENCODING=QUOTED-PRINTABLE:=EA=B9=80"), {}},
        ProbeCase{"QuotedDeclared", Card("N;CHARSET=EUC-KR;ENCODING=QUOTED-PRINTABLE:=B1=E8"), {}},
        ProbeCase{"Utf8CutButDeclared", Card("N;CHARSET=UTF-8:\xEA\xB9"), {}},
        ProbeCase{"NoProperty", Card("\xB1\xE8"), {}}, ProbeCase{"Empty", QByteArray(), {}}),
    [](const auto& given) { return given.param.Name; });

TEST(CharsetProbe, WideFilesHaveNothingToChoose) {
  QStringEncoder encoder(QStringConverter::Utf16LE);
  const QByteArray wide = encoder(QStringLiteral("\uFEFFBEGIN:VCARD\nN:김;철수\nEND:VCARD\n"));
  EXPECT_EQ(Find(wide), std::nullopt);
}

TEST(CharsetProbe, FoldedLinesAreOne) {
  EXPECT_EQ(Find(Card("NOTE:\xB1\r\n \xE8")), QByteArray("NOTE:\xB1\xE8"));
}

TEST(TextInCharset, IsTheValueAsItReadsThere) {
  EXPECT_EQ(TextInCharset("N:" + kKim, "windows-949"), QStringLiteral("김 철수"));
  EXPECT_EQ(TextInCharset("N:" + kKim, "windows-1252"), QStringLiteral("±è Ã¶¼ö"));
  EXPECT_EQ(TextInCharset("N;ENCODING=QUOTED-PRINTABLE:=B1=E8;;", "windows-949"),
            QStringLiteral("김"));
  EXPECT_EQ(TextInCharset("no property", "windows-949"), QString());
}

bool IsChoice(const QByteArray& name) {
  return std::ranges::any_of(kCharsetChoices,
                             [&](const CharsetChoice& choice) { return name == choice.Name; });
}

TEST(CharsetChoices, CanAllBeRead) {
  for (const CharsetChoice& choice : kCharsetChoices)
    EXPECT_TRUE(IsKnownCharset(choice.Name)) << choice.Name;
}

class LocaleChoice : public testing::TestWithParam<const char*> {};

TEST_P(LocaleChoice, IsAmongTheChoices) {
  EXPECT_TRUE(IsChoice(FallbackCharset(QLocale(QLatin1String(GetParam())))));
}

INSTANTIATE_TEST_SUITE_P(Locales, LocaleChoice,
                         testing::Values("ko_KR", "ja_JP", "zh_CN", "zh_TW", "ru_RU", "el_GR",
                                         "he_IL", "de_DE", "C"));

}  // namespace
}  // namespace quill
