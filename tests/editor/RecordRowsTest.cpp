#include "editor/RecordRows.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using enum ContactField;

struct FieldCase {
  RowSet Set;
  int Row;
  const char16_t* Label;
  ContactField Field;
  RowEntry Entry = RowEntry::Any;
  std::optional<PhoneFlag> Flag = std::nullopt;
};

// The rows that are edited in place as text.
class TextRow : public testing::TestWithParam<FieldCase> {};

TEST_P(TextRow, ShowsItsFieldAndNoOtherRowOfItsSetDoes) {
  const FieldCase& rule = GetParam();
  ContactRecord record;
  record[rule.Field] = QStringLiteral("value");
  const std::vector<RecordRow> rows = RowsFrom(record, rule.Set);
  const std::vector<RecordRow> empty = RowsFrom({}, rule.Set);
  for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
    if (row == rule.Row) continue;
    EXPECT_EQ(rows[row], empty[row]);
  }
  EXPECT_EQ(rows[rule.Row],
            (RecordRow{QString::fromUtf16(rule.Label), QStringLiteral("value"), RowKind::Text}));
  EXPECT_EQ(empty[rule.Row].Value, QString());
}

TEST_P(TextRow, GivesItsValueBackToItsFieldAlone) {
  const FieldCase& rule = GetParam();
  std::vector<RecordRow> rows = RowsFrom({}, rule.Set);
  rows[rule.Row].Value = QStringLiteral("value");
  ContactRecord record;
  TakeRows(rows, rule.Set, QStringLiteral("02-"), record);
  ContactRecord expected;
  expected[rule.Field] = QStringLiteral("value");
  EXPECT_EQ(record, expected);
}

TEST_P(TextRow, LosesThePrefixOfAnAreaCodeOnlyWhereItIsANumber) {
  const FieldCase& rule = GetParam();
  std::vector<RecordRow> rows = RowsFrom({}, rule.Set);
  rows[rule.Row].Value = QStringLiteral("02-");
  ContactRecord record;
  record[rule.Field] = QStringLiteral("old");
  TakeRows(rows, rule.Set, QStringLiteral("02-"), record);
  EXPECT_EQ(record[rule.Field], rule.Entry == RowEntry::Number ? QString() : QStringLiteral("02-"));
  rows[rule.Row].Value = QStringLiteral("02-1");
  TakeRows(rows, rule.Set, QStringLiteral("02-"), record);
  EXPECT_EQ(record[rule.Field], QStringLiteral("02-1"));
}

TEST_P(TextRow, SaysWhatIsTypedIntoIt) {
  const FieldCase& rule = GetParam();
  EXPECT_EQ(FindRule(rule.Set, rule.Row)->Entry, rule.Entry);
}

TEST_P(TextRow, SetsItsFlagWhenThereIsANumber) {
  const FieldCase& rule = GetParam();
  ContactRecord record;
  record[rule.Field] = QStringLiteral("1");
  PhoneFlags expected{};
  if (rule.Flag) expected[IndexOf(*rule.Flag)] = true;
  EXPECT_EQ(PhoneFlagsOf(record), expected);
}

constexpr auto kBasic = RowSet::Basic;
constexpr auto kDetail = RowSet::Detail;
constexpr auto kName = RowSet::NameParts;
constexpr auto kWork = RowSet::WorkAddress;
constexpr auto kHome = RowSet::HomeAddress;
constexpr auto kNumber = RowEntry::Number;

INSTANTIATE_TEST_SUITE_P(
    Basic, TextRow,
    testing::Values(
        FieldCase{kBasic, 1, u"Job title", JobTitle},
        FieldCase{kBasic, 2, u"Department", Department},
        FieldCase{kBasic, 3, u"Company", CompanyName},
        FieldCase{kBasic, 4, u"Mobile tel", MobileTelephoneNumber, kNumber, PhoneFlag::Mobile},
        FieldCase{kBasic, 5, u"Work tel", BusinessTelephoneNumber, kNumber, PhoneFlag::Work},
        FieldCase{kBasic, 6, u"Work fax", BusinessFaxNumber, kNumber},
        FieldCase{kBasic, 7, u"Home tel", HomeTelephoneNumber, kNumber, PhoneFlag::Home},
        FieldCase{kBasic, 9, u"Email", Email1Address, RowEntry::Email}));

