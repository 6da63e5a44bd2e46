#include "exchange/CardWriter.h"

#include <gtest/gtest.h>

#include "exchange/CardSamples.h"
#include "store/AutomationDate.h"

namespace quill::test {
namespace {

using enum ContactField;

// What a card has between its version and its end, without the N and the FN of a contact that has
// no name. A line feed ends each line.
struct WrittenCase {
  const char* Name;
  void (*Fill)(ContactItem& item);
  const char* In30;
  const char* In40;
  const char* In21;
};

QByteArray LinesOf(const ContactItem& item, CardVersion version, const char* number) {
  QByteArray card = WriteCard(item, version);
  const QByteArray begin = QByteArray("BEGIN:VCARD\r\nVERSION:") + number + "\r\n";
  EXPECT_TRUE(card.startsWith(begin));
  EXPECT_TRUE(card.endsWith("END:VCARD\r\n"));
  card = card.sliced(begin.size()).chopped(11);
  const QByteArray noName = "N:;;;;\r\nFN:\r\n";
  if (card.startsWith(noName)) card = card.sliced(noName.size());
  EXPECT_EQ(card.count('\n'), card.count("\r\n"));
  return card.replace("\r\n", "\n");
}

class WrittenCards : public testing::TestWithParam<WrittenCase> {};

TEST_P(WrittenCards, HaveTheLinesOfTheirVersion) {
  ContactItem item;
  GetParam().Fill(item);
  EXPECT_EQ(LinesOf(item, CardVersion::V30, "3.0").toStdString(), GetParam().In30);
  EXPECT_EQ(LinesOf(item, CardVersion::V40, "4.0").toStdString(), GetParam().In40);
  EXPECT_EQ(LinesOf(item, CardVersion::V21, "2.1").toStdString(), GetParam().In21);
}

void Put(ContactItem& item, ContactField field, const char16_t* text) {
  item.Record[field] = QString::fromUtf16(text);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, WrittenCards,
    testing::Values(
        WrittenCase{"FileAs", [](ContactItem& item) { Put(item, FileAs, u"Doe"); },
                    "N:;;;;\nFN:Doe\nX-EVOLUTION-FILE-AS:Doe\n",
                    "N:;;;;\nFN:Doe\nX-EVOLUTION-FILE-AS:Doe\n",
                    "N:;;;;\nFN:Doe\nX-EVOLUTION-FILE-AS:Doe\n"},
        WrittenCase{"Names",
                    [](ContactItem& item) {
                      Put(item, Title, u"Dr.");
                      Put(item, FirstName, u"Jane");
                      Put(item, MiddleName, u"Q.");
                      Put(item, LastName, u"Doe; Roe");
                      Put(item, Suffix, u"Jr.");
                    },
                    "N:Doe\\; Roe;Jane;Q.;Dr.;Jr.\nFN:Dr. Jane Q. Doe\\; Roe Jr.\n",
                    "N:Doe\\; Roe;Jane;Q.;Dr.;Jr.\nFN:Dr. Jane Q. Doe\\; Roe Jr.\n",
                    "N;ENCODING=QUOTED-PRINTABLE:Doe=5C; Roe;Jane;Q.;Dr.;Jr.\n"
                    "FN:Dr. Jane Q. Doe; Roe Jr.\n"},
        WrittenCase{"JobTitle", [](ContactItem& item) { Put(item, JobTitle, u"Smith, Dean"); },
                    "TITLE:Smith\\, Dean\n", "TITLE:Smith\\, Dean\n", "TITLE:Smith, Dean\n"},
        WrittenCase{"Company",
                    [](ContactItem& item) {
                      Put(item, CompanyName, u"Mill");
                      Put(item, Department, u"Grain; Flour");
                    },
                    "N:;;;;\nFN:Mill\nORG:Mill;Grain;Flour\n",
                    "N:;;;;\nFN:Mill\nORG:Mill;Grain;Flour\n",
                    "N:;;;;\nFN:Mill\nORG:Mill;Grain;Flour\n"},
        WrittenCase{"DepartmentThatIsNoList",
                    [](ContactItem& item) { Put(item, Department, u"Grain; ; Flour"); },
                    "ORG:;Grain\\; \\; Flour\n", "ORG:;Grain\\; \\; Flour\n",
                    "ORG;ENCODING=QUOTED-PRINTABLE:;Grain=5C; =5C; Flour\n"},
        WrittenCase{"Numbers",
                    [](ContactItem& item) {
                      Put(item, BusinessTelephoneNumber, u"1");
                      Put(item, Business2TelephoneNumber, u"2");
                      Put(item, BusinessFaxNumber, u"3");
                      Put(item, HomeTelephoneNumber, u"4");
                      Put(item, Home2TelephoneNumber, u"5");
                      Put(item, HomeFaxNumber, u"6");
                      Put(item, MobileTelephoneNumber, u"7");
                      Put(item, PagerNumber, u"8");
                      Put(item, CarTelephoneNumber, u"9");
                      Put(item, RadioTelephoneNumber, u"10");
                    },
                    "X-QUILL-FIELD19:10\n"
                    "TEL;TYPE=WORK,VOICE:1\nTEL;TYPE=WORK,VOICE:2\nTEL;TYPE=WORK,FAX:3\n"
                    "TEL;TYPE=HOME,VOICE:4\nTEL;TYPE=HOME,VOICE:5\nTEL;TYPE=HOME,FAX:6\n"
                    "TEL;TYPE=CELL:7\nTEL;TYPE=CELL:8\nTEL;TYPE=CAR:9\n",
                    "X-QUILL-FIELD19:10\n"
                    "TEL;TYPE=WORK,VOICE:1\nTEL;TYPE=WORK,VOICE:2\nTEL;TYPE=WORK,FAX:3\n"
                    "TEL;TYPE=HOME,VOICE:4\nTEL;TYPE=HOME,VOICE:5\nTEL;TYPE=HOME,FAX:6\n"
                    "TEL;TYPE=CELL:7\nTEL;TYPE=CELL:8\nTEL;TYPE=CAR:9\n",
                    "X-QUILL-FIELD19:10\n"
                    "TEL;WORK;VOICE:1\nTEL;WORK;VOICE:2\nTEL;WORK;FAX:3\n"
                    "TEL;HOME;VOICE:4\nTEL;HOME;VOICE:5\nTEL;HOME;FAX:6\n"
                    "TEL;CELL:7\nTEL;CELL:8\nTEL;CAR:9\n"},
        WrittenCase{"NumbersWithoutTheFirstOfTheirKind",
                    [](ContactItem& item) {
                      Put(item, Business2TelephoneNumber, u"2");
                      Put(item, HomeTelephoneNumber, u" ");
                      Put(item, Home2TelephoneNumber, u"5");
                      Put(item, PagerNumber, u"8");
                    },
                    "TEL;TYPE=WORK,VOICE;X-QUILL-FIELD=Business2TelephoneNumber:2\n"
                    "TEL;TYPE=HOME,VOICE;X-QUILL-FIELD=Home2TelephoneNumber:5\n"
                    "TEL;TYPE=CELL;X-QUILL-FIELD=PagerNumber:8\n",
                    "TEL;TYPE=WORK,VOICE;X-QUILL-FIELD=Business2TelephoneNumber:2\n"
                    "TEL;TYPE=HOME,VOICE;X-QUILL-FIELD=Home2TelephoneNumber:5\n"
                    "TEL;TYPE=CELL;X-QUILL-FIELD=PagerNumber:8\n",
                    "TEL;WORK;VOICE;X-QUILL-FIELD=Business2TelephoneNumber:2\n"
                    "TEL;HOME;VOICE;X-QUILL-FIELD=Home2TelephoneNumber:5\n"
                    "TEL;CELL;X-QUILL-FIELD=PagerNumber:8\n"},
        WrittenCase{"Emails",
                    [](ContactItem& item) {
                      Put(item, Email1Address, u"a@x.org");
                      Put(item, Email3Address, u"c@x.org");
                    },
                    "EMAIL;TYPE=INTERNET:a@x.org\n"
                    "EMAIL;TYPE=INTERNET;X-QUILL-FIELD=Email3Address:c@x.org\n",
                    "EMAIL;TYPE=INTERNET:a@x.org\n"
                    "EMAIL;TYPE=INTERNET;X-QUILL-FIELD=Email3Address:c@x.org\n",
                    "EMAIL;INTERNET:a@x.org\n"
                    "EMAIL;INTERNET;X-QUILL-FIELD=Email3Address:c@x.org\n"},
        WrittenCase{"WebPage",
                    [](ContactItem& item) { Put(item, WebPage, u"http://x.org/a,b;c\\d"); },
                    "URL:http://x.org/a,b;c\\\\d\n", "URL:http://x.org/a,b;c\\\\d\n",
                    "URL;ENCODING=QUOTED-PRINTABLE:http=3A//x.org/a,b;c=5Cd\n"},
        WrittenCase{"Addresses",
                    [](ContactItem& item) {
                      Put(item, BusinessAddressStreet, u"Box 1\nMain Street 2");
                      Put(item, BusinessAddressCity, u"Oslo");
                      Put(item, HomeAddressState, u"S");
                      Put(item, HomeAddressPostalCode, u"P");
                      Put(item, OtherAddressCountry, u"C");
                    },
                    "ADR;TYPE=WORK:;;Box 1\\nMain Street 2;Oslo;;;\nADR;TYPE=HOME:;;;;S;P;\n"
                    "ADR:;;;;;;C\n",
                    "ADR;TYPE=WORK:;;Box 1\\nMain Street 2;Oslo;;;\nADR;TYPE=HOME:;;;;S;P;\n"
                    "ADR:;;;;;;C\n",
                    "ADR;WORK;ENCODING=QUOTED-PRINTABLE:;;Box 1=0AMain Street 2;Oslo;;;\n"
                    "ADR;HOME:;;;;S;P;\nADR:;;;;;;C\n"},
        WrittenCase{"Categories",
                    [](ContactItem& item) { Put(item, Categories, u"Business, A;B"); },
                    "CATEGORIES:Business,A\\;B\n", "CATEGORIES:Business,A\\;B\n",
                    "CATEGORIES:Business,A;B\n"},
        WrittenCase{"Spouse", [](ContactItem& item) { Put(item, Spouse, u"Ann"); },
                    "X-EVOLUTION-SPOUSE:Ann\nitem1.X-ABRELATEDNAMES:Ann\n"
                    "item1.X-ABLABEL:_$!<Spouse>!$_\n",
                    "RELATED;TYPE=spouse;VALUE=text:Ann\n",
                    "X-EVOLUTION-SPOUSE:Ann\nitem1.X-ABRELATEDNAMES:Ann\n"
                    "item1.X-ABLABEL:_$!<Spouse>!$_\n"},
        WrittenCase{"Children", [](ContactItem& item) { Put(item, Children, u"Ann, Bob"); },
                    "X-QUILL-CHILDREN:Ann\\, Bob\n"
                    "item1.X-ABRELATEDNAMES:Ann\nitem1.X-ABLABEL:_$!<Child>!$_\n"
                    "item2.X-ABRELATEDNAMES:Bob\nitem2.X-ABLABEL:_$!<Child>!$_\n",
                    "RELATED;TYPE=child;VALUE=text:Ann\nRELATED;TYPE=child;VALUE=text:Bob\n",
                    "X-QUILL-CHILDREN:Ann, Bob\n"
                    "item1.X-ABRELATEDNAMES:Ann\nitem1.X-ABLABEL:_$!<Child>!$_\n"
                    "item2.X-ABRELATEDNAMES:Bob\nitem2.X-ABLABEL:_$!<Child>!$_\n"},
        WrittenCase{"ChildrenThatAreNoList",
                    [](ContactItem& item) { Put(item, Children, u"Ann, Ann, "); },
                    "X-QUILL-CHILDREN:Ann\\, Ann\\, \n", "X-QUILL-CHILDREN:Ann\\, Ann\\, \n",
                    "X-QUILL-CHILDREN;ENCODING=QUOTED-PRINTABLE:Ann, Ann,=20\n"},
        WrittenCase{"Days",
                    [](ContactItem& item) {
                      item.Record.Birthday = MakeCalendarDate({1970, 2, 28}, {0, 0});
                      item.Record.Anniversary = MakeCalendarDate({1999, 12, 1}, {0, 0});
                    },
                    "BDAY:1970-02-28\nX-EVOLUTION-ANNIVERSARY:1999-12-01\n"
                    "item1.X-ABDATE:1999-12-01\nitem1.X-ABLABEL:_$!<Anniversary>!$_\n",
                    "BDAY:19700228\nANNIVERSARY:19991201\n",
                    "BDAY:1970-02-28\nX-EVOLUTION-ANNIVERSARY:1999-12-01\n"
                    "item1.X-ABDATE:1999-12-01\nitem1.X-ABLABEL:_$!<Anniversary>!$_\n"},
        WrittenCase{"Uid", [](ContactItem& item) { item.Uid = u"urn:a,b"_qs; }, "UID:urn:a,b\n",
                    "UID:urn:a,b\n", "UID:urn:a,b\n"},
        WrittenCase{"Ink", [](ContactItem& item) { item.BodyInk = "Ink"; },
                    "X-QUILL-INK;ENCODING=b:SW5r\n",
                    "X-QUILL-INK:data:application/octet-stream;base64,SW5r\n",
                    "X-QUILL-INK;ENCODING=BASE64:SW5r\n\n"},
        WrittenCase{"TextBeyondAscii", [](ContactItem& item) { Put(item, JobTitle, u"é=1"); },
                    "TITLE:é=1\n", "TITLE:é=1\n",
                    "TITLE;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:=C3=A9=3D1\n"},
        WrittenCase{"CarriedLines",
                    [](ContactItem& item) {
                      item.CarriedLines = u"NOTE:a\\, b\nitem1.X-FOO:c\n"_qs;
                      Put(item, Spouse, u"Ann");
                    },
                    "X-EVOLUTION-SPOUSE:Ann\nitem2.X-ABRELATEDNAMES:Ann\n"
                    "item2.X-ABLABEL:_$!<Spouse>!$_\nNOTE:a\\, b\nitem1.X-FOO:c\n",
                    "RELATED;TYPE=spouse;VALUE=text:Ann\nNOTE:a\\, b\nitem1.X-FOO:c\n",
                    "X-EVOLUTION-SPOUSE:Ann\nitem2.X-ABRELATEDNAMES:Ann\n"
                    "item2.X-ABLABEL:_$!<Spouse>!$_\nNOTE:a, b\nitem1.X-FOO:c\n"}),
    [](const auto& written) { return written.param.Name; });

TEST(CardWriter, KeepsASpokenNameOfItsOwn) {
  ContactItem item = ContactOf("N:Doe;James\nFN:Jimmy\n");
  EXPECT_EQ(LinesOf(item, CardVersion::V30, "3.0").toStdString(),
            "N:Doe;James;;;\nX-EVOLUTION-FILE-AS:Doe\\, James\nFN:Jimmy\n");
  item.Record[HomeTelephoneNumber] = u"1"_qs;
  EXPECT_TRUE(WriteCard(item, CardVersion::V30).contains("\nFN:Jimmy\r"));
}

TEST(CardWriter, ForgetsTheSpokenNameOfAnotherName) {
  ContactItem item = ContactOf("N:Doe;James\nFN;X-A=1:Jimmy\nX-B:kept\n");
  item.Record[FirstName] = u"Jane"_qs;
  EXPECT_EQ(LinesOf(item, CardVersion::V30, "3.0").toStdString(),
            "N:Doe;Jane;;;\nFN:Jane Doe\nX-EVOLUTION-FILE-AS:Doe\\, James\nX-B:kept\n");
}

TEST(CardWriter, WritesWhatCameInWhenOneFieldIsEdited) {
  const QByteArray before =
      "N:Doe;Jane;;;\nFN:Jane Doe\nX-EVOLUTION-FILE-AS:Doe\\, Jane\nORG:Mill;Grain;Flour\n"
      "TEL;TYPE=WORK,VOICE:1\nADR;TYPE=HOME:;;Street;Oslo;;;\n"
      "UID:u\nNICKNAME:J,JJ\nPHOTO;TYPE=JPEG;ENCODING=b:QUJD\nitem1.X-ABLabel:mine\n"
      "GEO:1.5;2.5\nTEL;type=ISDN:7\nBDAY:--0415\n";
  ContactItem item = ContactOf(before);
  item.Record[BusinessTelephoneNumber] = u"2"_qs;
  QByteArray after = before;
  after.replace("VOICE:1", "VOICE:2");
  EXPECT_EQ(LinesOf(item, CardVersion::V30, "3.0").toStdString(), after.toStdString());
}

}  // namespace
}  // namespace quill::test
