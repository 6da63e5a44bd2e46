// Texts that no note can hold as they are, and what is written of them.
#include <gtest/gtest.h>

#include "ink/InkTextChunk.h"

namespace quill {
namespace {

const InkTextRun kBold{.Flags = kInkBold};

InkTextRun Bold(int length) {
  InkTextRun run = kBold;
  run.Length = length;
  return run;
}

InkTextRun Plain(int length) { return {.Length = length}; }

struct WrittenRow {
  const char* Name;
  QString Text;
  std::vector<InkTextRun> Runs;
  std::vector<int> Breaks;
  QString ReadText;
  std::vector<InkTextRun> ReadRuns;
  std::vector<int> ReadBreaks;
};

QString Lone(char16_t unit) { return u"a"_qs + QChar(unit) + u"b"_qs; }

const std::vector<WrittenRow>& Rows() {
  static const QString kPair = QString::fromUtf8("\U0001F600");
  static const std::vector<WrittenRow> rows{
      {"RunsTooShort", u"abcd"_qs, {Bold(1)}, {}, u"abcd"_qs, {Bold(1), Plain(3)}, {}},
      {"NoRuns", u"abcd"_qs, {}, {}, u"abcd"_qs, {Plain(4)}, {}},
      {"RunsTooLong", u"ab"_qs, {Bold(1), Bold(5), Bold(1)}, {}, u"ab"_qs, {Bold(1), Bold(1)}, {}},
      {"RunsOfNothing", u"ab"_qs, {Bold(0), Bold(-3), Bold(2)}, {}, u"ab"_qs, {Bold(2)}, {}},
      {"ARunThatEndsInsideAPair", kPair, {Bold(1), Bold(1)}, {}, kPair, {Bold(2)}, {}},
      {"ABreakInsideAPair", kPair + u'x', {Bold(3)}, {1}, kPair + u'x', {Bold(3)}, {2}},
      {"BreaksThatDoNotAscend",
       u"abc"_qs,
       {Bold(3)},
       {0, 2, 1, 2, 9},
       u"abc"_qs,
       {Bold(3)},
       {2, 3}},
      {"HalfAPair", Lone(0xD83D), {Bold(3)}, {}, Lone(0xFFFD), {Bold(3)}, {}},
      {"TheOtherHalf", Lone(0xDE00), {Bold(3)}, {}, Lone(0xFFFD), {Bold(3)}, {}},
      {"HalfAPairAtTheEnd",
       QString(QChar(0xD83D)),
       {Bold(1)},
       {},
       QString(QChar(0xFFFD)),
       {Bold(1)},
       {}},
  };
  return rows;
}

class WrittenTexts : public testing::TestWithParam<WrittenRow> {};

TEST_P(WrittenTexts, AreReadAgain) {
  const WrittenRow& row = GetParam();
  const QByteArray payload =
      TextChunkPayload({.Text = row.Text, .Runs = row.Runs, .SoftBreaks = row.Breaks});
  InkText read;
  ASSERT_EQ(ReadTextChunk(payload, kMostInkMemory, read), InkPartFate::Read);
  EXPECT_EQ(read.Text, row.ReadText);
  EXPECT_EQ(read.Runs, row.ReadRuns);
  EXPECT_EQ(read.SoftBreaks, row.ReadBreaks);
}

INSTANTIATE_TEST_SUITE_P(Rows, WrittenTexts, testing::ValuesIn(Rows()),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(InkTextWriter, KeepsNumbersWithinTheirLimits) {
  constexpr int kFar = std::numeric_limits<int>::max();
  const InkText far{.X = kFar,
                    .Y = -kFar,
                    .WrapWidth = ~0U,
                    .Text = u"ab"_qs,
                    .Runs = {{.Length = 1, .Flags = 255, .Size = 0}, {.Length = 1, .Size = ~0U}}};
  InkText read;
  ASSERT_EQ(ReadTextChunk(TextChunkPayload(far), kMostInkMemory, read), InkPartFate::Read);
  EXPECT_EQ(read.X, kFarthestInk);
  EXPECT_EQ(read.Y, -kFarthestInk);
  EXPECT_EQ(read.WrapWidth, static_cast<quint32>(kFarthestInk));
  EXPECT_EQ(read.Runs[0].Flags, kInkBold | kInkItalic | kInkUnderline);
  EXPECT_EQ(read.Runs[0].Size, 1U);
  EXPECT_EQ(read.Runs[1].Size, kThickestInk);
}

}  // namespace
}  // namespace quill