INSTANTIATE_TEST_SUITE_P(
    Detail, TextRow,
    testing::Values(
        FieldCase{kDetail, 0, u"Mobile tel2", PagerNumber, kNumber, PhoneFlag::Mobile2},
        FieldCase{kDetail, 1, u"Work tel2", Business2TelephoneNumber, kNumber, PhoneFlag::Work2},
        FieldCase{kDetail, 2, u"Home tel2", Home2TelephoneNumber, kNumber, PhoneFlag::Home2},
        FieldCase{kDetail, 3, u"Home fax", HomeFaxNumber, kNumber},
        FieldCase{kDetail, 5, u"Email2", Email2Address, RowEntry::Email},
        FieldCase{kDetail, 6, u"Web page", WebPage, RowEntry::Web},
        FieldCase{kDetail, 9, u"Spouse", Spouse}, FieldCase{kDetail, 10, u"Children", Children}));

INSTANTIATE_TEST_SUITE_P(NameParts, TextRow,
                         testing::Values(FieldCase{kName, 0, u"Title", Title},
                                         FieldCase{kName, 1, u"First", FirstName},
                                         FieldCase{kName, 2, u"Middle", MiddleName},
                                         FieldCase{kName, 3, u"Last", LastName},
                                         FieldCase{kName, 4, u"Suffix", Suffix}));

INSTANTIATE_TEST_SUITE_P(WorkAddress, TextRow,
                         testing::Values(FieldCase{kWork, 0, u"Street", BusinessAddressStreet},
                                         FieldCase{kWork, 1, u"City", BusinessAddressCity},
                                         FieldCase{kWork, 2, u"State", BusinessAddressState},
                                         FieldCase{kWork, 3, u"Zip", BusinessAddressPostalCode},
                                         FieldCase{kWork, 4, u"Country", BusinessAddressCountry}));

INSTANTIATE_TEST_SUITE_P(HomeAddress, TextRow,
                         testing::Values(FieldCase{kHome, 0, u"Street", HomeAddressStreet},
                                         FieldCase{kHome, 1, u"City", HomeAddressCity},
                                         FieldCase{kHome, 2, u"State", HomeAddressState},
                                         FieldCase{kHome, 3, u"Zip", HomeAddressPostalCode},
                                         FieldCase{kHome, 4, u"Country", HomeAddressCountry}));

TEST(RecordRows, APageEndsWithABlankRow) {
  for (const RowSet page : {RowSet::Basic, RowSet::Detail}) {
    const std::vector<RecordRow> rows = RowsFrom({}, page);
    ASSERT_EQ(rows.size(), 12U);
    EXPECT_EQ(rows.back(), (RecordRow{{}, {}, RowKind::ClosingBlank}));
  }
}

TEST(RecordRows, TheNameRowShowsTheFilingNameAndChangesNothing) {
  ContactRecord record;
  record[FileAs] = QStringLiteral("Kim, Minsu");
  record[LastName] = QStringLiteral("Kim");
  std::vector<RecordRow> rows = RowsFrom(record, RowSet::Basic);
  EXPECT_EQ(rows[0], (RecordRow{QStringLiteral("Name"), record[FileAs], RowKind::Name}));
  rows[0].Value = QStringLiteral("Kim ");
  ContactRecord taken = record;
  TakeRows(rows, RowSet::Basic, {}, taken);
  EXPECT_EQ(taken, record);
}

struct AddressCase {
  RowSet Page;
  int Row;
  const char16_t* Label;
  std::array<ContactField, 5> Parts;
};

class AddressRow : public testing::TestWithParam<AddressCase> {};

