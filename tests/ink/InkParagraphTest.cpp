#include "ink/InkParagraph.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace quill {
namespace {

constexpr qreal kWidth = 100;
constexpr qreal kFarRight = 10000;

InkTextRun RunOf(int length, quint8 flags = 0, quint32 size = 448) {
  return {.Length = length, .Flags = flags, .Size = size};
}

InkParagraph Paragraph(const QString& text, std::vector<int> breaks = {}) {
  return {
      .Text = text, .Runs = {RunOf(static_cast<int>(text.size()))}, .Breaks = std::move(breaks)};
}

InkLines Stored(const QString& text, std::vector<int> breaks = {}) {
  return {Paragraph(text, std::move(breaks)), kWidth, InkBreaking::Stored};
}

InkLines Anew(const QString& text, qreal width = kWidth) {
  return {Paragraph(text), width, InkBreaking::Anew};
}

QString LongText() { return QStringLiteral("the quick brown fox jumps over the lazy dog"); }

QImage Painted(const InkLines& lines) {
  QImage image(300, 24 * lines.Count(), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  for (int line = 0; line < lines.Count(); ++line)
    lines.Paint(painter, line, QPointF(0, 24 * line + 19));
  return image;
}

TEST(InkParagraph, ATextIsSplitWithItsRunsAndBreaks) {
  const InkText text{.Text = QStringLiteral("one two\n\nthree"),
                     .Runs = {RunOf(4, kInkBold), RunOf(8), RunOf(2, kInkItalic)},
                     .SoftBreaks = {4, 11, 13}};
  const std::vector<InkParagraph> paragraphs = SplitInkText(text);
  ASSERT_EQ(paragraphs.size(), 3U);
  EXPECT_EQ(paragraphs[0],
            (InkParagraph{QStringLiteral("one two"), {RunOf(4, kInkBold), RunOf(3)}, {4}}));
  EXPECT_EQ(paragraphs[1], InkParagraph{QString()});
  EXPECT_EQ(paragraphs[2],
            (InkParagraph{QStringLiteral("three"), {RunOf(3), RunOf(2, kInkItalic)}, {2, 4}}));
}

TEST(InkParagraph, ALineEndAtTheEndBeginsAnEmptyParagraph) {
  const std::vector<InkParagraph> paragraphs =
      SplitInkText({.Text = QStringLiteral("a\n"), .Runs = {RunOf(2)}});
  ASSERT_EQ(paragraphs.size(), 2U);
  EXPECT_EQ(paragraphs[0].Runs, (std::vector<InkTextRun>{RunOf(1)}));
  EXPECT_TRUE(paragraphs[1].Text.isEmpty());
  EXPECT_TRUE(paragraphs[1].Runs.empty());
}

TEST(InkParagraph, NoTextIsOneParagraph) { EXPECT_EQ(SplitInkText({}).size(), 1U); }

TEST(InkParagraph, AFontsSizeIsWholePixelsWithinReason) {
  EXPECT_EQ(InkFontPixels({.Size = 448}), 14);
  EXPECT_EQ(InkFontPixels({.Size = 465}), 15);
  EXPECT_EQ(InkFontPixels({.Size = 1}), 1);
  EXPECT_EQ(InkFontPixels({.Size = 1 << 16}), 1000);
}

TEST(InkLines, AreAsWideAsTheyMayBeAndHoldAllOfTheText) {
  const InkLines lines = Anew(LongText());
  ASSERT_GT(lines.Count(), 2);
  EXPECT_EQ(lines.Begin(0), 0);
  EXPECT_EQ(lines.End(lines.Count() - 1), LongText().size());
  for (int line = 0; line < lines.Count(); ++line) {
    EXPECT_LE(lines.Width(line), kWidth);
    EXPECT_LE(lines.Width(line), lines.Width());
    if (line == 0) continue;
    EXPECT_EQ(lines.Begin(line), lines.End(line - 1));
    EXPECT_EQ(lines.Breaks()[line - 1], lines.Begin(line));
    EXPECT_EQ(LongText().at(lines.Begin(line) - 1), u' ');
  }
}

TEST(InkLines, AWordLongerThanALineIsBrokenWhereItMustBe) {
  const InkLines lines = Anew(QString(60, u'w'));
  ASSERT_GT(lines.Count(), 2);
  EXPECT_LE(lines.Width(), kWidth);
}

TEST(InkLines, WithoutAWidthThereIsOneLine) {
  EXPECT_EQ(Anew(LongText(), 0).Count(), 1);
  EXPECT_EQ(InkLines(Paragraph(LongText()), 0, InkBreaking::Stored).Count(), 1);
}

TEST(InkLines, StoredBreaksAreKeptWhateverTheWidth) {
  const std::vector<int> breaks{10, 12, 40};
  for (const qreal width : {20.0, 100.0, 1000.0}) {
    const InkLines lines(Paragraph(LongText(), breaks), width, InkBreaking::Stored);
    EXPECT_EQ(lines.Breaks(), breaks);
    EXPECT_EQ(lines.Count(), 4);
  }
}

TEST(InkLines, StoredBreaksAreKeptWhateverTheFont) {
  InkParagraph paragraph = Paragraph(LongText(), {10});
  paragraph.Runs = {RunOf(static_cast<int>(LongText().size()), kInkBold, 1280)};
  EXPECT_EQ(InkLines(paragraph, kWidth, InkBreaking::Stored).Breaks(), (std::vector<int>{10}));
}

TEST(InkLines, BrokenAnewForgetsStoredBreaks) {
  const InkLines lines(Paragraph(QStringLiteral("one two"), {4}), kWidth, InkBreaking::Anew);
  EXPECT_EQ(lines.Count(), 1);
}

struct OddBreak {
  const char* Name;
  const char16_t* Text;
  int At;
};

class InkLinesOddBreak : public testing::TestWithParam<OddBreak> {};

TEST_P(InkLinesOddBreak, IsKeptToo) {
  const QString text = QString::fromUtf16(GetParam().Text);
  const InkLines lines = Stored(text, {GetParam().At});
  ASSERT_EQ(lines.Count(), 2);
  EXPECT_EQ(lines.End(0), GetParam().At);
  EXPECT_EQ(lines.Begin(1), GetParam().At);
  EXPECT_EQ(lines.End(1), text.size());
}

INSTANTIATE_TEST_SUITE_P(
    Places, InkLinesOddBreak,
    testing::Values(OddBreak{"WithinAWord", u"abcdef", 3}, OddBreak{"BeforeABlank", u"abc def", 3},
                    OddBreak{"BetweenBlanks", u"abc    def", 5},
                    OddBreak{"BehindEmoji", u"\U0001F600\U0001F601 x", 4},
                    OddBreak{"WithinHangul", u"\uD55C\uAE00\uC774", 1},
                    OddBreak{"BehindAJamoCluster", u"\u1112\u1161\u11AB\u1100\u1173", 3},
                    OddBreak{"BeforeTheEnd", u"abc ", 4},
                    OddBreak{"InHebrew", u"\u05D0\u05D1 \u05D2", 3}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(InkLines, AParagraphFarWiderThanALineIsBrokenOnceWithoutBreaks) {
  EXPECT_EQ(Stored(LongText()).Breaks(), Anew(LongText()).Breaks());
}

TEST(InkLines, AParagraphALittleWiderThanALineStaysOneLine) {
  const qreal width = Anew(LongText(), 0).Width();
  const InkParagraph paragraph = Paragraph(LongText());
  EXPECT_EQ(InkLines(paragraph, width / 1.24, InkBreaking::Stored).Count(), 1);
  EXPECT_EQ(InkLines(paragraph, width / 1.26, InkBreaking::Stored).Count(), 2);
}

TEST(InkLines, ALineSeparatorOfTheTextEndsALine) {
  const InkLines lines = Stored(QString::fromUtf16(u"ab\u2028cd"));
  EXPECT_EQ(lines.Breaks(), (std::vector<int>{3}));
  EXPECT_GT(lines.Width(1), 0);
}

TEST(InkLines, AnEmptyParagraphIsOneLine) {
  for (const InkLines& lines : {Stored({}), Anew({})}) {
    EXPECT_EQ(lines.Count(), 1);
    EXPECT_EQ(lines.Begin(0), 0);
    EXPECT_EQ(lines.End(0), 0);
    EXPECT_EQ(lines.X(0, 0), 0);
    EXPECT_EQ(lines.PositionAt(0, 50), 0);
  }
}

TEST(InkLines, APositionAtABreakBelongsToTheNextLine) {
  const InkLines lines = Stored(QStringLiteral("one two three"), {4, 8});
  EXPECT_EQ(lines.LineOf(0), 0);
  EXPECT_EQ(lines.LineOf(3), 0);
  EXPECT_EQ(lines.LineOf(4), 1);
  EXPECT_EQ(lines.LineOf(8), 2);
  EXPECT_EQ(lines.LineOf(13), 2);
}

TEST(InkLines, TheLastPlaceOfABrokenLineIsBeforeItsLastCharacter) {
  const InkLines lines = Stored(QString::fromUtf16(u"one two\U0001F600three"), {4, 9});
  EXPECT_EQ(lines.Last(0), 3);
  EXPECT_EQ(lines.Last(1), 7);
  EXPECT_EQ(lines.Last(2), 14);
  EXPECT_EQ(lines.PositionAt(0, kFarRight), 3);
  EXPECT_EQ(lines.PositionAt(1, kFarRight), 7);
  EXPECT_EQ(lines.PositionAt(2, kFarRight), 14);
}

TEST(InkLines, PlacesAndPositionsBelongTogether) {
  const InkLines lines = Stored(QStringLiteral("one two three"), {4, 8});
  for (int position = 0; position <= 13; ++position) {
    const int line = lines.LineOf(position);
    EXPECT_EQ(lines.PositionAt(line, lines.X(line, position)), position);
  }
  EXPECT_EQ(lines.X(1, 4), 0);
  EXPECT_EQ(lines.PositionAt(1, -20), 4);
}

TEST(InkLines, RunsLookAsTheySay) {
  const QString text = QStringLiteral("letters");
  const QImage plain = Painted(Stored(text));
  std::vector<QImage> seen{plain};
  for (const InkTextRun& run : {RunOf(7, kInkBold), RunOf(7, kInkItalic), RunOf(7, kInkUnderline),
                                RunOf(7, 0, 600), InkTextRun{.Length = 7, .Color = 0xFFFF0000}}) {
    InkParagraph paragraph = Paragraph(text);
    paragraph.Runs = {run};
    seen.push_back(Painted({paragraph, kWidth, InkBreaking::Stored}));
    for (std::size_t i = 0; i + 1 < seen.size(); ++i) EXPECT_NE(seen[i], seen.back());
  }
}

TEST(InkLines, ARunGoesOnInTheNextLineAndEndsWhereItEnds) {
  InkParagraph paragraph = Paragraph(QStringLiteral("aaaa aaaa aaaa"), {5, 10});
  paragraph.Runs = {RunOf(7, kInkBold), RunOf(7)};
  const QImage mixed = Painted({paragraph, kWidth, InkBreaking::Stored});
  const auto line = [](const QImage& image, int number) {
    return image.copy(0, 24 * number, image.width(), 24);
  };
  EXPECT_NE(line(mixed, 0), line(mixed, 2));
  EXPECT_NE(line(mixed, 1), line(mixed, 0));
  EXPECT_NE(line(mixed, 1), line(mixed, 2));
  paragraph.Runs = {RunOf(14)};
  const QImage plain = Painted({paragraph, kWidth, InkBreaking::Stored});
  EXPECT_EQ(line(mixed, 2), line(plain, 2));
  EXPECT_NE(line(mixed, 0), line(plain, 0));
}

TEST(InkLines, BrokenAnewLookAsTheSameBreaksStored) {
  for (const QString& text :
       {LongText(), QString(60, u'A') + QString(60, u'V'),
        QString::fromUtf16(u"\uC548\uB155\uD558\uC138\uC694 \uBC18\uAC11\uC2B5\uB2C8\uB2E4 "
                           u"\uC624\uB79C\uB9CC\uC774\uC5D0\uC694"),
        QString::fromUtf16(u"\u05D0\u05D1\u05D2 \u05D3\u05D4\u05D5 abc \u05D6\u05D7\u05D8 "
                           u"\u05D9\u05DB\u05DC 12 \u05DE\u05E0")}) {
    const InkLines anew = Anew(text);
    ASSERT_GT(anew.Count(), 1);
    EXPECT_EQ(Painted(anew), Painted(Stored(text, anew.Breaks())));
  }
}

TEST(InkLines, WhatIsComposedStandsBetweenAndBreaksAnew) {
  const InkParagraph paragraph = Paragraph(QStringLiteral("one two"), {4});
  const InkLines lines(paragraph, kWidth, InkComposed{.At = 4, .Text = QStringLiteral("xyz")});
  EXPECT_EQ(lines.Count(), 1);
  EXPECT_EQ(lines.End(0), 10);
  EXPECT_EQ(Painted(lines), Painted(Stored(QStringLiteral("one xyztwo"))));
}

TEST(InkLines, WhatIsComposedLooksAsWhatStandsBefore) {
  InkParagraph paragraph = Paragraph(QStringLiteral("aabbcc"));
  paragraph.Runs = {RunOf(2, kInkBold), RunOf(2, kInkItalic), RunOf(2)};
  const auto composedAt = [&](int at) {
    return Painted({paragraph, kWidth, InkComposed{.At = at, .Text = QStringLiteral("x")}});
  };
  const auto withRuns = [](const QString& text, std::vector<InkTextRun> runs) {
    return Painted({InkParagraph{text, std::move(runs)}, kWidth, InkBreaking::Stored});
  };
  EXPECT_EQ(composedAt(0), withRuns(QStringLiteral("xaabbcc"),
                                    {RunOf(3, kInkBold), RunOf(2, kInkItalic), RunOf(2)}));
  EXPECT_EQ(composedAt(2), withRuns(QStringLiteral("aaxbbcc"),
                                    {RunOf(3, kInkBold), RunOf(2, kInkItalic), RunOf(2)}));
  EXPECT_EQ(composedAt(3), withRuns(QStringLiteral("aabxbcc"),
                                    {RunOf(2, kInkBold), RunOf(3, kInkItalic), RunOf(2)}));
  EXPECT_EQ(composedAt(6), withRuns(QStringLiteral("aabbccx"),
                                    {RunOf(2, kInkBold), RunOf(2, kInkItalic), RunOf(3)}));
}

TEST(InkLines, WhatIsComposedTakesTheFormatsOfTheInputMethod) {
  QTextCharFormat underlined;
  underlined.setFontUnderline(true);
  const InkComposed composed{
      .At = 1, .Text = QStringLiteral("xy"), .Formats = {{1, 1, underlined}}};
  const InkParagraph paragraph = Paragraph(QStringLiteral("ab"));
  InkParagraph same = Paragraph(QStringLiteral("axyb"));
  same.Runs = {RunOf(2), RunOf(1, kInkUnderline), RunOf(1)};
  EXPECT_EQ(Painted({paragraph, kWidth, composed}), Painted({same, kWidth, InkBreaking::Stored}));
}

}  // namespace
}  // namespace quill
