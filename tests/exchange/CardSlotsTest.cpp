#include "exchange/CardSlots.h"

#include <gtest/gtest.h>

#include "exchange/CardSamples.h"

namespace quill::test {
namespace {

struct NumberCase {
  const char* Property;
  ContactField Field;
  const char16_t* Number;
};

class CardNumbers : public testing::TestWithParam<NumberCase> {};

TEST_P(CardNumbers, GoToTheirField) {
  const ContactItem item = ContactOf(QByteArray(GetParam().Property) + '\n');
  EXPECT_EQ(item.Record[GetParam().Field].toStdU16String(), GetParam().Number);
  EXPECT_EQ(item.CarriedLines, QString());
}

using enum ContactField;

INSTANTIATE_TEST_SUITE_P(
    Types, CardNumbers,
    testing::Values(NumberCase{"TEL;TYPE=WORK:1", BusinessTelephoneNumber, u"1"},
                    NumberCase{"TEL;TYPE=WORK,CELL:1", MobileTelephoneNumber, u"1"},
                    NumberCase{"TEL;TYPE=HOME,CELL:1", MobileTelephoneNumber, u"1"},
                    NumberCase{"TEL;TYPE=mobile:1", MobileTelephoneNumber, u"1"},
                    NumberCase{"TEL;TYPE=HOMEFAX:1", HomeFaxNumber, u"1"},
                    NumberCase{"TEL;TYPE=WORKFAX:1", BusinessFaxNumber, u"1"},
                    NumberCase{"TEL;TYPE=FAX:1", BusinessFaxNumber, u"1"},
                    NumberCase{"TEL;TYPE=FAX,HOME,WORK:1", HomeFaxNumber, u"1"},
                    NumberCase{"TEL;TYPE=PAGER:1", PagerNumber, u"1"},
                    NumberCase{"TEL;TYPE=CAR,WORK:1", CarTelephoneNumber, u"1"},
                    NumberCase{"TEL:TEL:+1", HomeTelephoneNumber, u"+1"},
                    NumberCase{"TEL:010-1234-5678", MobileTelephoneNumber, u"010-1234-5678"},
                    NumberCase{"TEL:011 234 5678", MobileTelephoneNumber, u"011 234 5678"},
                    NumberCase{"TEL:+821012345678", MobileTelephoneNumber, u"+821012345678"},
                    NumberCase{"TEL:+82 010 12345678", MobileTelephoneNumber, u"+82 010 12345678"},
                    NumberCase{"TEL:012-1234-5678", HomeTelephoneNumber, u"012-1234-5678"},
                    NumberCase{"TEL:010-123-456", HomeTelephoneNumber, u"010-123-456"},
                    NumberCase{"TEL:010-1234-56789", HomeTelephoneNumber, u"010-1234-56789"},
                    NumberCase{"TEL:10-1234-5678", HomeTelephoneNumber, u"10-1234-5678"},
                    NumberCase{"TEL:+81 10 1234 5678", HomeTelephoneNumber, u"+81 10 1234 5678"},
                    NumberCase{"TEL;TYPE=HOME:010-1234-5678", HomeTelephoneNumber,
                               u"010-1234-5678"}));

class CardCarriedNumbers : public testing::TestWithParam<const char*> {};

TEST_P(CardCarriedNumbers, HaveNoField) {
  const ContactItem item = ContactOf("FN:x\n" + QByteArray(GetParam()) + '\n');
  EXPECT_EQ(item.CarriedLines, QString::fromLatin1(GetParam()) + u'\n');
}

INSTANTIATE_TEST_SUITE_P(Types, CardCarriedNumbers,
                         testing::Values("TEL;TYPE=MODEM:1", "TEL;TYPE=ISDN,WORK:1", "TEL;BBS:1"));

TEST(CardSlots, APreferredFaxOfHomeLeavesNoFieldForASecondPlainOne) {
  const ContactItem item = ContactOf("TEL;TYPE=FAX:1\nTEL;TYPE=FAX:2\nTEL;TYPE=FAX,HOME:3\n");
  EXPECT_EQ(item.Record[BusinessFaxNumber], u"1");
  EXPECT_EQ(item.Record[HomeFaxNumber], u"3");
  EXPECT_EQ(item.CarriedLines, u"TEL;TYPE=FAX:2\n");
}

TEST(CardSlots, ANumberThatIsNoneIsNotCarried) {
  const ContactItem item =
      ContactOf("FN:x\nTEL;TYPE=CAR:1\nTEL;TYPE=CAR:\nTEL;TYPE=CAR;VALUE=uri:tel:\nEMAIL: \n");
  EXPECT_EQ(item.Record[CarTelephoneNumber], u"1");
  EXPECT_EQ(item.CarriedLines, QString());
}

TEST(CardSlots, AnAddressWithoutAPlaceGoesToOther) {
  const ContactItem item = ContactOf("ADR;TYPE=PARCEL:;;A\nADR;TYPE=WORK:;;B\nADR;TYPE=WORK:;;C\n");
  EXPECT_EQ(item.Record[BusinessAddressStreet], u"B");
  EXPECT_EQ(item.Record[OtherAddressStreet], u"A");
  EXPECT_EQ(item.CarriedLines, u"ADR;TYPE=WORK:;;C\n");
}

}  // namespace
}  // namespace quill::test
