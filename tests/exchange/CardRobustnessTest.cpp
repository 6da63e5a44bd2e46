// Whatever a file holds, reading it ends, and what is made of it is no larger than the file.
#include <gtest/gtest.h>

#include <random>

#include "exchange/CardSamples.h"

namespace quill::test {
namespace {

// UTF-16 becomes UTF-8, which is at most one and a half times as long.
qsizetype LargestOutcome(const QByteArray& bytes) { return bytes.size() * 2; }

void ExpectBounded(const QByteArray& bytes) {
  qsizetype lines = 0;
  qsizetype texts = 0;
  for (const Card& card : ReadCards(bytes)) {
    for (const CardProperty& property : card.Properties) lines += property.Line.size();
    const auto item = ContactFromCard(card);
    if (!item) continue;
    texts += item->CarriedLines.size() + item->Uid.size();
    // FileAs repeats what other fields hold.
    for (std::size_t i = 1; i < kContactFieldCount; ++i) texts += item->Record.Texts[i].size();
  }
  EXPECT_LE(lines, LargestOutcome(bytes));
  EXPECT_LE(texts, LargestOutcome(bytes));
}

class DamagedCards : public testing::TestWithParam<std::string> {
 protected:
  QByteArray Bytes() const { return SampleBytes(QString::fromStdString(GetParam()) + u".vcf"_qs); }
};

TEST_P(DamagedCards, AreReadWhereverTheyAreCutOff) {
  const QByteArray bytes = Bytes();
  ASSERT_FALSE(bytes.isEmpty());
  for (qsizetype size = 0; size <= bytes.size(); ++size) ExpectBounded(bytes.first(size));
}

TEST_P(DamagedCards, AreReadWithAnyBytesChanged) {
  std::mt19937 random(1);
  const QByteArray marks = QByteArrayLiteral(
      "\0\r\n:;=\"\\ ,.^\xFF\xFE\xC3"
      "A0");
  const QByteArray bytes = Bytes();
  for (int round = 0; round < 200; ++round) {
    QByteArray damaged = bytes;
    for (int i = 0; i < 4; ++i) {
      const auto at = static_cast<qsizetype>(random() % static_cast<std::size_t>(damaged.size()));
      damaged[at] =
          marks.at(static_cast<qsizetype>(random() % static_cast<std::size_t>(marks.size())));
    }
    ExpectBounded(damaged);
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, DamagedCards, testing::ValuesIn(SampleNames()),
                         [](const auto& sample) { return TestNameOf(sample.param); });

}  // namespace
}  // namespace quill::test
