#include "exchange/CardRelations.h"

#include <gtest/gtest.h>

#include "exchange/CardSamples.h"

namespace quill::test {
namespace {

struct RelativeCase {
  const char* Properties;
  ContactField Field;
  const char16_t* Names;
};

class CardRelatives : public testing::TestWithParam<RelativeCase> {};

TEST_P(CardRelatives, AreReadFromTheirProperty) {
  const ContactItem item = ContactOf("FN:x\n" + QByteArray(GetParam().Properties));
  EXPECT_EQ(item.Record[GetParam().Field].toStdU16String(), GetParam().Names);
  EXPECT_EQ(item.CarriedLines, QString());
}

using enum ContactField;

INSTANTIATE_TEST_SUITE_P(
    Properties, CardRelatives,
    testing::Values(
        RelativeCase{"X-SPOUSE:Max\n", Spouse, u"Max"},
        RelativeCase{"X-EVOLUTION-SPOUSE:Max\n", Spouse, u"Max"},
        RelativeCase{"X-MS-SPOUSE:Max\n", Spouse, u"Max"},
        RelativeCase{"X-KADDRESSBOOK-X-SpousesName:Max\n", Spouse, u"Max"},
        RelativeCase{"X-WAB-SPOUSE_NAME:Max\n", Spouse, u"Max"},
        RelativeCase{"a.X-ABRELATEDNAMES:Max\nA.X-ABLabel:_$!<Spouse>!$_\n", Spouse, u"Max"},
        RelativeCase{"a.X-ABRELATEDNAMES:Max\na.X-ABLabel:spouse\n", Spouse, u"Max"},
        RelativeCase{"RELATED;TYPE=spouse;VALUE=text:Max\n", Spouse, u"Max"},
        RelativeCase{"X-SPOUSE:Max\nX-MS-SPOUSE:Max\nX-SPOUSE:\n", Spouse, u"Max"},
        RelativeCase{"X-QUILL-CHILDREN:Ann and Bob\n", Children, u"Ann and Bob"},
        RelativeCase{"X-CHILDREN:Ann\n", Children, u"Ann"},
        RelativeCase{"X-MS-CHILD:Ann\nX-MS-CHILD:Bob\n", Children, u"Ann, Bob"},
        RelativeCase{"a.X-ABRELATEDNAMES:Ann\na.X-ABLabel:_$!<Child>!$_\n", Children, u"Ann"},
        RelativeCase{"RELATED;TYPE=child:Ann\nRELATED;TYPE=child:Bob\n", Children, u"Ann, Bob"},
        RelativeCase{"X-MS-CHILD:Ann\nRELATED;TYPE=child:Ann\n", Children, u"Ann"}));

class CardDays : public testing::TestWithParam<const char*> {};

TEST_P(CardDays, AreReadFromTheirProperty) {
  const ContactItem item = ContactOf("FN:x\n" + QByteArray(GetParam()));
  const CalendarDate& date = item.Record.Anniversary;
  EXPECT_EQ(date.Year * 10000 + date.Month * 100 + date.Day, 20010609);
  EXPECT_EQ(item.CarriedLines, QString());
}

INSTANTIATE_TEST_SUITE_P(
    Anniversaries, CardDays,
    testing::Values("ANNIVERSARY:20010609\n", "X-ANNIVERSARY:2001-06-09\n",
                    "X-EVOLUTION-ANNIVERSARY:2001-06-09\n", "X-MS-ANNIVERSARY:20010609\n",
                    "X-KADDRESSBOOK-X-Anniversary:2001-06-09T00:00:00\n",
                    "X-WAB-WEDDING_ANNIVERSARY:20010609\n",
                    "a.X-ABDATE;TYPE=pref:2001-06-09\na.X-ABLabel:_$!<Anniversary>!$_\n",
                    "X-ANDROID-CUSTOM:vnd.android.cursor.item/contact_event;2001-06-09;1;;\n",
                    "ANNIVERSARY:20010609\nX-MS-ANNIVERSARY:20010609\n"));

class CardDaysCarried : public testing::TestWithParam<const char*> {};

TEST_P(CardDaysCarried, AreNoDayOfTheRecord) {
  const ContactItem item = ContactOf("FN:x\n" + QByteArray(GetParam()));
  EXPECT_EQ(item.Record.Birthday, CalendarDate());
  EXPECT_EQ(item.Record.Anniversary, CalendarDate());
  EXPECT_EQ(item.CarriedLines, QString::fromLatin1(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, CardDaysCarried,
    testing::Values("BDAY:--0415\n", "BDAY:1604-04-15\n", "BDAY:circa 1800\n",
                    "ANNIVERSARY:3000-01-01\n", "a.X-ABDATE:2001-06-09\na.X-ABLABEL:First day\n",
                    "X-ANDROID-CUSTOM:vnd.android.cursor.item/contact_event;2001-06-09;3;;\n"));

TEST(CardDaysOfOneKind, AreTheFirstThatIsADay) {
  const ContactItem item = ContactOf("BDAY:soon\nBDAY:2001-02-03\nBDAY:2001-02-04\n");
  EXPECT_EQ(item.Record.Birthday.Day, 3);
  EXPECT_EQ(item.CarriedLines, u"BDAY:soon\nBDAY:2001-02-04\n");
}

}  // namespace
}  // namespace quill::test
