#include "exchange/CardParts.h"

#include <gtest/gtest.h>

#include <array>

namespace quill::test {
namespace {

constexpr std::array kFields{ContactField::LastName, ContactField::FirstName};

struct PartsCase {
  const char16_t* Last;   // of the record
  const char16_t* First;  // of the record
  bool Agrees;            // with "Doe", "Jane"
  bool HasAllOfThem;
  bool HasOneOfThem;
};

class CardParts : public testing::TestWithParam<PartsCase> {
 protected:
  ContactRecord Record() const {
    ContactRecord record;
    record[ContactField::LastName] = QString::fromUtf16(GetParam().Last);
    record[ContactField::FirstName] = QString::fromUtf16(GetParam().First);
    return record;
  }
  QStringList m_texts{u"Doe"_qs, u"Jane"_qs};
};

TEST_P(CardParts, AreComparedWithTheirFields) {
  EXPECT_EQ(Agree(kFields, m_texts, Record()), GetParam().Agrees);
  EXPECT_EQ(HasAll(kFields, m_texts, Record()), GetParam().HasAllOfThem);
  EXPECT_EQ(HasOne(kFields, m_texts, Record()), GetParam().HasOneOfThem);
}

TEST_P(CardParts, FillEmptyFieldsAlone) {
  ContactRecord record = Record();
  FillEmpty(kFields, m_texts, record);
  const bool hadLast = !Record()[ContactField::LastName].isEmpty();
  const bool hadFirst = !Record()[ContactField::FirstName].isEmpty();
  EXPECT_EQ(record[ContactField::LastName], hadLast ? Record()[ContactField::LastName] : u"Doe"_qs);
  EXPECT_EQ(record[ContactField::FirstName],
            hadFirst ? Record()[ContactField::FirstName] : u"Jane"_qs);
}

INSTANTIATE_TEST_SUITE_P(Records, CardParts,
                         testing::Values(PartsCase{u"", u"", true, false, false},
                                         PartsCase{u"Doe", u"", true, false, true},
                                         PartsCase{u"Doe", u"Jane", true, true, true},
                                         PartsCase{u"Doe", u"Jim", false, false, true},
                                         PartsCase{u"Roe", u"Jim", false, false, false}));

TEST(CardPartsOfNothing, AreThereButNotInCommon) {
  const QStringList nothing{QString(), QString()};
  EXPECT_TRUE(HasAll(kFields, nothing, {}));
  EXPECT_FALSE(HasOne(kFields, nothing, {}));
}

}  // namespace
}  // namespace quill::test
