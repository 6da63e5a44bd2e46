#include "exchange/CarriedJoin.h"

#include <gtest/gtest.h>

namespace quill::test {
namespace {

struct JoinCase {
  const char* Name;
  const char16_t* Stored;
  const char16_t* More;
  const char16_t* Joined;
};

class CarriedJoins : public testing::TestWithParam<JoinCase> {};

TEST_P(CarriedJoins, AddWhatIsNotThere) {
  const QString joined =
      JoinCarriedLines(QString::fromUtf16(GetParam().Stored), QString::fromUtf16(GetParam().More));
  EXPECT_EQ(joined.toStdU16String(), GetParam().Joined);
  EXPECT_EQ(JoinCarriedLines(joined, QString::fromUtf16(GetParam().More)), joined);
}

constexpr char16_t kAgent[] =
    u"AGENT:\nBEGIN:VCARD\na.N:Aide\nAGENT:\nBEGIN:VCARD\nN:Deep\nEND:VCARD\nEND:VCARD\n";

INSTANTIATE_TEST_SUITE_P(
    Lines, CarriedJoins,
    testing::Values(
        JoinCase{"NothingToNothing", u"", u"", u""}, JoinCase{"Nothing", u"A:1\n", u"", u"A:1\n"},
        JoinCase{"ToNothing", u"", u"A:1\nB:2\n", u"A:1\nB:2\n"},
        JoinCase{"InTheirOrder", u"C:3\n", u"A:1\nC:3\nB:2\n", u"C:3\nA:1\nB:2\n"},
        JoinCase{"TwiceTheSame", u"C:3\n", u"A:1\nA:1\n", u"C:3\nA:1\n"},
        JoinCase{"OtherText", u"A:1\n", u"A:2\n", u"A:1\nA:2\n"},
        JoinCase{"OtherTypeOrder", u"A;HOME;WORK:1\n", u"a;TYPE=\"work,home\":1\n",
                 u"A;HOME;WORK:1\n"},
        JoinCase{"OtherType", u"A;HOME:1\n", u"A:1\n", u"A;HOME:1\nA:1\n"},
        JoinCase{"OtherParameter", u"A;X=1:1\n", u"A;X=2:1\n", u"A;X=1:1\nA;X=2:1\n"},
        JoinCase{"OtherEncoding", u"A;CHARSET=ISO-8859-1;QUOTED-PRINTABLE:=E9=0A\n", u"A:é\\n\n",
                 u"A;CHARSET=ISO-8859-1;QUOTED-PRINTABLE:=E9=0A\n"},
        JoinCase{"BytesOfOtherVersion", u"PHOTO;JPEG;BASE64: AA EC\n",
                 u"PHOTO;TYPE=JPEG;ENCODING=b:AAEC\nPHOTO:data:image/jpeg;base64,AAEC\n",
                 u"PHOTO;JPEG;BASE64: AA EC\n"},
        JoinCase{"OtherBytes", u"PHOTO;BASE64:AAEC\n", u"PHOTO:data:image/png;base64,AAED\n",
                 u"PHOTO;BASE64:AAEC\nPHOTO:data:image/png;base64,AAED\n"},
        JoinCase{"BytesOfAnotherKind", u"PHOTO;BASE64:AAEC\n", u"LOGO;BASE64:AAEC\n",
                 u"PHOTO;BASE64:AAEC\nLOGO;BASE64:AAEC\n"},
        JoinCase{"GroupCalledOtherwise", u"item1.A:1\nitem1.X-ABLABEL:Office\n",
                 u"x.A:1\nx.X-ABLABEL:Office\n", u"item1.A:1\nitem1.X-ABLABEL:Office\n"},
        JoinCase{"GroupWithOtherLabel", u"item1.A:1\nitem1.X-ABLABEL:Office\n",
                 u"B:2\nITEM1.A:1\nitem1.X-ABLABEL:Barn\n",
                 u"item1.A:1\nitem1.X-ABLABEL:Office\nB:2\nitem2.A:1\nitem2.X-ABLABEL:Barn\n"},
        JoinCase{"GroupWithAFreeName", u"item1.A:1\n", u"x.A:2\n", u"item1.A:1\nx.A:2\n"},
        JoinCase{"PartOfAGroup", u"a.TEL:1\na.X-ABLABEL:Barn\n", u"b.X-ABLABEL:Barn\n",
                 u"a.TEL:1\na.X-ABLABEL:Barn\n"},
        JoinCase{"PartsOfTwoGroups", u"a.A:1\na.B:1\nb.A:2\nb.B:2\n", u"c.A:1\nc.B:2\n",
                 u"a.A:1\na.B:1\nb.A:2\nb.B:2\nc.A:1\nc.B:2\n"},
        JoinCase{"GroupsApart", u"", u"x.A:1\nB:2\nx.C:3\n", u"x.A:1\nx.C:3\nB:2\n"},
        JoinCase{"CardInCard", u"N:Aide\nEND:VCARD\n", kAgent,
                 u"N:Aide\nEND:VCARD\nAGENT:\nBEGIN:VCARD\na.N:Aide\nAGENT:\nBEGIN:VCARD\n"
                 u"N:Deep\nEND:VCARD\nEND:VCARD\n"},
        JoinCase{"WhatOnlyLooksLikeACard", u"A:1\nBEGIN:x:VCARD\n",
                 u"B:2\nBEGIN:VCARD\u00A0\nA:1\n", u"A:1\nBEGIN:x:VCARD\nB:2\nBEGIN:VCARD\u00A0\n"},
        JoinCase{"SameCardInCard", kAgent, kAgent, kAgent},
        JoinCase{"AfterACardInCard", kAgent, u"N:Aide\n",
                 u"AGENT:\nBEGIN:VCARD\na.N:Aide\nAGENT:\nBEGIN:VCARD\nN:Deep\nEND:VCARD\n"
                 u"END:VCARD\nN:Aide\n"},
        JoinCase{"GroupedCardInCard", u"a.B:1\n", u"a.AGENT:\nBEGIN:VCARD \na.N:x\nEND:VCARD\n",
                 u"a.B:1\nitem1.AGENT:\nBEGIN:VCARD \na.N:x\nEND:VCARD\n"},
        JoinCase{"OfTheCardItself", u"REV:1\nPRODID:a\n", u"REV:2\nPRODID:b\nX:1\n",
                 u"REV:1\nPRODID:a\nX:1\n"},
        JoinCase{"OfTheCardItselfAtFirst", u"X:1\n", u"REV:2\n", u"X:1\nREV:2\n"}),
    [](const auto& join) { return std::string(join.param.Name); });

}  // namespace
}  // namespace quill::test
