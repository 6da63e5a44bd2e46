#include "bench/MeasureTable.h"

#include <gtest/gtest.h>

namespace quill::bench {
namespace {

TEST(MeasureTable, TheMedianIsTheMiddleOne) {
  EXPECT_EQ(Median({}), 0);
  EXPECT_EQ(Median({7}), 7);
  EXPECT_EQ(Median({900, 1, 5}), 5);
}

struct NumberCase {
  double Number;
  const char16_t* Text;
};

class NumberTexts : public testing::TestWithParam<NumberCase> {};

TEST_P(NumberTexts, HaveTwoDigitsThatCount) {
  EXPECT_EQ(NumberText(GetParam().Number), QString::fromUtf16(GetParam().Text));
}

INSTANTIATE_TEST_SUITE_P(All, NumberTexts,
                         testing::Values(NumberCase{0, u"0.00"}, NumberCase{0.994, u"0.99"},
                                         NumberCase{0.996, u"1.0"}, NumberCase{9.94, u"9.9"},
                                         NumberCase{9.96, u"10"}, NumberCase{37.4, u"37"}));

TEST(MeasureTable, TimesAreInAUnitFitForReading) {
  EXPECT_EQ(TimeText(0.95), QStringLiteral("0.95 µs"));
  EXPECT_EQ(TimeText(999), QStringLiteral("999 µs"));
  EXPECT_EQ(TimeText(1200), QStringLiteral("1.2 ms"));
  EXPECT_EQ(TimeText(12'345), QStringLiteral("12 ms"));
}

TEST(MeasureTable, MeasuresComeBackAsTheyWerePacked) {
  const std::vector<Measure> measures{
      {QStringLiteral("find"), QStringLiteral("0.5 P"), QStringLiteral("12 µs")},
      {QStringLiteral("김"), {}, {}}};
  EXPECT_EQ(UnpackMeasures(PackMeasures(measures)), measures);
}

TEST(MeasureTable, HasALineForEachMeasureAndAColumnForEachStore) {
  const auto column = [](const QString& heading, const QString& value) {
    const Measure find{QStringLiteral("find"), QStringLiteral("0.5 P"), value};
    const Measure open{QStringLiteral("open"), {}, value};
    return MeasureColumn{heading, {find, open}};
  };
  EXPECT_EQ(MarkdownTable({column(QStringLiteral("10"), QStringLiteral("1 µs")),
                           column(QStringLiteral("20"), QStringLiteral("2 µs"))}),
            QStringLiteral("| what | aim | 10 | 20 |\n"
                           "| --- | --- | --- | --- |\n"
                           "| find | 0.5 P | 1 µs | 2 µs |\n"
                           "| open |  | 1 µs | 2 µs |\n"));
}

}  // namespace
}  // namespace quill::bench
