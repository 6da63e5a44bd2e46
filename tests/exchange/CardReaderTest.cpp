#include "exchange/CardReader.h"

#include <gtest/gtest.h>

#include "exchange/CardSamples.h"
#include "exchange/PatternDevice.h"

namespace quill::test {
namespace {

constexpr char kNextCard[] = "\nEND:VCARD\nBEGIN:VCARD\nFN:Next\nEND:VCARD\n";

struct HostileCase {
  const char* Name;
  const char* Piece;  // of a single card
  qint64 Times;
  CardFault Fault;
};

class HostileCards : public testing::TestWithParam<HostileCase> {};

TEST_P(HostileCards, AreGivenUpAndTheNextCardIsRead) {
  PatternDevice device(GetParam().Piece, GetParam().Times, 64 * 1024, kNextCard);
  CardReader reader(device, {});
  Card card;
  ASSERT_TRUE(reader.Next(card));
  EXPECT_EQ(card.Fault, GetParam().Fault);
  EXPECT_GT(card.FaultLine, 0);
  EXPECT_TRUE(card.Properties.empty());
  ASSERT_TRUE(reader.Next(card));
  EXPECT_EQ(card.Fault, CardFault::None);
  ASSERT_EQ(card.Properties.size(), 1U);
  EXPECT_EQ(card.Properties.front().Value, u"Next");
  EXPECT_FALSE(reader.Next(card));
}

INSTANTIATE_TEST_SUITE_P(
    Pieces, HostileCards,
    testing::Values(HostileCase{"OneLine", "FN:x", 25'000'000, CardFault::LineTooLong},
                    HostileCase{"Folds", "FN:x\n ", 16'000'000, CardFault::LineTooLong},
                    HostileCase{"Properties", "FN:x\n", 1'000'000, CardFault::TooManyLines},
                    HostileCase{"Agents", "VERSION:2.1\nAGENT:\nBEGIN:VCARD\n", 10'000,
                                CardFault::NestedTooDeep}),
    [](const auto& hostile) { return std::string(hostile.param.Name); });

TEST(CardReader, GivesUpACardThatIsTooLargeAsAWhole) {
  // The first line begins the card, each of the others is within its limit.
  const QByteArray line = "FN:" + QByteArray(1024 * 1024, 'x') + '\n';
  PatternDevice device(line, 20, 64 * 1024, kNextCard);
  CardReader reader(device, {});
  Card card;
  ASSERT_TRUE(reader.Next(card));
  EXPECT_EQ(card.Fault, CardFault::CardTooLarge);
  EXPECT_EQ(card.FaultLine, 16);
  ASSERT_TRUE(reader.Next(card));
  EXPECT_EQ(card.Fault, CardFault::None);
}

TEST(CardReader, AcceptsCardsInCardsUpToTheLimit) {
  QByteArray bytes = "BEGIN:VCARD\nVERSION:2.1\nFN:Outer\n";
  for (int i = 0; i < CardReader::kMaxDepth; ++i) bytes += "AGENT:\nBEGIN:VCARD\n";
  for (int i = 0; i < CardReader::kMaxDepth; ++i) bytes += "END:VCARD\n";
  bytes += "TEL:1\nEND:VCARD\n";
  const auto cards = ReadCards(bytes);
  ASSERT_EQ(cards.size(), 1U);
  EXPECT_EQ(cards.front().Fault, CardFault::None);
  EXPECT_EQ(cards.front().Properties.back().Name, u"TEL");
  EXPECT_FALSE(cards.front().Properties.back().IsNested);
}

TEST(CardReader, NumbersCardsAndProperties) {
  const auto cards = ReadCards("x\n\nBEGIN:VCARD\nFN:a\n b\nTEL:1\nEND:VCARD\nBEGIN:VCARD\n");
  ASSERT_EQ(cards.size(), 2U);
  EXPECT_EQ(cards[0].Ordinal, 1);
  EXPECT_EQ(cards[0].Line, 3);
  EXPECT_EQ(cards[0].Properties.at(0).LineNumber, 4);
  EXPECT_EQ(cards[0].Properties.at(1).LineNumber, 6);
  EXPECT_EQ(cards[1].Ordinal, 2);
  EXPECT_EQ(cards[1].Line, 8);
}

TEST(CardReader, TakesTheAgentOfVersion30ForACardThatWasNotClosed) {
  EXPECT_EQ(ReadCards("BEGIN:VCARD\nVERSION:3.0\nAGENT:\nBEGIN:VCARD\nEND:VCARD\n").size(), 2U);
}

QByteArrayList RawCardsOf(QIODevice& device) {
  CardReader reader(device, {}, RawBytes::Kept);
  QByteArrayList found;
  Card card;
  while (reader.Next(card)) found.append(card.Raw);
  return found;
}

TEST(CardReader, KeepsCardsAsTheyCame) {
  const QByteArray first =
      "BEGIN:VCARD\r\nVERSION:2.1\r\nAGENT:\r\nbegin:vcard\nEND:VCARD\n\nX\r\n";
  const QByteArray second = "BEGIN:VCARD\rFN:a\r b\rEND:VCARD\r";
  const QByteArray third = "N:c\nEND:VCARD";
  PatternDevice device(first + second + third, 1, 7);
  EXPECT_EQ(RawCardsOf(device), (QByteArrayList{first, second, third}));
}

TEST(CardReader, KeepsNoMoreThanTheLimitOfACard) {
  PatternDevice device("FN:" + QByteArray(1024 * 1024, 'x') + '\n', 40, 64 * 1024, kNextCard);
  const QByteArrayList raw = RawCardsOf(device);
  ASSERT_EQ(raw.size(), 2);
  EXPECT_GE(raw.first().size(), CardReader::kMaxCard);
  EXPECT_LE(raw.first().size(), CardReader::kMaxCard + 1);
  EXPECT_EQ(raw.last(), "BEGIN:VCARD\nFN:Next\nEND:VCARD\n");
}

TEST(CardReader, BeginsALineAfterOneThatWasCut) {
  PatternDevice device("FN:x\n y", CardLines::kMaxLine, 64 * 1024, kNextCard);
  const QByteArrayList raw = RawCardsOf(device);
  ASSERT_EQ(raw.size(), 2);
  EXPECT_TRUE(raw.first().endsWith("\nEND:VCARD\n"));
}

TEST(CardReader, NamesACardThatItGaveUp) {
  PatternDevice device("BEGIN:VCARD\nFN:Jane\n" + QByteArray("TEL:1\n").repeated(6000), 1, 4096);
  CardReader reader(device, {});
  Card card;
  ASSERT_TRUE(reader.Next(card));
  EXPECT_EQ(card.Fault, CardFault::TooManyLines);
  EXPECT_EQ(card.Name, u"Jane");
}

}  // namespace
}  // namespace quill::test
