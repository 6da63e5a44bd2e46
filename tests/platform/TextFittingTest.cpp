#include "platform/TextFitting.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

// Every UTF-16 unit is ten pixels wide, half a pair five.
double TenEach(QStringView text) {
  double width = 0;
  for (const QChar unit : text) width += unit.isSurrogate() ? 5 : 10;
  return width;
}

struct ShorteningCase {
  const char16_t* Text;
  double Limit;
  const char16_t* Shortened;
};

class ShortenTextTest : public testing::TestWithParam<ShorteningCase> {};

TEST_P(ShortenTextTest, FollowsTheRule) {
  const ShorteningCase& rule = GetParam();
  EXPECT_EQ(ShortenText(QString::fromUtf16(rule.Text), rule.Limit, TenEach),
            QString::fromUtf16(rule.Shortened));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ShortenTextTest,
    testing::Values(ShorteningCase{u"", 60, u""},        //
                    ShorteningCase{u"Kim", 60, u"Kim"},  //
                    ShorteningCase{u"Kim", 30, u"Kim"},  // as wide as the limit
                    ShorteningCase{u"Kimberly", 30, u"Kim..."},
                    ShorteningCase{u"Kimberly", 0, u"..."},
                    ShorteningCase{u"Kim\nLee", 100, u"Kim\nLee"},  // fits: breaks stay
                    ShorteningCase{u"Kim\r\nLee", 60, u"Kim"},      // ends there, no dots
                    ShorteningCase{u"\nKimberly", 60, u""},
                    ShorteningCase{u"Kimberly\nLee", 30, u"Kim..."}));  // the limit comes first

TEST(ShortenText, TheKeptBeginningIsTheFirstThatReachesTheLimitSoItIsWiderWithItsDots) {
  const QString kept = ShortenText(QStringLiteral("abcdefgh"), 25, TenEach);
  EXPECT_EQ(kept, QStringLiteral("abc..."));
  EXPECT_GT(TenEach(kept), 25);
}

TEST(ShortenText, ATextWhoseLastCharacterAloneCrossesTheLimitStaysWhole) {
  EXPECT_EQ(ShortenText(QStringLiteral("abc"), 25, TenEach), QStringLiteral("abc"));
}

TEST(ShortenText, NeverCutsASurrogatePairInTwo) {
  const QString text = QStringLiteral("ab\U0001F600cdef");
  // The limit is reached in the middle of the pair: the whole pair is kept.
  EXPECT_EQ(ShortenText(text, 25, TenEach), QStringLiteral("ab\U0001F600..."));
}

TEST(ShortenText, LoneHalvesOfPairsAreCharactersOfTheirOwn) {
  const QString text = QString(4, QChar(0xDC00));
  EXPECT_EQ(ShortenText(text, 5, TenEach), QString(1, QChar(0xDC00)) + QStringLiteral("..."));
}

TEST(OnOneLine, EachLineBreakIsABlank) {
  EXPECT_EQ(OnOneLine(QStringLiteral("a\r\nb\nc\rd")), QStringLiteral("a  b c d"));
}

TEST(TextFitting, OfALongTextOnlyTheBeginningIsMeasured) {
  qsizetype longest = 0;
  const TextWidth measured = [&](QStringView text) {
    longest = std::max(longest, text.size());
    return TenEach(text);
  };
  const QString text(100'000, u'a');
  EXPECT_EQ(ShortenText(text, 25, measured), QStringLiteral("aaa..."));
  EXPECT_EQ(ElideText(text, 1'050, measured), QString(102, u'a') + QStringLiteral("..."));
  EXPECT_LE(longest, 1'000);
  EXPECT_EQ(ShortenText(text, 1'000'000, measured), text);
}

struct WrappingCase {
  const char16_t* Text;
  double Limit;
  const char16_t* Lines;  // separated by "|"
};

class WrapLinesTest : public testing::TestWithParam<WrappingCase> {};

TEST_P(WrapLinesTest, FollowsTheRule) {
  const WrappingCase& rule = GetParam();
  EXPECT_EQ(WrapLines(QString::fromUtf16(rule.Text), rule.Limit, TenEach).join(u'|'),
            QString::fromUtf16(rule.Lines));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, WrapLinesTest,
    testing::Values(WrappingCase{u"one two", 70, u"one two"},  // as wide as the limit
                    WrappingCase{u"one two", 69, u"one|two"},
                    WrappingCase{u"one two", 30, u"one|two"},  // the blank hangs out
                    WrappingCase{u"one two three", 70, u"one two|three"},
                    WrappingCase{u"one   two", 50, u"one  |two"},
                    WrappingCase{u"abcdefgh", 30, u"abc|def|gh"},
                    WrappingCase{u"ab cdefgh", 40, u"ab|cdef|gh"},
                    WrappingCase{u" abcdefg", 40, u" abc|defg"},  // no empty line before a word
                    WrappingCase{u"abc", 5, u"a|b|c"},            // one character at least
                    WrappingCase{u"one\r\ntwo\nthree\rfour", 100, u"one|two|three|four"},
                    WrappingCase{u"one\n\ntwo", 100, u"one||two"},
                    WrappingCase{u"a\U0001F600\U0001F600b", 20, u"a\U0001F600|\U0001F600b"}));

TEST(WrapLines, AnEmptyTextHasNoLine) { EXPECT_TRUE(WrapLines({}, 50, TenEach).isEmpty()); }

TEST(CutText, KeepsCharactersWholeAndShorterTextsAsTheyAre) {
  const QString text = QStringLiteral("ab\U0001F600c");
  EXPECT_EQ(CutText(text, 5), text);
  EXPECT_EQ(CutText(text, 4), QStringLiteral("ab\U0001F600"));
  EXPECT_EQ(CutText(text, 3), QStringLiteral("ab"));
  EXPECT_EQ(CutText(text, 2), QStringLiteral("ab"));
  EXPECT_EQ(CutText({}, 3), QString());
}

class ElideTextTest : public testing::TestWithParam<ShorteningCase> {};

TEST_P(ElideTextTest, FitsWithItsDots) {
  const ShorteningCase& rule = GetParam();
  EXPECT_EQ(ElideText(QString::fromUtf16(rule.Text), rule.Limit, TenEach),
            QString::fromUtf16(rule.Shortened));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ElideTextTest,
    testing::Values(ShorteningCase{u"", 60, u""},        //
                    ShorteningCase{u"Kim", 30, u"Kim"},  // as wide as the limit
                    ShorteningCase{u"Kimberly", 79, u"Kimb..."},
                    ShorteningCase{u"Kimberly", 70, u"Kimb..."},
                    ShorteningCase{u"Kimberly", 69, u"Kim..."},
                    ShorteningCase{u"Kimberly", 39, u"..."}, ShorteningCase{u"Kimberly", 0, u"..."},
                    ShorteningCase{u"K\U0001F600mberly", 59, u"K\U0001F600..."},
                    ShorteningCase{u"K\U0001F600mberly", 49, u"K..."}));

}  // namespace
}  // namespace quill
