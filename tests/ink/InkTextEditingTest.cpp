#include "ink/InkTextEditing.h"

#include <gtest/gtest.h>

#include <numeric>

namespace quill {
namespace {

const InkTextRun kPlain{.Size = 448};
const InkTextRun kBold{.Flags = kInkBold, .Size = 448};
const InkTextRun kLarge{.Size = 640};
const InkTextRun kRed{.Size = 448, .Color = 0xFFFF0000};

InkTextRun RunOf(InkTextRun look, int length) {
  look.Length = length;
  return look;
}

// "one two" in bold and plain, "three" in plain, with a soft break in each.
InkText TwoParagraphs() {
  return {.X = 11,
          .Y = 22,
          .WrapWidth = 33,
          .Text = QStringLiteral("one two\nthree"),
          .Runs = {RunOf(kBold, 4), RunOf(kPlain, 9)},
          .SoftBreaks = {4, 10}};
}

int RunsLength(const InkText& text) {
  return std::accumulate(text.Runs.begin(), text.Runs.end(), 0,
                         [](int sum, const InkTextRun& run) { return sum + run.Length; });
}

struct Replacement {
  const char* Name;
  int From;
  int To;
  const char16_t* With;
  const char16_t* Text;
  std::vector<InkTextRun> Runs;
  std::vector<int> SoftBreaks;
};

class InkTextReplacing : public testing::TestWithParam<Replacement> {};

TEST_P(InkTextReplacing, GivesTextRunsAndBreaks) {
  const Replacement& row = GetParam();
  const InkText result =
      ReplaceInkText(TwoParagraphs(), row.From, row.To, QString::fromUtf16(row.With));
  EXPECT_EQ(result.Text, QString::fromUtf16(row.Text));
  EXPECT_EQ(result.Runs, row.Runs);
  EXPECT_EQ(result.SoftBreaks, row.SoftBreaks);
  EXPECT_EQ(result.X, 11);
  EXPECT_EQ(result.Y, 22);
  EXPECT_EQ(result.WrapWidth, 33U);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, InkTextReplacing,
    testing::Values(
        Replacement{"InsertedTextLooksAsWhatStandsBefore",
                    4,
                    4,
                    u"x",
                    u"one xtwo\nthree",
                    {RunOf(kBold, 5), RunOf(kPlain, 9)},
                    {11}},
        Replacement{"InsertedWithinARunJoinsIt",
                    6,
                    6,
                    u"xy",
                    u"one twxyo\nthree",
                    {RunOf(kBold, 4), RunOf(kPlain, 11)},
                    {12}},
        Replacement{"AtTheVeryBeginningItLooksAsWhatFollows",
                    0,
                    0,
                    u"x",
                    u"xone two\nthree",
                    {RunOf(kBold, 5), RunOf(kPlain, 9)},
                    {11}},
        Replacement{"AtTheEndItLooksAsTheLast",
                    13,
                    13,
                    u"x",
                    u"one two\nthreex",
                    {RunOf(kBold, 4), RunOf(kPlain, 10)},
                    {4}},
        Replacement{"DeletingAcrossRunsKeepsTheRest",
                    2,
                    6,
                    u"",
                    u"ono\nthree",
                    {RunOf(kBold, 2), RunOf(kPlain, 7)},
                    {6}},
        Replacement{"DeletingAWholeRunDropsIt", 0, 4, u"", u"two\nthree", {RunOf(kPlain, 9)}, {6}},
        Replacement{"ReplacingLooksAsWhatStandsBefore",
                    3,
                    5,
                    u"-",
                    u"one-wo\nthree",
                    {RunOf(kBold, 4), RunOf(kPlain, 8)},
                    {9}},
        Replacement{"ALineEndSplitsAParagraphAndDropsItsBreaks",
                    2,
                    2,
                    u"\n",
                    u"on\ne two\nthree",
                    {RunOf(kBold, 5), RunOf(kPlain, 9)},
                    {11}},
        Replacement{"JoiningTwoParagraphsDropsTheBreaksOfBoth",
                    7,
                    8,
                    u"",
                    u"one twothree",
                    {RunOf(kBold, 4), RunOf(kPlain, 8)},
                    {}},
        Replacement{"TheSecondParagraphsEditLeavesTheFirstsBreaks",
                    9,
                    9,
                    u"x",
                    u"one two\ntxhree",
                    {RunOf(kBold, 4), RunOf(kPlain, 10)},
                    {4}},
        Replacement{"AtAParagraphsBeginningOnlyItsBreaksGo",
                    8,
                    8,
                    u"x",
                    u"one two\nxthree",
                    {RunOf(kBold, 4), RunOf(kPlain, 10)},
                    {4}},
        Replacement{"EverythingMayGo", 0, 13, u"", u"", {}, {}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(InkTextEditing, TheFirstTextHasTheDefaultLook) {
  const InkText result = ReplaceInkText({}, 0, 0, QStringLiteral("ab"));
  EXPECT_EQ(result.Text, QStringLiteral("ab"));
  EXPECT_EQ(result.Runs, (std::vector<InkTextRun>{RunOf({}, 2)}));
}

TEST(InkTextEditing, RunsThatLookTheSameBecomeOne) {
  InkText text{.Text = QStringLiteral("abcdef"),
               .Runs = {RunOf(kPlain, 2), RunOf(kBold, 2), RunOf(kPlain, 2)}};
  EXPECT_EQ(ReplaceInkText(text, 2, 4, {}).Runs, (std::vector<InkTextRun>{RunOf(kPlain, 4)}));
  for (const InkTextRun& other : {kBold, kLarge, kRed}) {
    text.Runs = {RunOf(kPlain, 2), RunOf(kBold, 2), RunOf(other, 2)};
    const InkText result = ReplaceInkText(text, 2, 4, {});
    EXPECT_EQ(result.Runs, (std::vector<InkTextRun>{RunOf(kPlain, 2), RunOf(other, 2)}));
  }
}

TEST(InkTextEditing, WhatIsTooLongIsLeftOutAtTheEndOfWhatIsNew) {
  const InkText full = ReplaceInkText({}, 0, 0, QString(kLongestInkText - 2, u'a'));
  const InkText result = ReplaceInkText(full, 1, 2, QStringLiteral("1234"));
  EXPECT_EQ(result.Text.size(), kLongestInkText);
  EXPECT_TRUE(result.Text.startsWith(QStringLiteral("a123a")));
  EXPECT_EQ(RunsLength(result), kLongestInkText);
  EXPECT_EQ(ReplaceInkText(result, 0, 0, QStringLiteral("x")), result);
}

TEST(InkTextEditing, TextThatIsTooLongAlreadyCanOnlyShrink) {
  InkText text{.Text = QString(kLongestInkText + 9, u'a'),
               .Runs = {RunOf({}, kLongestInkText + 9)}};
  EXPECT_EQ(ReplaceInkText(text, 4, 4, QStringLiteral("x")).Text, text.Text);
  EXPECT_EQ(ReplaceInkText(text, 4, 5, QStringLiteral("x")).Text.size(), kLongestInkText + 8);
}

TEST(InkTextEditing, NoHalfOfACharacterStaysWhereTextIsCut) {
  const InkText full = ReplaceInkText({}, 0, 0, QString(kLongestInkText - 2, u'a'));
  const InkText result = ReplaceInkText(full, 0, 0, QString::fromUtf16(u"b\U0001F600"));
  EXPECT_EQ(result.Text.size(), kLongestInkText - 1);
  EXPECT_TRUE(result.Text.startsWith(QStringLiteral("baa")));
}

TEST(InkTextEditing, ASliceHasItsRunsAndNoBreaks) {
  const InkText slice = SliceInkText(TwoParagraphs(), 2, 9);
  EXPECT_EQ(slice.Text, QStringLiteral("e two\nt"));
  EXPECT_EQ(slice.Runs, (std::vector<InkTextRun>{RunOf(kBold, 2), RunOf(kPlain, 5)}));
  EXPECT_TRUE(slice.SoftBreaks.empty());
  EXPECT_EQ(slice.X, 11);
}

struct ParagraphPlace {
  int Position;
  int Start;
  int End;
};

class InkTextParagraph : public testing::TestWithParam<ParagraphPlace> {};

TEST_P(InkTextParagraph, IsFoundAroundAPosition) {
  const QString text = QStringLiteral("one\n\ntwo");
  EXPECT_EQ(ParagraphStart(text, GetParam().Position), GetParam().Start);
  EXPECT_EQ(ParagraphEnd(text, GetParam().Position), GetParam().End);
}

INSTANTIATE_TEST_SUITE_P(Positions, InkTextParagraph,
                         testing::Values(ParagraphPlace{0, 0, 3}, ParagraphPlace{2, 0, 3},
                                         ParagraphPlace{3, 0, 3}, ParagraphPlace{4, 4, 4},
                                         ParagraphPlace{5, 5, 8}, ParagraphPlace{8, 5, 8}));

}  // namespace
}  // namespace quill
