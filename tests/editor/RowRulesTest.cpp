#include "editor/RowRules.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <set>

namespace quill {
namespace {

constexpr std::array kSets = {RowSet::Detail, RowSet::Basic, RowSet::NameParts, RowSet::WorkAddress,
                              RowSet::HomeAddress};

QStringList Labels(RowSet set) {
  QStringList labels;
  for (const RowRule& rule : RulesOf(set)) labels.append(rule.Label.toString());
  return labels;
}

TEST(RowRules, EverySetHasItsRowsInTheirOrder) {
  EXPECT_EQ(Labels(RowSet::Basic).join(u'|'),
            QStringLiteral("Name|Job title|Department|Company|Mobile tel|Work tel|Work fax|"
                           "Home tel|Work addr|Email|Categories|"));
  EXPECT_EQ(Labels(RowSet::Detail).join(u'|'),
            QStringLiteral("Mobile tel2|Work tel2|Home tel2|Home fax|Home addr|Email2|Web page|"
                           "Birthday|Anniversary|Spouse|Children|"));
  EXPECT_EQ(Labels(RowSet::NameParts).join(u'|'), QStringLiteral("Title|First|Middle|Last|Suffix"));
  const QString address = QStringLiteral("Street|City|State|Zip|Country");
  EXPECT_EQ(Labels(RowSet::WorkAddress).join(u'|'), address);
  EXPECT_EQ(Labels(RowSet::HomeAddress).join(u'|'), address);
}

TEST(RowRules, ARowThatASetDoesNotHaveHasNoRule) {
  EXPECT_EQ(FindRule(RowSet::Basic, -1), nullptr);
  EXPECT_EQ(FindRule(RowSet::Basic, kPageRowCount), nullptr);
  EXPECT_EQ(FindRule(RowSet::NameParts, kPartRowCount), nullptr);
  EXPECT_EQ(FindRule(RowSet::Basic, 0), &RulesOf(RowSet::Basic)[0]);
  EXPECT_EQ(FindRule(RowSet::NameParts, 4), &RulesOf(RowSet::NameParts)[4]);
}

// What a sheet cannot show it would wipe out when it is saved.
TEST(RowRules, EveryFieldThatAnEditWritesBackHasExactlyOneRow) {
  std::multiset<ContactField> fields;
  for (const RowSet set : kSets)
    for (const RowRule& rule : RulesOf(set))
      if (rule.Field) fields.insert(*rule.Field);
  for (const ContactFieldRow& row : kContactFields)
    EXPECT_EQ(fields.count(row.Field), row.WrittenBack() ? 1U : 0U)
        << row.Property.toString().toStdString();
}

TEST(RowRules, TheFlagsKeepTheirOrder) {
  EXPECT_EQ(IndexOf(PhoneFlag::Home2), 0U);
  EXPECT_EQ(IndexOf(PhoneFlag::Home), 1U);
  EXPECT_EQ(IndexOf(PhoneFlag::Work2), 2U);
  EXPECT_EQ(IndexOf(PhoneFlag::Work), 3U);
  EXPECT_EQ(IndexOf(PhoneFlag::Mobile2), 4U);
  EXPECT_EQ(IndexOf(PhoneFlag::Mobile), 5U);
}

}  // namespace
}  // namespace quill
