#include "exchange/CarriedDetails.h"

#include <gtest/gtest.h>

#include "exchange/CardSamples.h"
#include "store/ContactFields.h"

namespace quill::test {
namespace {

// "Label=Text" for each detail of a contact that carries these lines.
std::string DetailsOf(const ContactItem& item) {
  QStringList lines;
  for (const CarriedDetail& detail : CarriedDetails(item))
    lines.append(detail.Label + u'=' + detail.Text);
  return lines.join(u'|').toStdString();
}

std::string DetailsOf(const QByteArray& carried) {
  return DetailsOf(ContactItem{.Record = {}, .CarriedLines = QString::fromUtf8(carried)});
}

struct DetailCase {
  const char* Carried;
  const char* Details;
};

class CarriedDetailTest : public testing::TestWithParam<DetailCase> {};

TEST_P(CarriedDetailTest, IsReadable) {
  EXPECT_EQ(DetailsOf(GetParam().Carried), GetParam().Details);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CarriedDetailTest,
    testing::Values(
        DetailCase{"", ""},  //
        DetailCase{"NOTE:one\\, two\\nthree\n", "Note=one, two\nthree"},
        DetailCase{"NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:=EA=B9=80\n", "Note=\xEA\xB9\x80"},
        DetailCase{"NOTE:\nNOTE: \n", ""},  // nothing in them
        DetailCase{"TEL;TYPE=CELL:010-3\n", "Telephone (cell)=010-3"},
        DetailCase{"TEL;WORK;VOICE;PREF;ISDN:1\n", "Telephone (work, isdn)=1"},
        DetailCase{"TEL;VALUE=uri:tel:+82-2-1\n", "Telephone=+82-2-1"},
        DetailCase{"EMAIL;TYPE=INTERNET:a@example.com\n", "Email=a@example.com"},
        DetailCase{"IMPP;TYPE=home:xmpp:a@example.com\n", "Messaging (home)=xmpp:a@example.com"},
        DetailCase{"ADR;TYPE=HOME:;;1 Main St;Columbus;;43004;USA\n",
                   "Address (home)=1 Main St, Columbus, 43004, USA"},
        DetailCase{"ORG:Rosewood;Sales\nN:Kim;Minsu;;;\n",
                   "Company=Rosewood, Sales|Name=Kim, Minsu"},
        DetailCase{"X-FOO;X-P=1:a\\;b;c\n", "X-FOO=a;b;c"},
        DetailCase{"item1.X-FOO:1\nitem1.X-ABLABEL:Locker\n", "Locker=1"},
        DetailCase{"item1.TEL;CELL:1\nitem1.X-ABLabel:_$!<Assistant>!$_\n", "Assistant=1"},
        DetailCase{"item1.TEL;CELL:1\nitem2.X-ABLABEL:Other\n", "Telephone (cell)=1"},
        DetailCase{"FN;X-QUILL-SPOKEN-FOR=12345678:Boss\n", "Formatted name=Boss"},
        DetailCase{"VERSION:3.0\nPRODID:x\nREV:2020-01-01\nSORT-STRING:k\n", ""}));

INSTANTIATE_TEST_SUITE_P(
    Bytes, CarriedDetailTest,
    testing::Values(DetailCase{"PHOTO;ENCODING=b;TYPE=JPEG:aW5r\n", "Photo=JPEG picture, 3 bytes"},
                    DetailCase{"PHOTO:data:image/png;base64,aW5r\n", "Photo=PNG picture, 3 bytes"},
                    DetailCase{"PHOTO;ENCODING=b:aW5r\n", "Photo=data, 3 bytes"},
                    DetailCase{"SOUND;BASE64;WAVE:aW5r\n", "Sound=WAVE sound, 3 bytes"},
                    DetailCase{"KEY;ENCODING=b;TYPE=PGP:aW5r\n", "Key=PGP data, 3 bytes"},
                    DetailCase{"X-A;ENCODING=b;TYPE=HOME:aW5r\n", "X-A=data, 3 bytes"},
                    DetailCase{"PHOTO;VALUE=uri:http://example.com/a.jpg\n",
                               "Photo=http://example.com/a.jpg"}));

struct SizeCase {
  int Bytes;
  const char* Text;
};

class CarriedSize : public testing::TestWithParam<SizeCase> {};

TEST_P(CarriedSize, IsRoundedToItsUnit) {
  const QByteArray bytes = QByteArray(GetParam().Bytes, 'x').toBase64();
  EXPECT_EQ(DetailsOf("PHOTO;ENCODING=b;TYPE=JPEG:" + bytes + "\n"),
            std::string("Photo=JPEG picture, ") + GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(Sizes, CarriedSize,
                         testing::Values(SizeCase{1023, "1023 bytes"}, SizeCase{1024, "1 KB"},
                                         SizeCase{12'000, "12 KB"}, SizeCase{1'048'575, "1024 KB"},
                                         SizeCase{1'048'576, "1.0 MB"},
                                         SizeCase{1'600'000, "1.5 MB"}));

TEST(CarriedDetails, CardsWithinTheCardAreOneDetailEach) {
  EXPECT_EQ(
      DetailsOf("AGENT:\nBEGIN:VCARD\nVERSION:2.1\nN:Aide;Small\nTEL;CELL:9\nEND:VCARD\n"
                "NOTE:between\n"
                "AGENT:\nBEGIN:VCARD\nFN:Other\nEND:VCARD\n"),
      "Agent=Name: Aide, Small\nTelephone (cell): 9|Note=between|Agent=Formatted name: Other");
}

TEST(CarriedDetails, FieldsWithoutARowComeFirst) {
  ContactItem item{.Record = {}, .CarriedLines = QStringLiteral("NOTE:note\n")};
  item.Record[ContactField::CarTelephoneNumber] = QStringLiteral("1");
  item.Record[ContactField::RadioTelephoneNumber] = QStringLiteral("2");
  item.Record[ContactField::Email3Address] = QStringLiteral("3");
  item.Record[ContactField::OtherAddressStreet] = QStringLiteral("Elm St");
  item.Record[ContactField::OtherAddressCity] = QStringLiteral("Oslo");
  item.Record[ContactField::OtherAddressState] = QStringLiteral("O");
  item.Record[ContactField::OtherAddressPostalCode] = QStringLiteral("0150");
  item.Record[ContactField::OtherAddressCountry] = QStringLiteral("Norway");
  EXPECT_EQ(DetailsOf(item),
            "Car tel=1|Radio tel=2|Email3=3|Other addr=Elm St, Oslo, O, 0150, Norway|Note=note");
}

TEST(CarriedDetails, FieldsThatAnEditWritesBackAreNotAmongThem) {
  ContactItem item{.Record = {}, .BodyInk = "ink", .Uid = QStringLiteral("uid")};
  for (const ContactFieldRow& row : kContactFields)
    if (row.WrittenBack()) item.Record[row.Field] = row.Property.toString();
  EXPECT_EQ(CarriedDetails(item), std::vector<CarriedDetail>());
}

TEST(CarriedDetails, EveryOtherFieldIsAmongThem) {
  for (const ContactFieldRow& row : kContactFields) {
    ContactItem item;
    item.Record[row.Field] = QStringLiteral("value");
    EXPECT_EQ(CarriedDetails(item).size(), row.WrittenBack() ? 0U : 1U)
        << row.Property.toString().toStdString();
  }
}

}  // namespace
}  // namespace quill::test
