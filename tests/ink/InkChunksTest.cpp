#include "ink/InkChunks.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

QByteArray TwoChunks() {
  QByteArray bytes = InkSignature().toByteArray();
  AppendInkChunk(bytes, "Abcd", "one");
  AppendInkChunk(bytes, "efGH", "");
  return bytes;
}

TEST(InkChunks, TheCheckSumIsThatOfZipAndPng) {
  EXPECT_EQ(InkCheckSum("123456789"), 0xCBF43926U);
  EXPECT_EQ(InkCheckSum({}), 0U);
}

TEST(InkChunks, AChunkIsItsLengthTypePayloadAndSum) {
  QByteArray bytes;
  AppendInkChunk(bytes, "IEND", {});
  EXPECT_EQ(bytes.toHex(), "0000000049454e44826042ae");
}

TEST(InkChunks, AreWalkedFromTheSignatureToTheEnd) {
  const QByteArray bytes = TwoChunks();
  InkChunkWalk walk(bytes);
  ASSERT_TRUE(walk.HasSignature());
  const auto first = walk.Next();
  ASSERT_TRUE(first);
  EXPECT_EQ(first->Type, "Abcd");
  EXPECT_EQ(first->Payload, "one");
  EXPECT_TRUE(first->IsSound);
  EXPECT_EQ(first->Start, 8);
  const auto second = walk.Next();
  ASSERT_TRUE(second);
  EXPECT_EQ(second->Type, "efGH");
  EXPECT_TRUE(second->Payload.isEmpty());
  EXPECT_TRUE(second->IsSound);
  EXPECT_EQ(second->Start, 8 + 15);
  EXPECT_FALSE(walk.Next());
}

TEST(InkChunks, AWrongSumIsNoEndOfTheWalk) {
  QByteArray bytes = TwoChunks();
  bytes[16] = 'O';
  InkChunkWalk walk(bytes);
  EXPECT_FALSE(walk.Next()->IsSound);
  EXPECT_TRUE(walk.Next()->IsSound);
}

TEST(InkChunks, ATypeIsOfLetters) {
  QByteArray bytes = InkSignature().toByteArray();
  AppendInkChunk(bytes, "AB1D", {});
  EXPECT_FALSE(InkChunkWalk(bytes).Next()->IsSound);
}

TEST(InkChunks, ACutChunkIsNone) {
  const QByteArray bytes = TwoChunks();
  for (qsizetype size = 8; size < 8 + 15; ++size) {
    const QByteArray cut = bytes.left(size);
    EXPECT_FALSE(InkChunkWalk(cut).Next()) << size;
  }
  const QByteArray nothing;
  EXPECT_FALSE(InkChunkWalk(nothing).HasSignature());
  EXPECT_FALSE(InkChunkWalk(nothing).Next());
}

TEST(InkChunks, APayloadHasALimit) {
  QByteArray longest = InkSignature().toByteArray();
  AppendInkChunk(longest, "AAAA", QByteArray(kMostPayload, 'x'));
  EXPECT_TRUE(InkChunkWalk(longest).Next());
  QByteArray longer = InkSignature().toByteArray();
  AppendInkChunk(longer, "AAAA", QByteArray(kMostPayload + 1, 'x'));
  EXPECT_FALSE(InkChunkWalk(longer).Next());
}

struct LettersRow {
  const char* Type;
  bool Needed;
  bool Kept;
};

class ChunkLetters : public testing::TestWithParam<LettersRow> {};

TEST_P(ChunkLetters, SayWhatBecomesOfAnUnknownChunk) {
  const InkChunk chunk{.Type = GetParam().Type};
  EXPECT_EQ(IsNeeded(chunk), GetParam().Needed);
  EXPECT_EQ(IsKeptThroughEdits(chunk), GetParam().Kept);
}

INSTANTIATE_TEST_SUITE_P(Rows, ChunkLetters,
                         testing::Values(LettersRow{"ABCD", true, false},
                                         LettersRow{"Abcd", true, true},
                                         LettersRow{"aBcd", false, false},
                                         LettersRow{"abCD", false, true}));

}  // namespace
}  // namespace quill
