#include "exchange/CardDate.h"

#include <gtest/gtest.h>

namespace quill::test {
namespace {

struct DateCase {
  const char16_t* Text;
  CalendarDate Date;  // year 0: none
};

class CardDates : public testing::TestWithParam<DateCase> {};

TEST_P(CardDates, AreReadInTheseForms) {
  EXPECT_EQ(DateFromCard(GetParam().Text).value_or(CalendarDate{}), GetParam().Date);
}

constexpr CalendarDate kThirdOfJune{2004, 6, 4, 3};

INSTANTIATE_TEST_SUITE_P(
    Forms, CardDates,
    testing::Values(DateCase{u"2004-06-03", kThirdOfJune}, DateCase{u"20040603", kThirdOfJune},
                    DateCase{u"2004-6-3", kThirdOfJune}, DateCase{u" 2004-06-03 ", kThirdOfJune},
                    DateCase{u"20040603T235959Z", kThirdOfJune},
                    DateCase{u"2004-06-03T00:00:00-09:00", kThirdOfJune},
                    DateCase{u"2004-06-03 12:00", kThirdOfJune},
                    DateCase{u"1900-01-01", {1900, 1, 1, 1}},
                    DateCase{u"2999-12-31", {2999, 12, 2, 31}}, DateCase{u"1899-12-31", {}},
                    DateCase{u"3000-01-01", {}}, DateCase{u"1604-05-01", {}},
                    DateCase{u"--0415", {}}, DateCase{u"2003-02-29", {}}, DateCase{u"2004-06", {}},
                    DateCase{u"200406", {}}, DateCase{u"04-06-03", {}}, DateCase{u"2004-123-3", {}},
                    DateCase{u"2004-06-", {}}, DateCase{u"T", {}}, DateCase{u"circa 1800", {}},
                    DateCase{u"", {}}));

TEST(CardDatesForCards, AreWrittenAsTheVersionHasThem) {
  EXPECT_EQ(DateForCard(kThirdOfJune, CardVersion::V21), u"2004-06-03"_qs);
  EXPECT_EQ(DateForCard(kThirdOfJune, CardVersion::V30), u"2004-06-03"_qs);
  EXPECT_EQ(DateForCard(kThirdOfJune, CardVersion::V40), u"20040603"_qs);
}

}  // namespace
}  // namespace quill::test
