#include "editor/CardText.h"

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
    EXPECT_EQ(CardLines(record), (std::vector<CardLine>{{label, record[*field]}}));
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

TEST(CardText, LinesHaveTheirOrder) {
  const std::vector<CardLine> lines =
      CardLines(Record({{HomeAddressCity, QStringLiteral("Seoul")},
                        {Email3Address, QStringLiteral("e")},
                        {BusinessFaxNumber, QStringLiteral("f")},
                        {HomeTelephoneNumber, QStringLiteral("h")},
                        {BusinessTelephoneNumber, QStringLiteral("w")},
                        {MobileTelephoneNumber, QStringLiteral("c")}}));
  QStringList labels;
  for (const CardLine& line : lines) labels.append(line.Label.toString());
  EXPECT_EQ(labels.join(u' '), QStringLiteral("Cell: Work: Home: W.Fax: Email: H.Adr:"));
}

TEST(CardText, OtherNumbersAreNotOnIt) {
  EXPECT_TRUE(CardLines(Record({{HomeFaxNumber, QStringLiteral("1")},
                                {CarTelephoneNumber, QStringLiteral("2")},
                                {OtherAddressCity, QStringLiteral("Busan")}}))
                  .empty());
}

TEST(CardText, AnAddressJoinsItsFilledPartsAndTakesFourLines) {
  EXPECT_EQ(CardLines(Record({{BusinessAddressStreet, QStringLiteral("1 Main St")},
                              {BusinessAddressState, QStringLiteral("OH")},
                              {BusinessAddressPostalCode, QStringLiteral("43004")},
                              {BusinessAddressCountry, QStringLiteral("USA")}})),
            (std::vector<CardLine>{{u"W.Adr:", QStringLiteral("1 Main St, OH, 43004, USA"), 4}}));
  EXPECT_EQ(
      CardLines(Record({{HomeAddressStreet, QStringLiteral("Elm St")},
                        {HomeAddressCity, QStringLiteral("Oslo")},
                        {HomeAddressState, QStringLiteral("O")},
                        {HomeAddressPostalCode, QStringLiteral("0150")},
                        {HomeAddressCountry, QStringLiteral("Norway")}})),
      (std::vector<CardLine>{{u"H.Adr:", QStringLiteral("Elm St, Oslo, O, 0150, Norway"), 4}}));
  EXPECT_EQ(CardLines(Record({{BusinessAddressCity, QStringLiteral("Oslo")}}))[0].Text,
            QStringLiteral("Oslo"));
}

TEST(CardText, OfTwoAddressesOnlyTheOneAtWorkIsShown) {
  const std::vector<CardLine> lines =
      CardLines(Record({{HomeAddressCity, QStringLiteral("Busan")},
                        {BusinessAddressCity, QStringLiteral("Seoul")}}));
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].Text, QStringLiteral("Seoul"));
}

TEST(CardText, AContactWithNothingToShowHasNoLines) { EXPECT_TRUE(CardLines({}).empty()); }

TEST(CardText, LineBreaksInAStreetBecomeBlanks) {
  EXPECT_EQ(CardLines(Record({{HomeAddressStreet, QStringLiteral("Hill House\r\n2 Hill\nRoad")},
                              {HomeAddressCity, QStringLiteral("York")}}))[0]
                .Text,
            QStringLiteral("Hill House  2 Hill Road, York"));
}

}  // namespace
}  // namespace quill
