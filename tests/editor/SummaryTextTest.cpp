#include "editor/SummaryText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill {
namespace {

using enum ContactField;
using Fields = std::vector<std::pair<ContactField, QString>>;

ContactRecord Record(const Fields& fields) {
  ContactRecord record;
  for (const auto& [field, text] : fields) record[field] = text;
  return record;
}

struct ChoiceCase {
  QString Label;
  std::vector<ContactField> Fields;  // the first that is filled is shown
};

class CardChoice : public testing::TestWithParam<ChoiceCase> {};

TEST_P(CardChoice, ShowsTheFirstFieldThatIsFilled) {
  const auto& [label, fields] = GetParam();
  ContactRecord record;
  for (auto field = fields.rbegin(); field != fields.rend(); ++field) {
    record[*field] = QStringLiteral("value %1").arg(field - fields.rbegin());
    EXPECT_EQ(SummaryLines(record), (std::vector<SummaryLine>{{label, record[*field]}}));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Lines, CardChoice,
    testing::Values(
        ChoiceCase{QStringLiteral("Cell:"), {MobileTelephoneNumber, PagerNumber}},
        ChoiceCase{QStringLiteral("Work:"), {BusinessTelephoneNumber, Business2TelephoneNumber}},
        ChoiceCase{QStringLiteral("Home:"), {HomeTelephoneNumber, Home2TelephoneNumber}},
        ChoiceCase{QStringLiteral("W.Fax:"), {BusinessFaxNumber}},
        ChoiceCase{QStringLiteral("Email:"), {Email1Address, Email2Address, Email3Address}}));

TEST(SummaryText, LinesHaveTheirOrder) {
  const std::vector<SummaryLine> lines =
      SummaryLines(Record({{HomeAddressCity, QStringLiteral("Seoul")},
                           {Email3Address, QStringLiteral("e")},
                           {BusinessFaxNumber, QStringLiteral("f")},
                           {HomeTelephoneNumber, QStringLiteral("h")},
                           {BusinessTelephoneNumber, QStringLiteral("w")},
                           {MobileTelephoneNumber, QStringLiteral("c")}}));
  QStringList labels;
  for (const SummaryLine& line : lines) labels.append(line.Label.toString());
  EXPECT_EQ(labels.join(u' '), QStringLiteral("Cell: Work: Home: W.Fax: Email: H.Adr:"));
}

TEST(SummaryText, OtherNumbersAreNotOnIt) {
  EXPECT_TRUE(SummaryLines(Record({{HomeFaxNumber, QStringLiteral("1")},
                                   {CarTelephoneNumber, QStringLiteral("2")},
                                   {OtherAddressCity, QStringLiteral("Busan")}}))
                  .empty());
}

TEST(SummaryText, AnAddressJoinsItsFilledPartsAndTakesFourLines) {
  EXPECT_EQ(
      SummaryLines(Record({{BusinessAddressStreet, QStringLiteral("1 Main St")},
                           {BusinessAddressState, QStringLiteral("OH")},
                           {BusinessAddressPostalCode, QStringLiteral("43004")},
                           {BusinessAddressCountry, QStringLiteral("USA")}})),
      (std::vector<SummaryLine>{{u"W.Adr:", QStringLiteral("1 Main St, OH, 43004, USA"), 4}}));
  EXPECT_EQ(
      SummaryLines(Record({{HomeAddressStreet, QStringLiteral("Elm St")},
                           {HomeAddressCity, QStringLiteral("Oslo")},
                           {HomeAddressState, QStringLiteral("O")},
                           {HomeAddressPostalCode, QStringLiteral("0150")},
                           {HomeAddressCountry, QStringLiteral("Norway")}})),
      (std::vector<SummaryLine>{{u"H.Adr:", QStringLiteral("Elm St, Oslo, O, 0150, Norway"), 4}}));
  EXPECT_EQ(SummaryLines(Record({{BusinessAddressCity, QStringLiteral("Oslo")}}))[0].Text,
            QStringLiteral("Oslo"));
}

TEST(SummaryText, OfTwoAddressesOnlyTheOneAtWorkIsShown) {
  const std::vector<SummaryLine> lines =
      SummaryLines(Record({{HomeAddressCity, QStringLiteral("Busan")},
                           {BusinessAddressCity, QStringLiteral("Seoul")}}));
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].Text, QStringLiteral("Seoul"));
}

TEST(SummaryText, AContactWithNothingToShowHasNoLines) { EXPECT_TRUE(SummaryLines({}).empty()); }

TEST(SummaryText, LineBreaksInAStreetBecomeBlanks) {
  EXPECT_EQ(SummaryLines(Record({{HomeAddressStreet, QStringLiteral("Hill House\r\n2 Hill\nRoad")},
                                 {HomeAddressCity, QStringLiteral("York")}}))[0]
                .Text,
            QStringLiteral("Hill House  2 Hill Road, York"));
}

}  // namespace
}  // namespace quill
