#include "exchange/ObexPacket.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

struct PacketCase {
  const char* Name;
  const char* Hex;
  qsizetype Fixed;
  ObexPacket Packet;
};

const std::vector<PacketCase> kPackets{
    {"NothingButACode", "81 0003", 0, {0x81}},
    {"AConnect", "80 0007 10 00 2000", 4, {0x80, QByteArray::fromHex("10002000")}},
    {"AChangeOfFolder", "85 0005 02 00", 2, {0x85, QByteArray::fromHex("0200")}},
    {"Text", "82 000a 01 0007 0041 0000", 0, {0x82, {}, {{0x01, 0, QByteArray("\0A\0\0", 4)}}}},
    {"TextWithoutBytes", "82 0006 01 0003", 0, {0x82, {}, {{0x01}}}},
    {"Bytes", "82 0008 48 0005 6162", 0, {0x82, {}, {{0x48, 0, "ab"}}}},
    {"AnUnknownHeader", "82 0008 7f 0005 6162", 0, {0x82, {}, {{0x7F, 0, "ab"}}}},
    {"OneByte", "82 0005 97 01", 0, {0x82, {}, {{0x97, 1}}}},
    {"FourBytes", "82 0008 cb fedcba98", 0, {0x82, {}, {{0xCB, 0xFEDCBA98}}}},
    {"SeveralHeaders",
     "02 000f cb 00000001 97 ff 49 0005 0000",
     0,
     {0x02, {}, {{0xCB, 1}, {0x97, 255}, {0x49, 0, QByteArray(2, '\0')}}}},
};

class ObexPackets : public testing::TestWithParam<PacketCase> {};

TEST_P(ObexPackets, AreRead) {
  EXPECT_EQ(ReadObexPacket(QByteArray::fromHex(GetParam().Hex), GetParam().Fixed),
            GetParam().Packet);
}

TEST_P(ObexPackets, AreWritten) {
  EXPECT_EQ(WriteObexPacket(GetParam().Packet).toHex(' '),
            QByteArray::fromHex(GetParam().Hex).toHex(' '));
}

TEST_P(ObexPackets, AreNotReadInPart) {
  const QByteArray bytes = QByteArray::fromHex(GetParam().Hex);
  for (qsizetype size = 0; size < bytes.size(); ++size) {
    EXPECT_FALSE(ReadObexPacket(bytes.first(size), GetParam().Fixed)) << size;
  }
}

INSTANTIATE_TEST_SUITE_P(ObexPacket, ObexPackets, testing::ValuesIn(kPackets),
                         [](const auto& packet) { return packet.param.Name; });

struct WrongCase {
  const char* Name;
  const char* Hex;
  qsizetype Fixed;
};

class WrongObexPackets : public testing::TestWithParam<WrongCase> {};

TEST_P(WrongObexPackets, AreNotRead) {
  EXPECT_FALSE(ReadObexPacket(QByteArray::fromHex(GetParam().Hex), GetParam().Fixed));
}

INSTANTIATE_TEST_SUITE_P(
    ObexPacket, WrongObexPackets,
    testing::Values(WrongCase{"WithABytesHeaderThatEndsBehindThem", "82 0008 48 0006 6162", 0},
                    WrongCase{"WithABytesHeaderShorterThanItself", "82 0006 48 0002", 0},
                    WrongCase{"WithATextHeaderOfLengthNought", "82 0006 01 0000", 0},
                    WrongCase{"WithHalfALength", "82 0005 48 00", 0},
                    WrongCase{"WithANumberCutOff", "82 0007 cb 000000", 0},
                    WrongCase{"WithAByteCutOff", "82 0004 97", 0},
                    WrongCase{"WithAnIdAndNothingElse", "82 0004 48", 0},
                    WrongCase{"LongerThanTheySay", "82 0003 97 01", 0},
                    WrongCase{"ShorterThanTheySay", "82 0006 97 01", 0},
                    WrongCase{"WithFixedBytesCutOff", "80 0006 10 00 20", 4}),
    [](const auto& packet) { return packet.param.Name; });

TEST(ObexText, IsHighByteFirstWithATerminator) {
  const ObexHeader header = ObexText(ObexHeaderId::Name, u"A김"_qs);
  EXPECT_EQ(header.Id, 0x01);
  EXPECT_EQ(header.Bytes.toHex(' '), "00 41 ae 40 00 00");
  EXPECT_EQ(ObexTextOf(header), u"A김"_qs);
}

TEST(ObexText, MayBeEmpty) {
  EXPECT_EQ(ObexText(ObexHeaderId::Name, {}).Bytes, "");
  EXPECT_EQ(ObexTextOf({0x01, 0, {}}), QString());
}

TEST(ObexText, IsReadWithoutATerminatorAndWithHalfACharacter) {
  EXPECT_EQ(ObexTextOf({0x01, 0, QByteArray("\0A\0B", 4)}), u"AB"_qs);
  EXPECT_EQ(ObexTextOf({0x01, 0, QByteArray("\0A\0", 3)}), u"A"_qs);
  EXPECT_EQ(ObexTextOf({0x01, 0, "\xD8"}), QString());
}

TEST(ObexHeader, IsFoundById) {
  const ObexPacket packet{0x82, {}, {{0xC3, 1}, {0x48, 0, "a"}, {0x48, 0, "b"}}};
  ASSERT_TRUE(FindHeader(packet, ObexHeaderId::Body));
  EXPECT_EQ(FindHeader(packet, ObexHeaderId::Body)->Bytes, "a");
  EXPECT_EQ(FindHeader(packet, ObexHeaderId::Name), nullptr);
}

TEST(ObexHeader, SaysItsSize) {
  EXPECT_EQ(ObexSize(ObexNumber(ObexHeaderId::Length, 9)), 5);
  EXPECT_EQ(ObexSize({0x97, 1}), 2);
  EXPECT_EQ(ObexSize(ObexBytes(ObexHeaderId::Body, "abc")), 6);
  EXPECT_EQ(ObexSize(ObexText(ObexHeaderId::Name, u"a"_qs)), 7);
}

TEST(ObexConnectFields, HoldTheLongestPacket) {
  EXPECT_EQ(ObexConnectFields(0x1234).toHex(' '), "10 00 12 34");
  EXPECT_EQ(ObexLongestPacket(ObexConnectFields(0x1234)), 0x1234);
  EXPECT_EQ(ObexLongestPacket(ObexConnectFields(0xFFFF)), 0xFFFF);
}

TEST(ObexConnectFields, HoldNoLessThanEveryPeerTakes) {
  EXPECT_EQ(ObexLongestPacket(ObexConnectFields(255)), 255);
  EXPECT_EQ(ObexLongestPacket(ObexConnectFields(254)), 255);
  EXPECT_EQ(ObexLongestPacket(ObexConnectFields(0)), 255);
}

}  // namespace
}  // namespace quill
