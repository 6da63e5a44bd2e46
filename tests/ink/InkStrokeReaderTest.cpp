// Payloads of strokes, byte by byte.
#include <gtest/gtest.h>

#include "ink/InkStrokeChunk.h"

namespace quill {
namespace {

constexpr InkStrokeLimits kLimits{.Pens = 2, .Created = 1000};

struct StrokeRow {
  const char* Name;
  const char* Hex;
  InkPartFate Fate;
  std::vector<InkStroke> Strokes = {};
};

const std::vector<StrokeRow>& Rows() {
  using F = InkPartFate;
  static const std::vector<StrokeRow> rows{
      {"NoStrokes", "00 00", F::Read},
      {"NoCodec", "", F::Refused},
      {"NoCount", "00", F::Refused},
      {"AnUnknownCodec", "02 00", F::Newer},
      {"ADot", "00 01 01 00 01 0a 0b", F::Read, {{.Pen = 1, .Points = {{.X = 5, .Y = -6}}}}},
      {"SomethingBehind", "00 01 01 00 01 0a 0b 00", F::Refused},
      {"SomethingMissing", "00 01 01 00 01 0a", F::Refused},
      {"MoreStrokesThanBytes", "00 02 01 00 01 0a 0b", F::Refused},
      {"APenThatIsNotThere", "00 01 02 00 01 0a 0b", F::Refused},
      {"AStrokeWithoutPoints", "00 01 01 00 00 0a 0b", F::Refused},
      {"MorePointsThanBytes", "00 01 00 00 04 00 00 00 00 00 00", F::Refused},
      {"PlacesChangeTheirChange",
       "00 01 00 00 04 02 02 04 00 01 00 00 03",
       F::Read,
       {{.Points = {{.X = 1, .Y = 1}, {.X = 3, .Y = 1}, {.X = 5, .Y = 1}, {.X = 6, .Y = -1}}}}},
      {"AStrokeBeginsWhereTheLastOneBegan",
       "00 02 00 00 02 0a 0a 02 02 00 00 01 02 04",
       F::Read,
       {{.Points = {{.X = 5, .Y = 5}, {.X = 6, .Y = 6}}}, {.Points = {{.X = 6, .Y = 7}}}}},
      {"PressureThatGoesAboveFull", "00 01 00 01 03 00 00 00 00 00 00 ff07 01 04", F::Refused},
      {"PressureUpToFull",
       "00 01 00 01 03 00 00 00 00 00 00 fe07 02 01",
       F::Read,
       {{.Parts = kInkHasPressure,
         .Points = {{.Pressure = 1022}, {.Pressure = 1023}, {.Pressure = 1022}}}}},
      {"PressureAboveFull", "00 01 00 01 01 00 00 8008", F::Refused},
      {"PressureBelowNone", "00 01 00 01 02 00 00 00 00 00 01", F::Refused},
      {"BeginsCountOn",
       "00 03  00 02 0a 01 00 00  00 00 01 00 00  00 02 01 01 00 00",
       F::Read,
       {{.Parts = kInkHasTime, .Start = 1005, .Points = {{}}},
        {.Points = {{}}},
        {.Parts = kInkHasTime, .Start = 1004, .Points = {{}}}}},
      // 2 ^ 53 - 999 after 1000, and one less.
      {"ABeginTooLate", "00 01 00 02 b2f0ffffffffff1f 01 00 00", F::Refused},
      {"ABeginAsLateAsCanBe",
       "00 01 00 02 b0f0ffffffffff1f 01 00 00",
       F::Read,
       {{.Parts = kInkHasTime, .Start = 1LL << 53, .Points = {{}}}}},
      {"ABeginTooEarly", "00 01 00 02 d18f808080808020 01 00 00", F::Refused},
      {"AnEvenBeatIsCounted",
       "00 01 00 02 00 05 00 00 00000000 00000000 0a 0003",
       F::Read,
       {{.Parts = kInkHasTime,
         .Start = 1000,
         .Points = {{}, {.Time = 5}, {.Time = 10}, {.Time = 15}, {.Time = 20}}}}},
      {"TwoRunsOfAnEvenBeat",
       "00 01 00 02 00 05 00 00 00000000 00000000 0001 0a 0002",
       F::Read,
       {{.Parts = kInkHasTime,
         .Start = 1000,
         .Points = {{}, {}, {.Time = 5}, {.Time = 10}, {.Time = 15}}}}},
      {"ARunLongerThanTheStroke", "00 01 00 02 00 03 00 00 0000 0000 0a 0002", F::Refused},
      {"ARunOfNothing", "00 01 00 02 00 03 00 00 0000 0000 0000 0a", F::Refused},
      {"ATimeBeforeTheBegin", "00 01 00 02 00 02 00 00 00 00 01", F::Refused},
      {"ATimeAsLateAsCanBe",
       "00 01 00 02 00 02 00 00 00 00 feffffff1f",
       F::Read,
       {{.Parts = kInkHasTime, .Start = 1000, .Points = {{}, {.Time = 0xFFFFFFFF}}}}},
      {"ATimeTooLate", "00 01 00 02 00 02 00 00 00 00 8080808020", F::Refused},
      {"TiltIsXThenY",
       "00 01 00 04 02 00 00 00 00 b401 01 b301 02",
       F::Read,
       {{.Parts = kInkHasTilt,
         .Points = {{.TiltX = 90, .TiltY = -90}, {.TiltX = 89, .TiltY = -89}}}}},
      {"TiltBeyondFlat", "00 01 00 04 01 00 00 b601 00", F::Refused},
      {"TiltThatGoesBeyondFlat", "00 01 00 04 02 00 00 00 00 b401 02 00 00", F::Refused},
      {"AnUnknownPart", "00 01 00 08 01 00 00", F::Newer},
      {"AnUnknownPartOfTheSecondStroke", "00 02 00 00 01 00 00 00 08 01 00 00", F::Newer},
      {"APlaceAsFarAsCanBe",
       "00 01 00 00 01 8080808008 ffffffff07",
       F::Read,
       {{.Points = {{.X = 1 << 30, .Y = -(1 << 30)}}}}},
      {"XTooFar", "00 01 00 00 01 8280808008 00", F::Refused},
      {"YTooFar", "00 01 00 00 01 00 8180808008", F::Refused},
      {"TooFarWithinAStroke", "00 01 00 00 02 8080808008 00 02 00", F::Refused},
      {"TooFarFromTheLastStroke", "00 02 00 00 01 8080808008 00 00 00 01 02 00", F::Refused},
      {"AStepThatWouldOverflow", "00 01 00 00 02 00 00 ffffffffffffffffff01 00", F::Refused},
      {"PackedThatIsNone", "01 00000002 0000", F::Refused},
      {"PackedWithoutLength", "01 000000", F::Refused},
  };
  return rows;
}

class StrokePayloads : public testing::TestWithParam<StrokeRow> {};

TEST_P(StrokePayloads, AreReadOrRefused) {
  const StrokeRow& row = GetParam();
  const InkStrokePtr before = SealInkStroke({.Points = {{}}});
  std::vector<InkStrokePtr> strokes{before};
  EXPECT_EQ(ReadStrokeChunk(QByteArray::fromHex(row.Hex), kLimits, strokes), row.Fate);
  ASSERT_EQ(strokes.size(), 1 + row.Strokes.size());
  EXPECT_EQ(strokes[0], before);
  for (std::size_t i = 0; i < row.Strokes.size(); ++i) {
    EXPECT_EQ(*strokes[i + 1], *SealInkStroke(row.Strokes[i])) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, StrokePayloads, testing::ValuesIn(Rows()),
                         [](const auto& row) { return std::string(row.param.Name); });

// Packs any bytes as a payload, with a length before them that need not be theirs.
QByteArray Packed(const QByteArray& raw, quint32 announced) {
  QByteArray packed = qCompress(raw);
  for (int i = 0; i < 4; ++i) packed[i] = static_cast<char>(announced >> (24 - 8 * i));
  return '\x01' + packed;
}

class PackedStrokes : public testing::Test {
 protected:
  // 1000 points in one place.
  const QByteArray m_raw = QByteArray::fromHex("01 00 00 e807 0000") + QByteArray(2 * 999, '\0');
  const quint32 m_size = static_cast<quint32>(m_raw.size());
  std::vector<InkStrokePtr> m_strokes;
};

TEST_F(PackedStrokes, AreReadAsRawOnes) {
  EXPECT_EQ(ReadStrokeChunk(Packed(m_raw, m_size), kLimits, m_strokes), InkPartFate::Read);
  ASSERT_EQ(m_strokes.size(), 1U);
  EXPECT_EQ(m_strokes[0]->Points.size(), 1000U);
}

TEST_F(PackedStrokes, WithAWrongLengthAreRefused) {
  for (const quint32 announced : {m_size - 1, m_size + 1, 0U, 1U, ~0U, 1U << 27}) {
    const QByteArray payload = Packed(m_raw, announced);
    EXPECT_EQ(ReadStrokeChunk(payload, kLimits, m_strokes), InkPartFate::Refused) << announced;
  }
  EXPECT_TRUE(m_strokes.empty());
}

TEST_F(PackedStrokes, WithSomethingBehindOrMissingAreRefused) {
  const QByteArray payload = Packed(m_raw, m_size);
  EXPECT_EQ(ReadStrokeChunk(payload + 'x', kLimits, m_strokes), InkPartFate::Refused);
  EXPECT_EQ(ReadStrokeChunk(payload.chopped(1), kLimits, m_strokes), InkPartFate::Refused);
}

TEST_F(PackedStrokes, TakeNoMoreMemoryThanThereIs) {
  InkStrokeLimits limits = kLimits;
  limits.Memory = InkMemory(1000);
  EXPECT_EQ(ReadStrokeChunk(Packed(m_raw, m_size), limits, m_strokes), InkPartFate::Read);
  limits.Memory -= 1;
  EXPECT_EQ(ReadStrokeChunk(Packed(m_raw, m_size), limits, m_strokes), InkPartFate::Refused);
}

TEST(StrokeLimits, MoreThanSixtyFourStrokesAreRefused) {
  const QByteArray dot = QByteArray::fromHex("00 00 01 00 00");
  std::vector<InkStrokePtr> strokes;
  const QByteArray most = QByteArray::fromHex("00 40") + dot.repeated(64);
  EXPECT_EQ(ReadStrokeChunk(most, kLimits, strokes), InkPartFate::Read);
  const QByteArray more = QByteArray::fromHex("00 41") + dot.repeated(65);
  EXPECT_EQ(ReadStrokeChunk(more, kLimits, strokes), InkPartFate::Refused);
}

TEST(StrokeLimits, MoreThanAMillionPointsAreRefused) {
  const auto payload = [](const char* count, qsizetype points) {
    return QByteArray::fromHex("00 01 00 00") + QByteArray::fromHex(count) +
           QByteArray(2 * points, '\0');
  };
  std::vector<InkStrokePtr> strokes;
  EXPECT_EQ(ReadStrokeChunk(payload("c0843d", 1'000'000), kLimits, strokes), InkPartFate::Read);
  EXPECT_EQ(ReadStrokeChunk(payload("c1843d", 1'000'001), kLimits, strokes), InkPartFate::Refused);
}

TEST(StrokeLimits, WithoutPensThereAreNoStrokes) {
  std::vector<InkStrokePtr> strokes;
  EXPECT_EQ(ReadStrokeChunk(QByteArray::fromHex("00 01 00 00 01 00 00"), {}, strokes),
            InkPartFate::Refused);
}

}  // namespace
}  // namespace quill
