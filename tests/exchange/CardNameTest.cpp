#include "exchange/CardName.h"

#include <gtest/gtest.h>

#include "exchange/CardSamples.h"

namespace quill::test {
namespace {

struct NameCase {
  const char* Properties;
  const char16_t* Name;
};

class CardNames : public testing::TestWithParam<NameCase> {};

TEST_P(CardNames, SayWhoseCardItIs) {
  EXPECT_EQ(CardName(CardOf(GetParam().Properties).Properties).toStdU16String(), GetParam().Name);
}

INSTANTIATE_TEST_SUITE_P(
    Cards, CardNames,
    testing::Values(NameCase{"N:Doe;Jane;;;\nFN:Jane\n", u"Jane"},
                    NameCase{"FN: \nN:Doe;Jane;;Dr.;\n", u"Doe Jane Dr."},
                    NameCase{"ORG:Mill;North\nNICKNAME:Jay\n", u"Jay"},
                    NameCase{"EMAIL:a@b.c\nORG:Mill;North\n", u"Mill North"},
                    NameCase{"TEL:1\nEMAIL:a@b.c\n", u"a@b.c"}, NameCase{"TEL:1\n", u"1"},
                    NameCase{"NOTE:x\n", u""},
                    NameCase{"FN:a\\nb \x1b[31m\xE2\x80\xAE c\n", u"a b [31m c"},
                    NameCase{"FN:1234567890123456789012345678901234567890123456789012345678901\n",
                             u"123456789012345678901234567890123456789012345678901234567890"}));

TEST(CardName, IsNotThatOfACardWithinTheCard) {
  const auto cards = ReadCards(
      "BEGIN:VCARD\nVERSION:2.1\nAGENT:\nBEGIN:VCARD\nFN:Aide\nEND:VCARD\nTEL:1\nEND:VCARD\n");
  ASSERT_EQ(cards.size(), 1U);
  EXPECT_EQ(CardName(cards.front().Properties), u"1");
}

}  // namespace
}  // namespace quill::test
