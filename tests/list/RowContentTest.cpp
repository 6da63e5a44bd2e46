#include "list/RowContent.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

struct SecondColumnCase {
  ContactField Field;
  int Kind;
};

// In the order in which they are asked for.
constexpr std::array kOrder = {
    SecondColumnCase{ContactField::MobileTelephoneNumber, 1},
    SecondColumnCase{ContactField::BusinessTelephoneNumber, 3},
    SecondColumnCase{ContactField::HomeTelephoneNumber, 5},
    SecondColumnCase{ContactField::PagerNumber, 2},
    SecondColumnCase{ContactField::Business2TelephoneNumber, 4},
    SecondColumnCase{ContactField::Home2TelephoneNumber, 6},
    SecondColumnCase{ContactField::Email1Address, 7},
    SecondColumnCase{ContactField::Email2Address, 8},
    SecondColumnCase{ContactField::Email3Address, 9},
    SecondColumnCase{ContactField::BusinessFaxNumber, 10},
};

QString TextOf(ContactField field) {
  return QStringLiteral("text %1").arg(static_cast<int>(field));
}

class SecondColumnTest : public testing::TestWithParam<std::size_t> {};

TEST_P(SecondColumnTest, TheFirstFieldThatIsNotEmptyGivesTextAndIcon) {
  const SecondColumnCase& first = kOrder[GetParam()];
  ContactRecord record;
  // Everything from this field on is filled, and an address.
  for (std::size_t i = GetParam(); i < kOrder.size(); ++i)
    record[kOrder[i].Field] = TextOf(kOrder[i].Field);
  record[ContactField::HomeAddressCity] = QStringLiteral("Seoul");
  const ListRow row = MakeListRow(7, record, 0);
  EXPECT_EQ(row.Text, TextOf(first.Field));
  EXPECT_EQ(static_cast<int>(row.Icon), first.Kind);
}

INSTANTIATE_TEST_SUITE_P(Order, SecondColumnTest, testing::Range(std::size_t{0}, kOrder.size()));

class AddressPartTest : public testing::TestWithParam<ContactField> {};

TEST_P(AddressPartTest, AloneGivesTheAddressIconAndNoText) {
  ContactRecord record;
  record[GetParam()] = QStringLiteral("x");
  const ListRow row = MakeListRow(7, record, 0);
  EXPECT_EQ(row.Text, QString());
  EXPECT_EQ(static_cast<int>(row.Icon), 11);
}

INSTANTIATE_TEST_SUITE_P(
    Parts, AddressPartTest,
    testing::Values(ContactField::BusinessAddressStreet, ContactField::BusinessAddressCity,
                    ContactField::BusinessAddressState, ContactField::BusinessAddressPostalCode,
                    ContactField::BusinessAddressCountry, ContactField::HomeAddressStreet,
                    ContactField::HomeAddressCity, ContactField::HomeAddressState,
                    ContactField::HomeAddressPostalCode, ContactField::HomeAddressCountry));

class UnshownFieldTest : public testing::TestWithParam<ContactField> {};

TEST_P(UnshownFieldTest, AloneGivesNeitherTextNorIcon) {
  ContactRecord record;
  record[GetParam()] = QStringLiteral("x");
  const ListRow row = MakeListRow(7, record, 0);
  EXPECT_EQ(row.Text, QString());
  EXPECT_EQ(row.Icon, RowIconKind::None);
}

// Home fax and the other address are intended to be left out.
INSTANTIATE_TEST_SUITE_P(Fields, UnshownFieldTest,
                         testing::Values(ContactField::HomeFaxNumber,
                                         ContactField::CarTelephoneNumber,
                                         ContactField::RadioTelephoneNumber, ContactField::WebPage,
                                         ContactField::OtherAddressCity, ContactField::FileAs));

TEST(RowContent, AHomeFaxAndAnAddressGiveTheAddressIcon) {
  ContactRecord record;
  record[ContactField::HomeFaxNumber] = QStringLiteral("02-123");
  record[ContactField::BusinessAddressCity] = QStringLiteral("Seoul");
  const ListRow row = MakeListRow(7, record, 0);
  EXPECT_EQ(row.Text, QString());
  EXPECT_EQ(row.Icon, RowIconKind::Address);
}

TEST(RowContent, ARowCarriesNameCompanyOidAndItsPlace) {
  ContactRecord record;
  record[ContactField::FileAs] = QStringLiteral("Kim");
  record[ContactField::CompanyName] = QStringLiteral("Fennick");
  const ListRow row = MakeListRow(7, record, 3);
  EXPECT_EQ(row.Name, QStringLiteral("Kim"));
  EXPECT_EQ(row.Company, QStringLiteral("Fennick"));
  EXPECT_EQ(row.Oid, 7);
  EXPECT_EQ(row.Position, 3);
}

TEST(RowContent, AnEmptyContactGivesAnEmptyRow) {
  const ListRow row = MakeListRow(7, {}, 0);
  EXPECT_EQ(row.Name, QString());
  EXPECT_EQ(row.Company, QString());
  EXPECT_EQ(row.Text, QString());
  EXPECT_EQ(row.Icon, RowIconKind::None);
}

TEST(RowContent, TextsAreCutAfter127Units) {
  const QString text(127, u'x');
  EXPECT_EQ(CutListRowText(text), text);
  EXPECT_EQ(CutListRowText(text + u'y'), text);
  ContactRecord record;
  for (const auto field :
       {ContactField::FileAs, ContactField::CompanyName, ContactField::MobileTelephoneNumber})
    record[field] = text + u'y';
  const ListRow row = MakeListRow(7, record, 0);
  EXPECT_EQ(row.Name, text);
  EXPECT_EQ(row.Company, text);
  EXPECT_EQ(row.Text, text);
}

TEST(RowContent, ACutNeverLeavesHalfASurrogatePair) {
  const QString face = QStringLiteral("\U0001F600");
  const QString atTheCut = QString(126, u'x') + face;
  EXPECT_EQ(CutListRowText(atTheCut), QString(126, u'x'));
  const QString beforeTheCut = QString(125, u'x') + face + u'y';
  EXPECT_EQ(CutListRowText(beforeTheCut), QString(125, u'x') + face);
}

}  // namespace
}  // namespace quill
