#include "exchange/CardMapper.h"

#include <gtest/gtest.h>

#include "exchange/CardSamples.h"
#include "store/CategoryText.h"

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

TEST(CardMapper, PlacesAThousandCategoriesAndCarriesALineWithMore) {
  QByteArrayList names;
  for (int i = 0; i < 1001; ++i) names.append(QByteArray::number(i));
  const ContactItem item = ContactOf("FN:x\nCATEGORIES:" + names.join(',') + '\n');
  EXPECT_EQ(SplitCategories(item.Record[ContactField::Categories]).size(), 1000);
  EXPECT_TRUE(item.CarriedLines.startsWith(u"CATEGORIES:0,1,2,"))
      << item.CarriedLines.left(40).toStdString();
  names.removeLast();
  EXPECT_EQ(ContactOf("FN:x\nCATEGORIES:" + names.join(',') + '\n').CarriedLines, QString());
}

TEST(CardMapper, CarriesNoVersion) { EXPECT_EQ(ContactOf("FN:x\n").CarriedLines, QString()); }

}  // namespace
}  // namespace quill::test