TEST_P(AddressRow, ShowsItsFirstPartThatIsNotEmpty) {
  const AddressCase& rule = GetParam();
  ContactRecord record;
  for (auto part = rule.Parts.rbegin(); part != rule.Parts.rend(); ++part) {
    record[*part] = QStringLiteral("part %1").arg(part - rule.Parts.rbegin());
    EXPECT_EQ(RowsFrom(record, rule.Page)[rule.Row],
              (RecordRow{QString::fromUtf16(rule.Label), record[*part], RowKind::Address}));
  }
}

TEST_P(AddressRow, ChangesNothing) {
  const AddressCase& rule = GetParam();
  std::vector<RecordRow> rows = RowsFrom({}, rule.Page);
  EXPECT_EQ(rows[rule.Row].Value, QString());
  rows[rule.Row].Value = QStringLiteral("Seoul");
  ContactRecord record;
  TakeRows(rows, rule.Page, {}, record);
  EXPECT_EQ(record, ContactRecord{});
}

INSTANTIATE_TEST_SUITE_P(
    Pages, AddressRow,
    testing::Values(AddressCase{kBasic,
                                8,
                                u"Work addr",
                                {BusinessAddressStreet, BusinessAddressCity, BusinessAddressState,
                                 BusinessAddressPostalCode, BusinessAddressCountry}},
                    AddressCase{kDetail,
                                4,
                                u"Home addr",
                                {HomeAddressStreet, HomeAddressCity, HomeAddressState,
                                 HomeAddressPostalCode, HomeAddressCountry}}));

struct DateCase {
  int Row;
  const char16_t* Label;
  CalendarDate ContactRecord::*Date;
};

class DateRow : public testing::TestWithParam<DateCase> {};

TEST_P(DateRow, ShowsItsDate) {
  const DateCase& rule = GetParam();
  ContactRecord record;
  record.*rule.Date = {.Year = 1987, .Month = 3, .Day = 5};
  EXPECT_EQ(
      RowsFrom(record, RowSet::Detail)[rule.Row],
      (RecordRow{QString::fromUtf16(rule.Label), QStringLiteral("03/05/1987"), RowKind::Date}));
}

TEST_P(DateRow, ShowsNoneWithoutADate) {
  EXPECT_EQ(RowsFrom({}, RowSet::Detail)[GetParam().Row].Value, QStringLiteral("None"));
}

TEST_P(DateRow, ChangesNothing) {
  ContactRecord record;
  record.*GetParam().Date = {.Year = 1987, .Month = 3, .Day = 5};
  const ContactRecord before = record;
  TakeRows(RowsFrom({}, RowSet::Detail), RowSet::Detail, {}, record);
  EXPECT_EQ(record, before);
}

INSTANTIATE_TEST_SUITE_P(Detail, DateRow,
                         testing::Values(DateCase{7, u"Birthday", &ContactRecord::Birthday},
                                         DateCase{8, u"Anniversary", &ContactRecord::Anniversary}));

TEST(RecordRows, TheCategoriesRowShowsTheTextAsItIs) {
  ContactRecord record;
  record[Categories] = QStringLiteral("Friends, Work");
  EXPECT_EQ(RowsFrom(record, RowSet::Basic)[10],
            (RecordRow{QStringLiteral("Categories"), record[Categories], RowKind::Categories}));
  EXPECT_EQ(RowsFrom({}, RowSet::Basic)[10].Value, QStringLiteral("No Categories"));
}

struct CategoriesCase {
  const char16_t* Value;
  const char16_t* Kept;
};

class CategoriesRow : public testing::TestWithParam<CategoriesCase> {};

