#include "exchange/CardProperty.h"

#include <gtest/gtest.h>

#include "exchange/CardSamples.h"

namespace quill::test {
namespace {

TEST(CardProperty, HasGroupNameParametersAndValue) {
  const CardProperty property = PropertyOf("a.Item1.tel;Type=home,\"x;y\";PREF=2:02:1");
  EXPECT_EQ(property.Group, u"a.Item1");
  EXPECT_EQ(property.Name, u"TEL");
  EXPECT_EQ(TypesOf(property), (QStringList{u"HOME"_qs, u"X;Y"_qs}));
  EXPECT_EQ(ParameterOf(property, u"PREF"), u"2");
  EXPECT_EQ(ParameterOf(property, u"VALUE"), QString());
  EXPECT_EQ(property.Value, u"02:1");
}

class CardTypes : public testing::TestWithParam<const char*> {};

TEST_P(CardTypes, AreTheSameHoweverTheyAreWritten) {
  EXPECT_EQ(TypesOf(PropertyOf(GetParam())), (QStringList{u"WORK"_qs, u"FAX"_qs})) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Forms, CardTypes,
                         testing::Values("TEL;TYPE=work,fax:1", "TEL;TYPE=\"work,fax\":1",
                                         "TEL;TYPE=work;TYPE=fax:1", "TEL;WORK;FAX:1",
                                         "TEL;;WORK;fax;:1", "TEL;type=\"work\",\"fax\":1",
                                         "TEL;WORK;QUOTED-PRINTABLE;FAX:1",
                                         "TEL;work;8bit;TYPE=Fax:1"));

struct EncodingCase {
  const char* Header;
  CardEncoding Encoding;
};

class CardEncodings : public testing::TestWithParam<EncodingCase> {};

TEST_P(CardEncodings, AreAnnouncedInTheHeader) {
  EXPECT_EQ(AnnouncedEncoding(GetParam().Header), GetParam().Encoding);
}

INSTANTIATE_TEST_SUITE_P(
    Forms, CardEncodings,
    testing::Values(EncodingCase{"A;QUOTED-PRINTABLE", CardEncoding::QuotedPrintable},
                    EncodingCase{"A;ENCODING=quoted-printable", CardEncoding::QuotedPrintable},
                    EncodingCase{"A;base64", CardEncoding::Base64},
                    EncodingCase{"A;X=1;encoding=\"b\"", CardEncoding::Base64},
                    EncodingCase{"A;B", CardEncoding::Base64},
                    EncodingCase{"A;ENCODING=8BIT", CardEncoding::Plain},
                    EncodingCase{"A;X=BASE64", CardEncoding::Plain},
                    EncodingCase{"BASE64", CardEncoding::Plain}));

TEST(CardProperty, EndsItsHeaderAtTheFirstColonOutsideQuotes) {
  EXPECT_EQ(HeaderEnd("A;B=\"c:d\":e"), 9);
  EXPECT_EQ(HeaderEnd("A;B=\"c:d"), 6);
  EXPECT_EQ(HeaderEnd("A"), -1);
}

class CardBadLines : public testing::TestWithParam<const char*> {};

TEST_P(CardBadLines, AreNotProperties) { EXPECT_FALSE(ParseProperty(GetParam(), {}).has_value()); }

INSTANTIATE_TEST_SUITE_P(Lines, CardBadLines,
                         testing::Values("", ":", "no colon", ":value", ";A=1:value", "a b:value",
                                         "a.:value", "t\xC3\xA9l:1", "# a:b"));

TEST(CardProperty, HasParametersUpToALimit) {
  const QByteArray most = QByteArray(";a,b").repeated(kMaxParameters / 2);
  EXPECT_TRUE(ParseProperty("A" + most + ":x", {}).has_value());
  EXPECT_FALSE(ParseProperty("A" + most + ";c:x", {}).has_value());
  EXPECT_FALSE(ParseProperty("A" + most + ",c:x", {}).has_value());
  EXPECT_TRUE(ParseProperty("A" + most + ":x;y,z", {}).has_value());
}

TEST(CardProperty, SplitsAtSeparatorsWithoutABackslash) {
  EXPECT_EQ(PartsOf(PropertyOf("A:a\\;b;c\\\\;;d\\,e"), u';'),
            (QStringList{u"a;b"_qs, u"c\\"_qs, u""_qs, u"d,e"_qs}));
  EXPECT_EQ(PartsOf(PropertyOf("A:a\\,b,c;d"), u','), (QStringList{u"a,b"_qs, u"c;d"_qs}));
}

TEST(CardProperty, FillsUpAndGathersFixedParts) {
  EXPECT_EQ(FixedPartsOf(PropertyOf("A:a"), 3), (QStringList{u"a"_qs, u""_qs, u""_qs}));
  EXPECT_EQ(FixedPartsOf(PropertyOf("A:a;b;c; ;d"), 2), (QStringList{u"a"_qs, u"b; c; d"_qs}));
}

TEST(CardProperty, KeepsABackslashThatEscapesNothing) {
  EXPECT_EQ(TextOf(PropertyOf("A:a\\b\\Nc\\")), u"a\\b\nc\\");
  EXPECT_EQ(TextOf(PropertyOf("A;QUOTED-PRINTABLE:a\\n\\;=0D=0Ab=0Dc")), u"a\\n;\nb\nc");
}

TEST(CardProperty, DecodesBytesOfBase64AndDataUris) {
  EXPECT_EQ(BytesOf(PropertyOf("A;ENCODING=b:QUJD")), "ABC");
  EXPECT_EQ(BytesOf(PropertyOf("A:DATA:x/y;base64,QUJD")), "ABC");
  EXPECT_EQ(BytesOf(PropertyOf("A:data:x/y,QUJD")), "");
  EXPECT_EQ(BytesOf(PropertyOf("A:QUJD")), "");
}

TEST(CardProperty, IsCarriedAsItCameButInUnicode) {
  EXPECT_EQ(CarriedLine(PropertyOf("a.b;X=1;CHARSET=\"ISO-8859-1\";Y:\xE9\\n")), u"a.b;X=1;Y:é\\n");
  EXPECT_EQ(CarriedLine(PropertyOf("b;charset=ISO-8859-1;QUOTED-PRINTABLE:=E9\xE9")),
            u"b;charset=ISO-8859-1;QUOTED-PRINTABLE:=E9=E9");
  EXPECT_EQ(CarriedLine(PropertyOf("b;ENCODING=b:QUJD")), u"b;ENCODING=b:QUJD");
}

}  // namespace
}  // namespace quill::test
