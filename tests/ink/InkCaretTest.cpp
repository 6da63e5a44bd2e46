#include "ink/InkCaret.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

InkTextLayout LayoutOf(const QString& words, std::vector<int> breaks = {}) {
  InkTextLayout layout;
  layout.Load({.Text = words,
               .Runs = {{.Length = static_cast<int>(words.size())}},
               .SoftBreaks = std::move(breaks)},
              kDefaultRulePitch);
  return layout;
}

struct CaretStep {
  const char* Name;
  const char16_t* Text;
  int From;
  InkCaretMove Move;
  int To;
};

class InkCaretSteps : public testing::TestWithParam<CaretStep> {};

TEST_P(InkCaretSteps, GoWhereReadersExpect) {
  const QString text = QString::fromUtf16(GetParam().Text);
  EXPECT_EQ(MovedCaret(LayoutOf(text), text, GetParam().From, GetParam().Move), GetParam().To);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, InkCaretSteps,
    testing::Values(
        CaretStep{"RightOverALetter", u"abc", 1, InkCaretMove::Right, 2},
        CaretStep{"LeftOverALetter", u"abc", 1, InkCaretMove::Left, 0},
        CaretStep{"RightOverASurrogatePair", u"a\U0001F600b", 1, InkCaretMove::Right, 3},
        CaretStep{"LeftOverASurrogatePair", u"a\U0001F600b", 3, InkCaretMove::Left, 1},
        CaretStep{"RightOverAFamilyOfEmoji", u"\U0001F468\u200D\U0001F469\u200D\U0001F467x", 0,
                  InkCaretMove::Right, 8},
        CaretStep{"RightOverASyllable", u"\uD55C\uAE00", 0, InkCaretMove::Right, 1},
        CaretStep{"RightOverJamo", u"\u1112\u1161\u11AB\u1100", 0, InkCaretMove::Right, 3},
        CaretStep{"LeftOverACombiningMark", u"ae\u0301", 3, InkCaretMove::Left, 1},
        CaretStep{"RightAcrossALineEnd", u"a\nb", 1, InkCaretMove::Right, 2},
        CaretStep{"LeftAcrossALineEnd", u"a\nb", 2, InkCaretMove::Left, 1},
        CaretStep{"RightOverAnEmptyParagraph", u"a\n\nb", 2, InkCaretMove::Right, 3},
        CaretStep{"LeftOverAnEmptyParagraph", u"a\n\nb", 2, InkCaretMove::Left, 1},
        CaretStep{"RightAtTheEndStays", u"ab", 2, InkCaretMove::Right, 2},
        CaretStep{"LeftAtTheBeginningStays", u"ab", 0, InkCaretMove::Left, 0},
        CaretStep{"ToTheNextWord", u"one two", 1, InkCaretMove::WordRight, 4},
        CaretStep{"ToTheWordBefore", u"one two", 6, InkCaretMove::WordLeft, 4},
        CaretStep{"ToTheWordsBeginning", u"one two", 4, InkCaretMove::WordLeft, 0},
        CaretStep{"WordRightAtALineEnd", u"one\ntwo", 3, InkCaretMove::WordRight, 4},
        CaretStep{"WordLeftAtALineBeginning", u"one\ntwo", 4, InkCaretMove::WordLeft, 3},
        CaretStep{"WordRightInASecondParagraph", u"one\ntwo six", 4, InkCaretMove::WordRight, 8},
        CaretStep{"ToTheTextsBeginning", u"one\ntwo", 5, InkCaretMove::TextStart, 0},
        CaretStep{"ToTheTextsEnd", u"one\ntwo", 1, InkCaretMove::TextEnd, 7},
        CaretStep{"UpFromTheFirstLine", u"one\ntwo", 2, InkCaretMove::Up, 0},
        CaretStep{"DownFromTheLastLine", u"one\ntwo", 5, InkCaretMove::Down, 7},
        CaretStep{"DownToTheLineBelow", u"aaa\naaa", 2, InkCaretMove::Down, 6},
        CaretStep{"UpToTheLineAbove", u"aaa\naaa", 6, InkCaretMove::Up, 2},
        CaretStep{"DownToAShorterLine", u"aaa\na\naaa", 3, InkCaretMove::Down, 5},
        CaretStep{"DownToAnEmptyLine", u"aaa\n\naaa", 2, InkCaretMove::Down, 4},
        CaretStep{"ToALinesBeginning", u"one\ntwo", 6, InkCaretMove::LineStart, 4},
        CaretStep{"ToALinesEnd", u"one\ntwo", 1, InkCaretMove::LineEnd, 3},
        CaretStep{"ToTheEndOfHebrew", u"\u05D0\u05D1\u05D2", 1, InkCaretMove::LineEnd, 3},
        CaretStep{"ToTheBeginningOfHebrew", u"\u05D0\u05D1\u05D2", 1, InkCaretMove::LineStart, 0}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(InkCaret, MovesWithinBrokenLines) {
  const QString text = QStringLiteral("one two\nsix");
  const InkTextLayout layout = LayoutOf(text, {4});
  const auto moved = [&](int position, InkCaretMove move) {
    return MovedCaret(layout, text, position, move);
  };
  EXPECT_EQ(moved(1, InkCaretMove::LineEnd), 3);
  EXPECT_EQ(moved(6, InkCaretMove::LineStart), 4);
  EXPECT_EQ(moved(5, InkCaretMove::LineEnd), 7);
  EXPECT_EQ(moved(4, InkCaretMove::Up), 0);
  EXPECT_EQ(moved(0, InkCaretMove::Down), 4);
  EXPECT_EQ(moved(3, InkCaretMove::Right), 4);
}

TEST(InkCaret, StaysInATextOfNothing) {
  for (const InkCaretMove move :
       {InkCaretMove::Left, InkCaretMove::Right, InkCaretMove::WordLeft, InkCaretMove::WordRight,
        InkCaretMove::Up, InkCaretMove::Down, InkCaretMove::LineStart, InkCaretMove::LineEnd})
    EXPECT_EQ(MovedCaret(InkTextLayout(), {}, 0, move), 0);
}

}  // namespace
}  // namespace quill