TEST_P(CategoriesRow, GivesBackTheRealOnes) {
  std::vector<RecordRow> rows = RowsFrom({}, RowSet::Basic);
  rows[10].Value = QString::fromUtf16(GetParam().Value);
  ContactRecord expected;
  expected[Categories] = QString::fromUtf16(GetParam().Kept);
  ContactRecord record;
  record[Categories] = QStringLiteral("old");
  TakeRows(rows, RowSet::Basic, {}, record);
  EXPECT_EQ(record, expected);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CategoriesRow,
    testing::Values(CategoriesCase{u"No Categories", u""}, CategoriesCase{u"", u""},
                    CategoriesCase{u"Friends", u"Friends"},
                    CategoriesCase{u" Friends,Work", u" Friends,Work"},
                    CategoriesCase{u"No Categories, Friends", u"Friends"},
                    CategoriesCase{u"Friends, No Categories", u"Friends"},
                    CategoriesCase{u"Friends,No Categories,Work", u"Friends,Work"},
                    CategoriesCase{u"No Categories,No Categories", u""},
                    CategoriesCase{u"No Categories at all", u"No Categories at all"}));

TEST(RecordRows, ACategoriesRowSaysWhenNoneIsChosen) {
  EXPECT_EQ(CategoryRowText({}), QStringLiteral("No Categories"));
  EXPECT_EQ(CategoryRowText(QStringLiteral("No Categories")), QStringLiteral("No Categories"));
  EXPECT_EQ(CategoryRowText(QStringLiteral("No Categories,Work")), QStringLiteral("Work"));
  EXPECT_EQ(CategoryRowText(QStringLiteral("Work,Friends")), QStringLiteral("Work,Friends"));
}

TEST(RecordRows, ANameIsItsPartsEachFollowedByABlank) {
  ContactRecord record;
  EXPECT_EQ(NameText(RowsFrom(record, RowSet::NameParts)), QString());
  record[LastName] = QStringLiteral("Kim");
  EXPECT_EQ(NameText(RowsFrom(record, RowSet::NameParts)), QStringLiteral("Kim "));
  record[Title] = QStringLiteral("Dr");
  record[FirstName] = QStringLiteral("Minsu");
  record[MiddleName] = QStringLiteral("M.");
  record[Suffix] = QStringLiteral("Jr");
  EXPECT_EQ(NameText(RowsFrom(record, RowSet::NameParts)), QStringLiteral("Dr Minsu M. Kim Jr "));
}

TEST(RecordRows, AnAddressIsItsFirstPartAndAStreetIsKeptWhole) {
  ContactRecord record;
  EXPECT_EQ(AddressText(RowsFrom(record, RowSet::WorkAddress)), QString());
  record[BusinessAddressCity] = QStringLiteral("Seoul");
  EXPECT_EQ(AddressText(RowsFrom(record, RowSet::WorkAddress)), QStringLiteral("Seoul"));
  record[BusinessAddressStreet] = QStringLiteral("Hill House\r\n2 Hill Road");
  EXPECT_EQ(AddressText(RowsFrom(record, RowSet::WorkAddress)), record[BusinessAddressStreet]);
  ContactRecord taken;
  TakeRows(RowsFrom(record, RowSet::WorkAddress), RowSet::WorkAddress, {}, taken);
  EXPECT_EQ(taken, record);
}

TEST(RecordRows, DatesHaveTwoDigitsForMonthAndDay) {
  EXPECT_EQ(DateText({.Year = 2026, .Month = 11, .Day = 21}), QStringLiteral("11/21/2026"));
  EXPECT_EQ(DateText({.Year = 2000, .Month = 1, .Day = 2}), QStringLiteral("01/02/2000"));
  EXPECT_EQ(DateText({.Year = 0, .Month = 1, .Day = 2}), QStringLiteral("None"));
}

TEST(RecordRows, FewerRowsThanTheSetHasLeaveTheOtherFieldsBe) {
  std::vector<RecordRow> rows = RowsFrom({}, RowSet::NameParts);
  rows.resize(1);
  ContactRecord record;
  record[FirstName] = QStringLiteral("Minsu");
  record[Title] = QStringLiteral("Dr");
  TakeRows(rows, RowSet::NameParts, {}, record);
  EXPECT_EQ(record[FirstName], QStringLiteral("Minsu"));
  EXPECT_EQ(record[Title], QString());
}

}  // namespace
}  // namespace quill
