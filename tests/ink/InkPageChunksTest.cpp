#include "ink/InkPageChunks.h"

#include <gtest/gtest.h>

#include "ink/InkFormat.h"

namespace quill {
namespace {

QByteArray Head() {
  return QByteArray::fromHex(
      "0100 0000 20000000 001e0000 00050000 00030000 10 01 02 00 c800 0000 39300000 00000000"
      "07000000");
}

QByteArray HeadWith(qsizetype at, const char* hex) {
  const QByteArray bytes = QByteArray::fromHex(hex);
  return Head().replace(at, bytes.size(), bytes);
}

TEST(InkHeadChunk, HoldsThePage) {
  InkHead head;
  ASSERT_EQ(ReadHeadChunk(Head(), head), InkPartFate::Read);
  EXPECT_EQ(head.Page, (InkPage{.Width = 7680,
                                .ContentHeight = 1280,
                                .RulePitch = 768,
                                .Style = 16,
                                .Wrap = 1,
                                .View = 2,
                                .Zoom = 200,
                                .Created = 12'345}));
  EXPECT_EQ(head.Strokes, 7U);
  EXPECT_EQ(HeadChunkPayload(head).toHex(), Head().toHex());
}

TEST(InkHeadChunk, IsWrittenWithinItsLimits) {
  const InkHead far{.Page = {.Width = ~0U, .Created = ~quint64{0}}};
  InkHead head;
  ASSERT_EQ(ReadHeadChunk(HeadChunkPayload(far), head), InkPartFate::Read);
  EXPECT_EQ(head.Page.Width, static_cast<quint32>(kFarthestInk));
  EXPECT_EQ(head.Page.Created, static_cast<quint64>(kLatestInk));
}

TEST(InkHeadChunk, OfAnotherMajorVersionIsReadNoFurther) {
  InkHead head;
  EXPECT_EQ(ReadHeadChunk(QByteArray::fromHex("0200"), head), InkPartFate::Newer);
  EXPECT_EQ(head.Major, 2);
}

struct ChunkRow {
  QByteArray Payload;
  InkPartFate Fate;
};

class InkHeads : public testing::TestWithParam<ChunkRow> {};

TEST_P(InkHeads, AreReadOrRefused) {
  InkHead head;
  EXPECT_EQ(ReadHeadChunk(GetParam().Payload, head), GetParam().Fate);
  if (GetParam().Fate == InkPartFate::Refused) {
    EXPECT_EQ(head.Page, InkPage{});
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, InkHeads,
    testing::Values(ChunkRow{"", InkPartFate::Refused}, ChunkRow{"\x01", InkPartFate::Refused},
                    ChunkRow{Head().chopped(1), InkPartFate::Refused},
                    ChunkRow{Head() + "x", InkPartFate::Refused},
                    ChunkRow{HeadWith(2, "0100") + "more", InkPartFate::Read},
                    ChunkRow{HeadWith(2, "0100").chopped(1), InkPartFate::Refused},
                    ChunkRow{HeadWith(4, "40000000"), InkPartFate::Newer},
                    ChunkRow{HeadWith(8, "00000040"), InkPartFate::Read},
                    ChunkRow{HeadWith(8, "01000040"), InkPartFate::Refused},
                    ChunkRow{HeadWith(12, "01000040"), InkPartFate::Refused},
                    ChunkRow{HeadWith(16, "01000040"), InkPartFate::Refused},
                    ChunkRow{HeadWith(28, "0000000000002000"), InkPartFate::Read},
                    ChunkRow{HeadWith(28, "0100000000002000"), InkPartFate::Refused}));

const InkPen kOld{.Color = 1};

struct PensRow {
  const char* Hex;
  InkPartFate Fate;
  std::vector<InkPen> Pens;
};

class InkPens : public testing::TestWithParam<PensRow> {};

TEST_P(InkPens, AreReadOrRefused) {
  std::vector<InkPen> pens{kOld};
  const QByteArray payload = QByteArray::fromHex(GetParam().Hex);
  EXPECT_EQ(ReadPensChunk(payload, kMostInkMemory, pens), GetParam().Fate);
  EXPECT_EQ(pens, GetParam().Pens);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, InkPens,
    testing::Values(PensRow{"00", InkPartFate::Read, {}},
                    PensRow{"02 402010ff 40 00 19  00ffff80 8005 01 64",
                            InkPartFate::Read,
                            {{.Color = 0xFF102040, .Diameter = 64},
                             {.Color = 0x80FFFF00,
                              .Diameter = 640,
                              .Tip = InkTip::Highlighter,
                              .MinimumWidth = 100}}},
                    PensRow{"01 402010ff 40 05 19", InkPartFate::Newer, {{.Color = 0xFF102040}}},
                    PensRow{"01 402010ff 808004 00 19",
                            InkPartFate::Read,
                            {{.Color = 0xFF102040, .Diameter = 65'536}}},
                    PensRow{"01 402010ff 818004 00 19", InkPartFate::Refused, {kOld}},
                    PensRow{"01 402010ff 40 00 65", InkPartFate::Refused, {kOld}},
                    PensRow{"02 402010ff 40 00 19", InkPartFate::Refused, {kOld}},
                    PensRow{"01 402010ff 40 00", InkPartFate::Refused, {kOld}},
                    PensRow{"01 402010ff 40 00 19 00", InkPartFate::Refused, {kOld}},
                    PensRow{"", InkPartFate::Refused, {kOld}}));

TEST(InkPensChunk, TakesNoMoreMemoryThanThereIs) {
  const QByteArray payload = PensChunkPayload({InkPen{}, InkPen{}});
  std::vector<InkPen> pens;
  EXPECT_EQ(ReadPensChunk(payload, 2 * sizeof(InkPen) - 1, pens), InkPartFate::Refused);
  EXPECT_EQ(ReadPensChunk(payload, 2 * sizeof(InkPen), pens), InkPartFate::Read);
}

TEST(InkPensChunk, IsWrittenWithinItsLimits) {
  const std::vector<InkPen> wide{{.Diameter = ~0U, .MinimumWidth = 255}};
  std::vector<InkPen> pens;
  ASSERT_EQ(ReadPensChunk(PensChunkPayload(wide), kMostInkMemory, pens), InkPartFate::Read);
  EXPECT_EQ(pens[0].Diameter, kThickestInk);
  EXPECT_EQ(pens[0].MinimumWidth, 100);
}

}  // namespace
}  // namespace quill
