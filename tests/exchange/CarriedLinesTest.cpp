#include "exchange/CarriedLines.h"

#include <gtest/gtest.h>

namespace quill::test {
namespace {

// A carried line, and what each version writes for it, with LF at the end of each line.
struct CarriedCase {
  const char* Name;
  const char* Carried;
  const char* In30;
  const char* In40;
  const char* In21;
};

std::string Written(const QString& lines, CardVersion version) {
  return WriteCarried(CarriedProperties(lines), version).replace("\r\n", "\n").toStdString();
}

class CarriedCards : public testing::TestWithParam<CarriedCase> {};

TEST_P(CarriedCards, AreWrittenInTheSyntaxOfTheVersion) {
  const QString carried = QString::fromUtf8(GetParam().Carried);
  EXPECT_EQ(Written(carried, CardVersion::V30), GetParam().In30);
  EXPECT_EQ(Written(carried, CardVersion::V40), GetParam().In40);
  EXPECT_EQ(Written(carried, CardVersion::V21), GetParam().In21);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, CarriedCards,
    testing::Values(
        CarriedCase{"Plain", "item1.X-Foo;X-P=a:b;c,d\n", "item1.X-Foo;X-P=a:b;c,d\n",
                    "item1.X-Foo;X-P=a:b;c,d\n", "item1.X-Foo;X-P=a:b;c,d\n"},
        CarriedCase{"BareTypes", "TEL;work;ISDN:1\n", "TEL;TYPE=work;TYPE=ISDN:1\n",
                    "TEL;TYPE=work;TYPE=ISDN:1\n", "TEL;work;ISDN:1\n"},
        CarriedCase{"TypeLists", "TEL;TYPE=\"work,ISDN\";;PREF=1:1\n",
                    "TEL;TYPE=\"work,ISDN\";PREF=1:1\n", "TEL;TYPE=\"work,ISDN\";PREF=1:1\n",
                    "TEL;work;ISDN;PREF=1:1\n"},
        CarriedCase{"QuotedSemicolon", "X-A;X-P=\"a;b\":1\n", "X-A;X-P=\"a;b\":1\n",
                    "X-A;X-P=\"a;b\":1\n", "X-A;X-P=a b:1\n"},
        CarriedCase{"EscapedText", "NOTE:a\\, b\\;\\nc\\\\\n", "NOTE:a\\, b\\;\\nc\\\\\n",
                    "NOTE:a\\, b\\;\\nc\\\\\n", "NOTE;ENCODING=QUOTED-PRINTABLE:a, b;=0Ac=5C\n"},
        CarriedCase{"EscapedParts", "X-A:a\\;b;c\\Nd\\e\\\\\n", "X-A:a\\;b;c\\Nd\\e\\\\\n",
                    "X-A:a\\;b;c\\Nd\\e\\\\\n",
                    "X-A;ENCODING=QUOTED-PRINTABLE:a=5C;b;c=0Ad=5Ce=5C=5C\n"},
        CarriedCase{"QuotedPrintableText",
                    "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=ISO-8859-1:=E9, C:\\new=0D=0Ax\n",
                    "NOTE:é\\, C:\\\\new\\nx\n", "NOTE:é\\, C:\\\\new\\nx\n",
                    "NOTE;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:"
                    "=C3=A9, C=3A=5Cnew=0Ax\n"},
        CarriedCase{"QuotedPrintableParts", "X-A;QUOTED-PRINTABLE:a,=0Ab=5Cn;c\\;d\n",
                    "X-A:a,\\nb\\\\n;c\\;d\n", "X-A:a,\\nb\\\\n;c\\;d\n",
                    "X-A;ENCODING=QUOTED-PRINTABLE:a,=0Ab=5Cn;c=5C;d\n"},
        CarriedCase{"EightBit", "NOTE;ENCODING=8BIT;7bit:a\n", "NOTE:a\n", "NOTE:a\n", "NOTE:a\n"},
        CarriedCase{"PhotoOf30", "PHOTO;ENCODING=b;TYPE=JPEG:QUJD\n",
                    "PHOTO;TYPE=JPEG;ENCODING=b:QUJD\n", "PHOTO:data:image/jpeg;base64,QUJD\n",
                    "PHOTO;JPEG;ENCODING=BASE64:QUJD\n\n"},
        CarriedCase{"PhotoOf21", "PHOTO;PNG;BASE64:QU JD\n", "PHOTO;TYPE=PNG;ENCODING=b:QUJD\n",
                    "PHOTO:data:image/png;base64,QUJD\n", "PHOTO;PNG;ENCODING=BASE64:QUJD\n\n"},
        CarriedCase{"PhotoOf40", "PHOTO;PREF=1:data:image/gif;base64\\,QUJD\n",
                    "PHOTO;TYPE=GIF;PREF=1;ENCODING=b:QUJD\n",
                    "PHOTO;PREF=1:data:image/gif;base64,QUJD\n",
                    "PHOTO;GIF;PREF=1;ENCODING=BASE64:QUJD\n\n"},
        CarriedCase{"PhotoWithoutType", "PHOTO;VALUE=binary;ENCODING=b:QUJD\n",
                    "PHOTO;ENCODING=b:QUJD\n", "PHOTO:data:application/octet-stream;base64,QUJD\n",
                    "PHOTO;ENCODING=BASE64:QUJD\n\n"},
        CarriedCase{"OtherBytes", "X-A;TYPE=HOME;ENCODING=b:QUJD\n",
                    "X-A;TYPE=HOME;ENCODING=b:QUJD\n",
                    "X-A;TYPE=HOME:data:application/octet-stream;base64,QUJD\n",
                    "X-A;HOME;ENCODING=BASE64:QUJD\n\n"},
        CarriedCase{"LinkedPhoto", "PHOTO;VALUE=uri:http://x/a\n", "PHOTO;VALUE=uri:http://x/a\n",
                    "PHOTO;VALUE=uri:http://x/a\n", "PHOTO;VALUE=uri:http://x/a\n"},
        CarriedCase{"CardInsideTheCard", "AGENT:\nBEGIN:VCARD\nFN:A, B\nEND:VCARD\nNOTE:x\n",
                    "AGENT:BEGIN:VCARD\\nFN:A\\, B\\nEND:VCARD\nNOTE:x\n",
                    "AGENT:BEGIN:VCARD\\nFN:A\\, B\\nEND:VCARD\nNOTE:x\n",
                    "AGENT:\nBEGIN:VCARD\nFN:A, B\nEND:VCARD\nNOTE:x\n"},
        CarriedCase{"CardInsideThatWasNotClosed", "AGENT:\nBEGIN:VCARD\nFN:A\n",
                    "AGENT:BEGIN:VCARD\\nFN:A\\nEND:VCARD\n",
                    "AGENT:BEGIN:VCARD\\nFN:A\\nEND:VCARD\n",
                    "AGENT:\nBEGIN:VCARD\nFN:A\nEND:VCARD\n"},
        CarriedCase{"MarksInTheWrongPlace", "end:vcard\nBEGIN;X=1: VCARD\nno property\nEND:VTODO\n",
                    "END:VTODO\n", "END:VTODO\n", "END:VTODO\n"}),
    [](const auto& carried) { return carried.param.Name; });

}  // namespace
}  // namespace quill::test
