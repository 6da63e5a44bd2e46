#include "store/ContactFields.h"

#include <gtest/gtest.h>

#include <QSet>

namespace quill {
namespace {

int CountRows(bool (ContactFieldRow::*flag)() const) {
  int count = 0;
  for (const ContactFieldRow& row : kContactFields) count += (row.*flag)() ? 1 : 0;
  return count;
}

TEST(ContactFields, EveryPropertyHasItsOwnName) {
  QSet<QString> names;
  for (const ContactFieldRow& row : kContactFields) names.insert(row.Property.toString());
  for (const ContactDateRow& row : kContactDates) names.insert(row.Property.toString());
  EXPECT_EQ(names.size(), 43);
}

TEST(ContactFields, ARowIsFoundByItsField) {
  for (const ContactFieldRow& row : kContactFields) {
    EXPECT_EQ(FieldRow(row.Field).Property, row.Property);
  }
  EXPECT_EQ(FieldRow(ContactField::Email3Address).Property, u"Email3Address");
  EXPECT_EQ(FieldRow(ContactField::Children).Property, u"Children");
}

TEST(ContactFields, EightTextsAreNeverPutBack) {
  using enum ContactField;
  EXPECT_EQ(CountRows(&ContactFieldRow::WrittenBack), 41 - 8);
  for (const ContactField field :
       {CarTelephoneNumber, RadioTelephoneNumber, Email3Address, OtherAddressStreet,
        OtherAddressCity, OtherAddressState, OtherAddressPostalCode, OtherAddressCountry}) {
    EXPECT_FALSE(FieldRow(field).WrittenBack()) << FieldRow(field).Property.toLatin1().data();
  }
}

TEST(ContactFields, AListRowCarriesTwentyThreeTexts) {
  using enum ContactField;
  EXPECT_EQ(CountRows(&ContactFieldRow::InListRow), 23);
  for (const ContactField field : {FileAs,
                                   CompanyName,
                                   BusinessTelephoneNumber,
                                   Business2TelephoneNumber,
                                   HomeTelephoneNumber,
                                   Home2TelephoneNumber,
                                   MobileTelephoneNumber,
                                   PagerNumber,
                                   Email1Address,
                                   Email2Address,
                                   Email3Address,
                                   BusinessFaxNumber,
                                   BusinessAddressStreet,
                                   BusinessAddressCity,
                                   BusinessAddressState,
                                   BusinessAddressPostalCode,
                                   BusinessAddressCountry,
                                   HomeAddressStreet,
                                   HomeAddressCity,
                                   HomeAddressState,
                                   HomeAddressPostalCode,
                                   HomeAddressCountry,
                                   Categories}) {
    EXPECT_TRUE(FieldRow(field).InListRow()) << FieldRow(field).Property.toLatin1().data();
  }
}

TEST(ContactRecord, StartsEmptyAndWithoutDates) {
  const ContactRecord record;
  for (const QString& text : record.Texts) EXPECT_TRUE(text.isEmpty());
  EXPECT_EQ(record.Birthday.Year, 0);
  EXPECT_EQ(record.Anniversary.Year, 0);
}

TEST(ContactRecord, ACopyIsAValueOfItsOwn) {
  ContactRecord record;
  record[ContactField::FileAs] = QStringLiteral("Kim");
  ContactRecord copy = record;
  copy[ContactField::FileAs] += QStringLiteral("a");
  EXPECT_EQ(record[ContactField::FileAs], QStringLiteral("Kim"));
}

}  // namespace
}  // namespace quill
