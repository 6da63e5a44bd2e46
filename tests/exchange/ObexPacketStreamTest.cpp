#include "exchange/ObexPacketStream.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

QByteArray Hex(const char* text) { return QByteArray::fromHex(text); }

TEST(ObexPacketStream, CutsPacketsOutOfBytes) {
  ObexPacketStream stream(255);
  stream.Add(Hex("81 0003 82 0005 97 01 ff"));
  EXPECT_EQ(stream.NextCode(), 0x81);
  EXPECT_EQ(stream.Next(), Hex("81 0003"));
  EXPECT_EQ(stream.Waiting(), 6);
  EXPECT_EQ(stream.Next(), Hex("82 0005 97 01"));
  EXPECT_EQ(stream.Next(), std::nullopt);
  EXPECT_EQ(stream.Waiting(), 1);
  EXPECT_FALSE(stream.IsBroken());
}

TEST(ObexPacketStream, WaitsForTheLastByte) {
  ObexPacketStream stream(255);
  for (const char byte : Hex("82 0005 97")) {
    stream.Add(QByteArrayView(&byte, 1));
    EXPECT_EQ(stream.NextCode(), std::nullopt);
    EXPECT_EQ(stream.Next(), std::nullopt);
  }
  stream.Add(Hex("01 81 0003"));
  EXPECT_EQ(stream.Next(), Hex("82 0005 97 01"));
  stream.Add(Hex("ff 0003"));
  EXPECT_EQ(stream.Next(), Hex("81 0003"));
  EXPECT_EQ(stream.Next(), Hex("ff 0003"));
}

TEST(ObexPacketStream, TakesAPacketUpToTheLimit) {
  ObexPacketStream stream(255);
  const QByteArray packet = Hex("02 00ff") + QByteArray(252, 'a');
  stream.Add(packet);
  EXPECT_EQ(stream.Next(), packet);
}

class BrokenObexStream : public testing::TestWithParam<const char*> {};

TEST_P(BrokenObexStream, StaysBroken) {
  ObexPacketStream stream(255);
  stream.Add(Hex("81 0003") + Hex(GetParam()));
  EXPECT_FALSE(stream.IsBroken()) << "the packet before is whole";
  EXPECT_TRUE(stream.Next());
  EXPECT_TRUE(stream.IsBroken());
  stream.Add(QByteArray(300, '\0'));
  EXPECT_EQ(stream.NextCode(), std::nullopt);
  EXPECT_EQ(stream.Next(), std::nullopt);
  EXPECT_TRUE(stream.IsBroken());
}

INSTANTIATE_TEST_SUITE_P(ObexPacketStream, BrokenObexStream,
                         testing::Values("02 0000", "02 0002", "02 0100", "02 ffff"));

}  // namespace
}  // namespace quill
