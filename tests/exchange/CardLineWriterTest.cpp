#include "exchange/CardLineWriter.h"

#include <gtest/gtest.h>

namespace quill::test {
namespace {

struct EscapeCase {
  const char16_t* Text;
  const char16_t* In30;
  const char16_t* In21;
  const char16_t* Part21;  // as a part between semicolons
  const char16_t* Uri30;
};

class EscapedTexts : public testing::TestWithParam<EscapeCase> {};

TEST_P(EscapedTexts, HaveTheBackslashesOfTheVersion) {
  const QString text = QString::fromUtf16(GetParam().Text);
  EXPECT_EQ(EscapeText(text, CardVersion::V30).toStdU16String(), GetParam().In30);
  EXPECT_EQ(EscapeText(text, CardVersion::V40).toStdU16String(), GetParam().In30);
  EXPECT_EQ(EscapeText(text, CardVersion::V21).toStdU16String(), GetParam().In21);
  EXPECT_EQ(EscapeParts({text}, u';', CardVersion::V21).toStdU16String(), GetParam().Part21);
  EXPECT_EQ(EscapeUri(text, CardVersion::V30).toStdU16String(), GetParam().Uri30);
  EXPECT_EQ(EscapeUri(text, CardVersion::V21).toStdU16String(), GetParam().In21);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, EscapedTexts,
    testing::Values(EscapeCase{u"a;b,c:d", u"a\\;b\\,c:d", u"a;b,c:d", u"a\\;b,c:d", u"a;b,c:d"},
                    EscapeCase{u"a\r\nb\rc\nd", u"a\\nb\\nc\\nd", u"a\nb\nc\nd", u"a\nb\nc\nd",
                               u"a\\nb\\nc\\nd"},
                    EscapeCase{u"C:\\new", u"C:\\\\new", u"C:\\new", u"C:\\new", u"C:\\\\new"},
                    EscapeCase{u"\\;", u"\\\\\\;", u"\\\\;", u"\\\\\\;", u"\\\\;"},
                    EscapeCase{u"\\,\\:\\\\n", u"\\\\\\,\\\\:\\\\\\\\n", u"\\\\,\\\\:\\\\\\n",
                               u"\\\\,\\\\:\\\\\\n", u"\\\\,\\\\:\\\\\\\\n"},
                    EscapeCase{u"a\\", u"a\\\\", u"a\\", u"a\\\\", u"a\\\\"}));

TEST(CardLineWriter, LeavesOutWhatNoCardCanHold) {
  EXPECT_EQ(EscapeText(u"a"_qs + QChar(u'\0') + u'b', CardVersion::V30), u"ab"_qs);
}

TEST(CardLineWriter, JoinsPartsWithTheirSeparator) {
  EXPECT_EQ(EscapeParts({u"a;"_qs, QString(), u"b,"_qs}, u';', CardVersion::V30), u"a\\;;;b\\,"_qs);
  EXPECT_EQ(EscapeParts({u"a;"_qs, u"b,"_qs}, u',', CardVersion::V21), u"a;,b\\,"_qs);
}

struct LineCase {
  const char* Name;
  CardVersion Version;
  const char* Value;
  const char* Lines;
};

class WrittenLines : public testing::TestWithParam<LineCase> {};

TEST_P(WrittenLines, FitTheVersion) {
  const CardHeader header{u"A"_qs, {u"B"_qs, u"C"_qs}, {u"D=e"_qs}};
  const QByteArray lines =
      TextLines(header, QString::fromUtf8(GetParam().Value), GetParam().Version);
  EXPECT_EQ(lines.toStdString(), GetParam().Lines);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, WrittenLines,
    testing::Values(
        LineCase{"Short30", CardVersion::V30, "x", "A;TYPE=B,C;D=e:x\r\n"},
        LineCase{"Short21", CardVersion::V21, "x", "A;B;C;D=e:x\r\n"},
        LineCase{"Empty21", CardVersion::V21, "", "A;B;C;D=e:\r\n"},
        // 17 bytes of header, 58 of value.
        LineCase{"Full30", CardVersion::V30,
                 "1234567890123456789012345678901234567890123456789012345678",
                 "A;TYPE=B,C;D=e:1234567890123456789012345678901234567890123456789012345678\r\n"},
        LineCase{"Folded30", CardVersion::V30,
                 "123456789012345678901234567890123456789012345678901234567890ab"
                 "123456789012345678901234567890123456789012345678901234567890123456789012341",
                 "A;TYPE=B,C;D=e:123456789012345678901234567890123456789012345678901234567890\r\n"
                 " ab123456789012345678901234567890123456789012345678901234567890123456789012\r\n"
                 " 341\r\n"},
        LineCase{"FoldedBeforeACharacter", CardVersion::V40,
                 "12345678901234567890123456789012345678901234567890123456789\xC3\xA9x",
                 "A;TYPE=B,C;D=e:12345678901234567890123456789012345678901234567890123456789\r\n"
                 " \xC3\xA9x\r\n"},
        LineCase{"Full21", CardVersion::V21,
                 "1234567890123456789012345678901234567890123456789012345678901234",
                 "A;B;C;D=e:1234567890123456789012345678901234567890123456789012345678901234\r\n"},
        LineCase{"TooLong21", CardVersion::V21,
                 "123456789012345678901234567890123456789012345678901234567890123456",
                 "A;B;C;D=e;ENCODING=QUOTED-PRINTABLE:12345678901234567890123456789012345678=\r\n"
                 "9012345678901234567890123456\r\n"},
        LineCase{"LeadingBlank21", CardVersion::V21, " x",
                 "A;B;C;D=e;ENCODING=QUOTED-PRINTABLE:=20x\r\n"},
        LineCase{"TrailingBlank21", CardVersion::V21, "x ",
                 "A;B;C;D=e;ENCODING=QUOTED-PRINTABLE:x=20\r\n"},
        LineCase{"Tab21", CardVersion::V21, "a\tb",
                 "A;B;C;D=e;ENCODING=QUOTED-PRINTABLE:a=09b\r\n"},
        LineCase{"Colon21", CardVersion::V21, "END:VCARD", "A;B;C;D=e:END:VCARD\r\n"},
        LineCase{"Backslash21", CardVersion::V21,
                 "a\\:", "A;B;C;D=e;ENCODING=QUOTED-PRINTABLE:a=5C=3A\r\n"},
        LineCase{"NotAscii21", CardVersion::V21, "\xC3\xA9",
                 "A;B;C;D=e;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:=C3=A9\r\n"}),
    [](const auto& line) { return line.param.Name; });

TEST(CardLineWriter, FoldsBase64) {
  const CardHeader header{u"A"_qs, {u"B"_qs}};
  EXPECT_EQ(Base64Lines(header, "QUJD", u"x/y"_qs, CardVersion::V21),
            "A;B;ENCODING=BASE64:QUJD\r\n\r\n");
  EXPECT_EQ(Base64Lines(header, "QUJD", u"x/y"_qs, CardVersion::V30),
            "A;TYPE=B;ENCODING=b:QUJD\r\n");
  EXPECT_EQ(Base64Lines(header, "QUJD", u"x/y"_qs, CardVersion::V40),
            "A;TYPE=B:data:x/y;base64,QUJD\r\n");
  EXPECT_EQ(Base64Lines(header, QByteArray(60, 'Q'), {}, CardVersion::V21),
            "A;B;ENCODING=BASE64:" + QByteArray(55, 'Q') + "\r\n QQQQQ\r\n\r\n");
}

}  // namespace
}  // namespace quill::test
