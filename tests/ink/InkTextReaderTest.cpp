// Payloads of text, byte by byte.
#include <gtest/gtest.h>

#include "ink/InkTextChunk.h"

namespace quill {
namespace {

struct TextRow {
  const char* Name;
  const char* Hex;
  InkPartFate Fate;
  InkText Text = {};  // as before when it was refused
};

// One block at 1, -1 with a wrap width of 100.
InkText TextOf(const QString& text, std::vector<InkTextRun> runs, std::vector<int> breaks = {}) {
  return {.X = 1,
          .Y = -1,
          .WrapWidth = 100,
          .Text = text,
          .Runs = std::move(runs),
          .SoftBreaks = std::move(breaks)};
}

const std::vector<TextRow>& Rows() {
  using F = InkPartFate;
  static const std::vector<TextRow> rows{
      {"OneRun", "01 020164 02 4869 01 02 05 c003 04030201 00", F::Read,
       TextOf(u"Hi"_qs, {{.Length = 2, .Flags = 5, .Size = 448, .Color = 0x01020304}})},
      {"NoText", "01 020164 00 00 00", F::Read},
      {"NoBlock", "00", F::Refused},
      {"Nothing", "", F::Refused},
      {"SomethingBehind", "01 020164 00 00 00 00", F::Refused},
      {"MoreTextThanBytes", "01 020164 03 4869", F::Refused},
      // a, U+AC00, U+1F600 and a LF; UTF-16 counts 1, 1, 2 and 1.
      {"RunsAndBreaksInUtf16",
       "01 020164 09 61eab080f09f98800a 03 04 00 01 00000000 04 00 01 00000000 01 00 01 00000000"
       "03 01 03 04",
       F::Read,
       TextOf(QString::fromUtf8("a\uAC00\U0001F600\n"),
              {{.Length = 2, .Size = 1, .Color = 0},
               {.Length = 2, .Size = 1, .Color = 0},
               {.Length = 1, .Size = 1, .Color = 0}},
              {1, 2, 4})},
      {"AByteOrderMarkIsText", "01 020164 03 efbbbf 01 03 00 01 00000000 00", F::Read,
       TextOf(QString(QChar(0xFEFF)), {{.Length = 1, .Size = 1, .Color = 0}})},
      {"NoRuns", "01 020164 02 4869 00 00", F::Refused},
      {"RunsTooShort", "01 020164 02 4869 01 01 00 01 00000000 00", F::Refused},
      {"RunsTooLong", "01 020164 02 4869 01 03 00 01 00000000 00", F::Refused},
      {"ARunOfNothing", "01 020164 01 48 02 00 00 01 00000000 01 00 01 00000000 00", F::Refused},
      {"ARunThatEndsInsideACharacter",
       "01 020164 03 eab080 02 01 00 01 00000000 02 00 01 00000000 00", F::Refused},
      {"ABreakInsideACharacter", "01 020164 03 eab080 01 03 00 01 00000000 01 01", F::Refused},
      {"ABreakBeyondTheEnd", "01 020164 02 4869 01 02 00 01 00000000 02 01 02", F::Refused},
      {"TwoBreaksAtOnePlace", "01 020164 02 4869 01 02 00 01 00000000 02 01 00", F::Refused},
      {"MoreBreaksThanBytes", "01 020164 02 4869 01 02 00 01 00000000 02 01", F::Refused},
      {"AFontWithoutSize", "01 020164 01 48 01 01 00 00 00000000 00", F::Refused},
      {"AFontAsLargeAsCanBe", "01 020164 01 48 01 01 00 808004 00000000 00", F::Read,
       TextOf(u"H"_qs, {{.Length = 1, .Size = 65'536, .Color = 0}})},
      {"AFontTooLarge", "01 020164 01 48 01 01 00 818004 00000000 00", F::Refused},
      {"UnknownLooks", "01 020164 01 48 01 01 f9 01 00000000 00", F::Newer,
       TextOf(u"H"_qs, {{.Length = 1, .Flags = 1, .Size = 1, .Color = 0}})},
      {"ALaterBlock", "02 020164 01 48 01 01 00 01 00000000 00 7777", F::Newer,
       TextOf(u"H"_qs, {{.Length = 1, .Size = 1, .Color = 0}})},
      {"ALaterBlockAndAFirstThatCannotBe", "02 020164 01 48 00 00", F::Newer},
      {"HalfACharacter", "01 020164 02 eab0 01 02 00 01 00000000 00", F::Refused},
      {"ACharacterMadeTooLong", "01 020164 02 c1a1 01 02 00 01 00000000 00", F::Refused},
      {"ASurrogate", "01 020164 03 eda080 01 03 00 01 00000000 00", F::Refused},
      {"AStrayByte", "01 020164 01 80 01 01 00 01 00000000 00", F::Refused},
      {"XTooFar", "01 8280808008 01 64 00 00 00", F::Refused},
      {"YTooFar", "01 02 8180808008 64 00 00 00", F::Refused},
      {"AWrapWidthTooFar", "01 02 01 8180808004 00 00 00", F::Refused},
  };
  return rows;
}

class TextPayloads : public testing::TestWithParam<TextRow> {};

TEST_P(TextPayloads, AreReadOrRefused) {
  const TextRow& row = GetParam();
  InkText text;
  EXPECT_EQ(ReadTextChunk(QByteArray::fromHex(row.Hex), kMostInkMemory, text), row.Fate);
  EXPECT_EQ(text, row.Text);
}

INSTANTIATE_TEST_SUITE_P(Rows, TextPayloads, testing::ValuesIn(Rows()),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST(InkTextReader, TakesNoMoreMemoryThanThereIs) {
  const InkText text = TextOf(
      u"Hello"_qs, {{.Length = 2, .Size = 1, .Color = 0}, {.Length = 3, .Size = 1, .Color = 0}},
      {1, 3, 4});
  const QByteArray payload = TextChunkPayload(text);
  EXPECT_EQ(InkMemory(text), static_cast<qint64>(5 * 2 + 2 * sizeof(InkTextRun) + 3 * 4));
  InkText read;
  EXPECT_EQ(ReadTextChunk(payload, InkMemory(text) - 1, read), InkPartFate::Refused);
  EXPECT_EQ(ReadTextChunk(payload, InkMemory(text), read), InkPartFate::Read);
  EXPECT_EQ(read, text);
}

}  // namespace
}  // namespace quill
