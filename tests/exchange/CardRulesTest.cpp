// One sample card, or a few, for every rule of reading and meaning: NAME.vcf and beside it
// NAME.txt, what must come of it.
#include <gtest/gtest.h>

#include "exchange/CardSamples.h"

namespace quill::test {
namespace {

class CardRules : public testing::TestWithParam<std::string> {};

TEST_P(CardRules, GiveWhatTheSampleSays) {
  const QString name = QString::fromStdString(GetParam());
  const QString expected = QString::fromUtf8(SampleBytes(name + u".txt"_qs));
  EXPECT_EQ(Describe(SampleBytes(name + u".vcf"_qs)).toStdString(), expected.toStdString());
}

INSTANTIATE_TEST_SUITE_P(Samples, CardRules, testing::ValuesIn(SampleNames()),
                         [](const auto& sample) { return TestNameOf(sample.param); });

}  // namespace
}  // namespace quill::test
