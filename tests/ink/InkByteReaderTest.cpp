#include "ink/InkByteReader.h"

#include <gtest/gtest.h>

#include <limits>

#include "ink/InkByteWriter.h"

namespace quill {
namespace {

constexpr quint64 kAny = std::numeric_limits<quint64>::max();

TEST(InkByteReader, NumbersAreLittleEndian) {
  const QByteArray bytes = QByteArray::fromHex("01 0203 04050607 08090a0b0c0d0e0f");
  InkByteReader reader(bytes);
  EXPECT_EQ(reader.U8(), 0x01);
  EXPECT_EQ(reader.U16(), 0x0302);
  EXPECT_EQ(reader.U32(), 0x07060504U);
  EXPECT_FALSE(reader.IsDone());
  EXPECT_EQ(reader.U64(), 0x0F0E0D0C0B0A0908U);
  EXPECT_TRUE(reader.IsDone());
}

TEST(InkByteReader, NothingIsReadBeyondTheEndAndNothingAfterThat) {
  const QByteArray bytes("abc");
  InkByteReader reader(bytes);
  EXPECT_EQ(reader.U32(), 0U);
  EXPECT_TRUE(reader.Failed());
  EXPECT_EQ(reader.U8(), 0);
  EXPECT_EQ(reader.Left(), 0);
  EXPECT_FALSE(reader.IsDone());
}

TEST(InkByteReader, BytesAreThereOrNot) {
  const QByteArray bytes("abcd");
  InkByteReader reader(bytes);
  EXPECT_EQ(reader.Bytes(2), "ab");
  EXPECT_EQ(reader.Rest(), "cd");
  EXPECT_FALSE(reader.Failed());
  EXPECT_TRUE(reader.Bytes(1).isEmpty());
  EXPECT_TRUE(reader.Failed());
}

TEST(InkByteReader, ACountNeedsItsBytes) {
  const QByteArray enough = QByteArray::fromHex("02 00000000");
  EXPECT_EQ(InkByteReader(enough).Count(2), 2U);
  InkByteReader reader(enough);
  EXPECT_EQ(reader.Count(3), 0U);
  EXPECT_TRUE(reader.Failed());
}

struct VarIntRow {
  const char* Hex;
  std::optional<quint64> Value;  // none: refused
};

class VarInts : public testing::TestWithParam<VarIntRow> {};

TEST_P(VarInts, AreReadOrRefused) {
  const QByteArray bytes = QByteArray::fromHex(GetParam().Hex);
  InkByteReader reader(bytes);
  EXPECT_EQ(reader.VarInt(kAny), GetParam().Value.value_or(0));
  EXPECT_EQ(reader.IsDone(), GetParam().Value.has_value());
}

INSTANTIATE_TEST_SUITE_P(Rows, VarInts,
                         testing::Values(VarIntRow{"00", 0}, VarIntRow{"7f", 127},
                                         VarIntRow{"8001", 128}, VarIntRow{"ac02", 300},
                                         VarIntRow{"8000", 0},
                                         VarIntRow{"ffffffffffffffffff01", kAny},
                                         VarIntRow{"ffffffffffffffffff02", std::nullopt},
                                         VarIntRow{"ffffffffffffffffff81", std::nullopt},
                                         VarIntRow{"ffffffffffffffffff8100", std::nullopt},
                                         VarIntRow{"80", std::nullopt},
                                         VarIntRow{"", std::nullopt}));

TEST(InkByteReader, AVarIntHasALimit) {
  const QByteArray bytes = QByteArray::fromHex("0a0b");
  InkByteReader reader(bytes);
  EXPECT_EQ(reader.VarInt(10), 10U);
  EXPECT_EQ(reader.VarInt(10), 0U);
  EXPECT_TRUE(reader.Failed());
}

class SignedInts : public testing::TestWithParam<qint64> {};

TEST_P(SignedInts, AreReadAsTheyWereWritten) {
  InkByteWriter writer;
  writer.Signed(GetParam());
  InkByteReader reader(writer.Written());
  EXPECT_EQ(reader.Signed(std::numeric_limits<qint64>::max()), GetParam());
  EXPECT_TRUE(reader.IsDone());
}

INSTANTIATE_TEST_SUITE_P(Rows, SignedInts,
                         testing::Values(0, 1, -1, 63, -64, 64, -65, 1LL << 40, -(1LL << 40),
                                         std::numeric_limits<qint64>::max(),
                                         -std::numeric_limits<qint64>::max()));

TEST(InkByteReader, ASignedIntHasALimitOnBothSides) {
  for (const qint64 value : {-11, 11}) {
    InkByteWriter writer;
    writer.Signed(value);
    InkByteReader narrow(writer.Written());
    EXPECT_EQ(narrow.Signed(10), 0);
    EXPECT_TRUE(narrow.Failed());
    EXPECT_EQ(InkByteReader(writer.Written()).Signed(11), value);
  }
}

TEST(InkByteReader, TheLeastNumberOfAllIsRefused) {
  InkByteWriter writer;
  writer.Signed(std::numeric_limits<qint64>::min());
  InkByteReader reader(writer.Written());
  EXPECT_EQ(reader.Signed(std::numeric_limits<qint64>::max()), 0);
  EXPECT_TRUE(reader.Failed());
}

}  // namespace
}  // namespace quill
