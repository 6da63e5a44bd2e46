#include "exchange/CardMapper.h"

#include <gtest/gtest.h>

#include "exchange/CardSamples.h"

namespace quill::test {
namespace {

TEST(CardMapper, NamesThePersonAsSpoken) {
  ContactRecord record;
  record[ContactField::FileAs] = u"Filed"_qs;
  EXPECT_EQ(FormattedName(record), u"Filed");
  record[ContactField::CompanyName] = u"Mill"_qs;
  EXPECT_EQ(FormattedName(record), u"Mill");
  record[ContactField::Suffix] = u"Jr."_qs;
  record[ContactField::LastName] = u"Doe"_qs;
  record[ContactField::Title] = u"Dr."_qs;
  EXPECT_EQ(FormattedName(record), u"Dr. Doe Jr.");
}

TEST(CardMapper, MakesNothingOfACardWithoutFields) {
  EXPECT_FALSE(ContactFromCard(CardOf("NOTE:x\nNICKNAME:y\n")).has_value());
  EXPECT_TRUE(ContactFromCard(CardOf("BDAY:2001-01-01\n")).has_value());
}

TEST(CardMapper, TakesNoCategoriesForNoCategoryButShowAllForOne) {
  EXPECT_EQ(ContactOf("FN:x\nCATEGORIES:No Categories\n").Record[ContactField::Categories],
            QString());
  EXPECT_EQ(ContactOf("FN:x\nCATEGORIES:Show All, No Categories ,Golf\n")
                .Record[ContactField::Categories],
            u"Show All, Golf");
}

TEST(CardMapper, CarriesNoVersion) { EXPECT_EQ(ContactOf("FN:x\n").CarriedLines, QString()); }

}  // namespace
}  // namespace quill::test
