#include "ink/InkTextLayout.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include "ink/InkTextEditing.h"

namespace quill {
namespace {

constexpr quint32 kWrap = 100 * kInkUnitsPerPixel;
constexpr QPointF kOrigin(8, 30);

InkText TextOf(const QString& words, std::vector<int> breaks = {}) {
  return {.X = 8 * kInkUnitsPerPixel,
          .Y = 30 * kInkUnitsPerPixel,
          .WrapWidth = kWrap,
          .Text = words,
          .Runs = {{.Length = static_cast<int>(words.size())}},
          .SoftBreaks = std::move(breaks)};
}

InkTextLayout LayoutOf(const InkText& text, quint32 pitch = kDefaultRulePitch) {
  InkTextLayout layout;
  layout.Load(text, pitch);
  return layout;
}

InkTextLayout LayoutOf(const QString& words, std::vector<int> breaks = {}) {
  return LayoutOf(TextOf(words, std::move(breaks)));
}

// Three lines of two paragraphs: 0..4, 4..7, 8..11.
InkTextLayout ThreeLines() { return LayoutOf(QStringLiteral("one two\nsix"), {4}); }

QString LongWords() { return QStringLiteral("the quick brown fox jumps over the lazy dog"); }

QImage Painted(const InkTextLayout& layout, const QRectF& area = QRectF(0, 0, 300, 300)) {
  QImage image(300, 300, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  layout.Paint(painter, area);
  return image;
}

TEST(InkTextLayout, WithoutTextThereIsOneEmptyLineAndNoPlace) {
  for (const InkTextLayout& layout : {InkTextLayout(), LayoutOf(QString())}) {
    EXPECT_EQ(layout.LineCount(), 1);
    EXPECT_TRUE(layout.Bounds().isNull());
    EXPECT_TRUE(layout.PaintedBounds().isNull());
    EXPECT_TRUE(layout.SoftBreaks().empty());
    EXPECT_EQ(layout.PositionAt({50, 50}), 0);
    EXPECT_EQ(layout.LineOf(0), 0);
    EXPECT_FALSE(layout.IsTextAt({9, 35}));
    EXPECT_EQ(layout.LineBegin(0), 0);
    EXPECT_EQ(layout.LineLast(0), 0);
  }
}

TEST(InkTextLayout, LinesStandOnTheRulesFromThePlaceOfTheText) {
  const InkTextLayout layout = ThreeLines();
  const std::vector<InkTextLine> lines = layout.Lines();
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0].Baseline, kOrigin + QPointF(0, 24 - kInkBaselineAboveRule));
  EXPECT_EQ(lines[2].Baseline, kOrigin + QPointF(0, 72 - kInkBaselineAboveRule));
  EXPECT_EQ(std::pair(lines[0].From, lines[0].To), std::pair(0, 4));
  EXPECT_EQ(std::pair(lines[1].From, lines[1].To), std::pair(4, 7));
  EXPECT_EQ(std::pair(lines[2].From, lines[2].To), std::pair(8, 11));
  EXPECT_EQ(layout.TopOfLine(2), 78);
  EXPECT_EQ(layout.LineHeight(), 24);
}

TEST(InkTextLayout, LinesAreAsFarApartAsRules) {
  EXPECT_EQ(LayoutOf(TextOf(QStringLiteral("a")), 40 * kInkUnitsPerPixel).LineHeight(), 40);
  EXPECT_EQ(LayoutOf(TextOf(QStringLiteral("a")), 0).LineHeight(), 24);
}

TEST(InkTextLayout, ThePlaceOfTheTextIsItsLines) {
  const QRectF bounds = ThreeLines().Bounds();
  EXPECT_EQ(bounds.topLeft(), kOrigin);
  EXPECT_EQ(bounds.height(), 72);
  EXPECT_EQ(bounds.width(), LayoutOf(QStringLiteral("one ")).Bounds().width());
}

TEST(InkTextLayout, PaintsNothingOutsideOfWhatItSays) {
  InkText text = TextOf(QString::fromUtf16(u"\u00C5j\u00C5f"));
  text.X = 100 * kInkUnitsPerPixel;
  text.Y = 100 * kInkUnitsPerPixel;
  text.Runs[0].Size = 90 * kInkUnitsPerPixel;
  text.Runs[0].Flags = kInkItalic;
  const InkTextLayout layout = LayoutOf(text);
  const QImage all = Painted(layout);
  QImage bare(all.size(), all.format());
  bare.fill(Qt::white);
  ASSERT_NE(all, bare);
  QImage without = all;
  QPainter(&without).fillRect(layout.PaintedBounds(), Qt::white);
  EXPECT_EQ(without, bare);
}

TEST(InkTextLayout, PaintsWhatReachesIntoAnArea) {
  InkText text = TextOf(QStringLiteral("Af\nlow\nlow"));
  text.Runs[0].Size = 60 * kInkUnitsPerPixel;
  const InkTextLayout layout = LayoutOf(text);
  const QImage all = Painted(layout);
  for (int top = 0; top < 300; top += 20) {
    const QRect strip(0, top, 300, 20);
    EXPECT_EQ(Painted(layout, strip).copy(strip), all.copy(strip)) << top;
  }
}

TEST(InkTextLayout, PaintsNothingOfLinesFarAway) {
  const InkTextLayout layout = LayoutOf(QString(QStringLiteral("line\n")).repeated(9));
  const QImage top = Painted(layout, QRectF(0, 0, 300, 40));
  EXPECT_EQ(top.copy(0, 150, 300, 150), Painted(LayoutOf(QString())).copy(0, 150, 300, 150));
  const QImage bottom = Painted(layout, QRectF(0, 200, 300, 40));
  EXPECT_EQ(bottom.copy(0, 0, 300, 100), Painted(LayoutOf(QString())).copy(0, 0, 300, 100));
}

TEST(InkTextLayout, StoredBreaksSurviveAnotherWidthAndFont) {
  for (const quint32 wrap : {kWrap / 4, kWrap, kWrap * 9})
    for (const quint32 size : {200U, 448U, 900U}) {
      InkText text = TextOf(LongWords() + u'\n' + LongWords(), {10, 16, 50});
      text.WrapWidth = wrap;
      text.Runs[0].Size = size;
      EXPECT_EQ(LayoutOf(text).SoftBreaks(), text.SoftBreaks);
    }
}

TEST(InkTextLayout, AnEditBreaksItsParagraphAnewAndNoOther) {
  const InkText before =
      TextOf(LongWords() + u'\n' + LongWords() + u'\n' + LongWords(), {10, 50, 70, 100});
  InkTextLayout layout = LayoutOf(before);
  const InkText after = ReplaceInkText(before, 60, 60, QStringLiteral("x"));
  layout.Edit(after, 60, 61);
  std::vector<int> expected{10};
  InkTextLayout alone = LayoutOf(TextOf({}));
  const InkText middle = SliceInkText(after, 44, 88);
  alone.Edit(middle, 0, 1);
  for (const int at : alone.SoftBreaks()) expected.push_back(44 + at);
  expected.push_back(101);
  EXPECT_GT(expected.size(), 3U);
  EXPECT_EQ(layout.SoftBreaks(), expected);
}

TEST(InkTextLayout, AnEditedParagraphIsNeverWiderThanALine) {
  InkText text = TextOf(QStringLiteral("ab ab ab ab ab ab"));
  text.WrapWidth = 0;
  const qreal width = LayoutOf(text).Bounds().width();
  text.WrapWidth = static_cast<quint32>(width / 1.1 * kInkUnitsPerPixel);
  InkTextLayout layout = LayoutOf(text);
  EXPECT_EQ(layout.LineCount(), 1);
  const InkText edited = ReplaceInkText(text, 0, 1, QStringLiteral("b"));
  layout.Edit(edited, 0, 1);
  EXPECT_EQ(layout.LineCount(), 2);
}

TEST(InkTextLayout, AnEditThatJoinsOrSplitsParagraphsPlacesTheRest) {
  const InkText before = TextOf(QStringLiteral("one\ntwo\nthree"));
  InkTextLayout layout = LayoutOf(before);
  const InkText split = ReplaceInkText(before, 5, 5, QStringLiteral("\n"));
  layout.Edit(split, 5, 6);
  EXPECT_EQ(layout.LineCount(), 4);
  EXPECT_EQ(layout.LineOf(9), 3);
  layout.Edit(before, 5, 5);
  EXPECT_EQ(layout.LineCount(), 3);
  EXPECT_EQ(layout.LineOf(8), 2);
}

TEST(InkTextLayout, LoadingAgainLooksAsLoadingAfresh) {
  const InkText first = TextOf(QStringLiteral("one two\nthree four\nfive"), {4});
  for (const InkText& next : {TextOf(QStringLiteral("one two\nthree four\nfive"), {4, 14}),
                              TextOf(QStringLiteral("one two\nfive"), {4}),
                              TextOf(QStringLiteral("one two\nnew\nthree four\nfive"), {4}),
                              TextOf(QStringLiteral("five")),
                              TextOf(QStringLiteral("one two\none two\nfive"), {4}), TextOf({})}) {
    InkTextLayout layout = LayoutOf(first);
    layout.Load(next, kDefaultRulePitch);
    EXPECT_EQ(Painted(layout), Painted(LayoutOf(next)));
    EXPECT_EQ(layout.LineCount(), LayoutOf(next).LineCount());
    EXPECT_EQ(layout.SoftBreaks(), LayoutOf(next).SoftBreaks());
  }
}

TEST(InkTextLayout, AnotherWidthBreaksTextWithoutBreaksAgain) {
  InkText text = TextOf(LongWords());
  InkTextLayout layout = LayoutOf(text);
  text.WrapWidth = kWrap * 2;
  layout.Load(text, kDefaultRulePitch);
  EXPECT_EQ(layout.SoftBreaks(), LayoutOf(text).SoftBreaks());
  text.X = 0;
  layout.Load(text, kDefaultRulePitch);
  EXPECT_EQ(layout.Bounds().x(), 0);
}

TEST(InkTextLayout, APositionIsNearestInItsLine) {
  const InkTextLayout layout = ThreeLines();
  EXPECT_EQ(layout.PositionAt({-50, -50}), 0);
  EXPECT_EQ(layout.PositionAt({500, 31}), 3);
  EXPECT_EQ(layout.PositionAt({500, 54}), 7);
  EXPECT_EQ(layout.PositionAt({0, 54}), 4);
  EXPECT_EQ(layout.PositionAt({500, 5000}), 11);
  for (int position = 0; position <= 11; ++position)
    EXPECT_EQ(layout.PositionAt(layout.Caret(position).center()), position);
}

TEST(InkTextLayout, ThereIsTextOnlyAsFarAsItsLineReaches) {
  const InkTextLayout layout = LayoutOf(QStringLiteral("a long line\nb"));
  EXPECT_TRUE(layout.IsTextAt({9, 31}));
  EXPECT_TRUE(layout.IsTextAt({9, 55}));
  EXPECT_FALSE(layout.IsTextAt({40, 60}));
  EXPECT_TRUE(layout.IsTextAt({40, 40}));
  EXPECT_FALSE(layout.IsTextAt({9, 29}));
  EXPECT_FALSE(layout.IsTextAt({9, 79}));
  EXPECT_TRUE(layout.IsTextAt({9, 78}));
}

TEST(InkTextLayout, ALineHasAFirstAndALastPlace) {
  const InkTextLayout layout = ThreeLines();
  EXPECT_EQ(layout.LineBegin(1), 4);
  EXPECT_EQ(layout.LineLast(0), 3);
  EXPECT_EQ(layout.LineLast(1), 7);
  EXPECT_EQ(layout.LineLast(2), 11);
}

TEST(InkTextLayout, TheCaretStandsInItsLine) {
  const InkTextLayout layout = ThreeLines();
  EXPECT_EQ(layout.Caret(0), QRectF(8, 33, 1, 19));
  EXPECT_EQ(layout.Caret(4), QRectF(8, 57, 1, 19));
  EXPECT_EQ(layout.Caret(8).y(), 81);
  EXPECT_GT(layout.Caret(11).x(), layout.Caret(9).x());
}

TEST(InkTextLayout, ASelectionCoversItsPartOfEachLine) {
  const InkTextLayout layout = ThreeLines();
  EXPECT_TRUE(layout.Selection(3, 3).empty());
  const std::vector<QRectF> within = layout.Selection(1, 2);
  ASSERT_EQ(within.size(), 1U);
  EXPECT_EQ(within[0], QRectF(QPointF(layout.Caret(1).x(), 30), QPointF(layout.Caret(2).x(), 54)));
  const std::vector<QRectF> across = layout.Selection(1, 9);
  ASSERT_EQ(across.size(), 3U);
  EXPECT_EQ(across[0].left(), layout.Caret(1).x());
  EXPECT_GT(across[0].right(), layout.Caret(3).x());
  EXPECT_EQ(across[1].left(), 8);
  EXPECT_EQ(across[1].right(), layout.Caret(7).x() + 4);
  EXPECT_EQ(across[2], QRectF(QPointF(8, 78), QPointF(layout.Caret(9).x(), 102)));
}

TEST(InkTextLayout, ASelectedEmptyLineIsSeen) {
  const InkTextLayout layout = LayoutOf(QStringLiteral("a\n\nb"));
  const std::vector<QRectF> selection = layout.Selection(2, 4);
  ASSERT_EQ(selection.size(), 2U);
  EXPECT_EQ(selection[0], QRectF(8, 54, 4, 24));
  EXPECT_EQ(layout.Selection(0, 2).size(), 1U);
}

class InkTextPreedit : public testing::Test {
 protected:
  void Compose(int position, const QString& text, int cursor) {
    m_layout.SetPreedit({.Position = position, .Text = text, .Cursor = cursor});
  }

  InkText m_text = TextOf(QStringLiteral("one two\nsix"), {4});
  InkTextLayout m_layout = LayoutOf(m_text);
};

TEST_F(InkTextPreedit, IsShownWithoutBeingPartOfTheText) {
  Compose(9, QStringLiteral("xyz"), 3);
  EXPECT_EQ(Painted(m_layout), Painted(LayoutOf(QStringLiteral("one two\nsxyzix"), {4})));
  EXPECT_EQ(m_layout.SoftBreaks(), (std::vector<int>{4}));
  EXPECT_EQ(m_layout.Preedit().Text, QStringLiteral("xyz"));
}

TEST_F(InkTextPreedit, GivenUpLeavesTheStoredLines) {
  const QImage before = Painted(m_layout);
  Compose(5, QStringLiteral("xyz"), 3);
  EXPECT_NE(Painted(m_layout), before);
  Compose(5, {}, 0);
  EXPECT_EQ(Painted(m_layout), before);
  EXPECT_EQ(m_layout.LineCount(), 3);
}

TEST_F(InkTextPreedit, MovesFromOneParagraphToAnother) {
  Compose(5, QStringLiteral("x"), 1);
  Compose(9, QStringLiteral("x"), 1);
  EXPECT_EQ(Painted(m_layout), Painted(LayoutOf(QStringLiteral("one two\nsxix"), {4})));
}

TEST_F(InkTextPreedit, PushesTheLinesBelowDown) {
  Compose(1, LongWords(), 0);
  EXPECT_GT(m_layout.LineCount(), 4);
  EXPECT_EQ(m_layout.LineOf(8), m_layout.LineCount() - 1);
}

TEST_F(InkTextPreedit, HasItsCaretWithin) {
  Compose(9, QStringLiteral("xyz"), 2);
  const InkTextLayout typed = LayoutOf(QStringLiteral("one two\nsxyzix"), {4});
  EXPECT_EQ(m_layout.Caret(8), typed.Caret(8));
  EXPECT_EQ(m_layout.Caret(9), typed.Caret(11));
  EXPECT_EQ(m_layout.Caret(10), typed.Caret(13));
  EXPECT_EQ(m_layout.Caret(1), typed.Caret(1));
}

TEST_F(InkTextPreedit, LeavesPlacesInOtherParagraphsAlone) {
  Compose(1, QStringLiteral("xyz"), 3);
  EXPECT_EQ(m_layout.Caret(9).x(), LayoutOf(m_text).Caret(9).x());
  EXPECT_EQ(m_layout.PositionAt(m_layout.Caret(9).center()), 9);
}

TEST_F(InkTextPreedit, IsOnePlaceForAPen) {
  Compose(9, QStringLiteral("xyz"), 0);
  const InkTextLayout typed = LayoutOf(QStringLiteral("one two\nsxyzix"), {4});
  const auto positionAt = [&](int shown) {
    return m_layout.PositionAt(typed.Caret(shown).center());
  };
  EXPECT_EQ(positionAt(8), 8);
  EXPECT_EQ(positionAt(9), 9);
  EXPECT_EQ(positionAt(11), 9);
  EXPECT_EQ(positionAt(12), 9);
  EXPECT_EQ(positionAt(13), 10);
  EXPECT_EQ(positionAt(14), 11);
}

TEST_F(InkTextPreedit, IsSeenInAnEmptyText) {
  InkTextLayout layout = LayoutOf(QString());
  layout.SetPreedit({.Text = QStringLiteral("xyz"), .Cursor = 3});
  EXPECT_EQ(layout.Bounds(), LayoutOf(QStringLiteral("xyz")).Bounds());
  EXPECT_EQ(Painted(layout), Painted(LayoutOf(QStringLiteral("xyz"))));
}

TEST_F(InkTextPreedit, EndsWhenTheTextIsLoadedOrEdited) {
  Compose(9, QStringLiteral("xyz"), 3);
  m_layout.Load(m_text, kDefaultRulePitch);
  EXPECT_EQ(m_layout.Preedit(), InkPreedit{});
  EXPECT_EQ(Painted(m_layout), Painted(LayoutOf(m_text)));
  Compose(9, QStringLiteral("xyz"), 3);
  m_layout.Edit(m_text, 9, 9);
  EXPECT_EQ(Painted(m_layout), Painted(LayoutOf(m_text)));
}

TEST_F(InkTextPreedit, AColourOfTheInputMethodIsShown) {
  QTextCharFormat red;
  red.setForeground(Qt::red);
  m_layout.SetPreedit(
      {.Position = 11, .Text = QStringLiteral("xyz"), .Cursor = 3, .Formats = {{0, 3, red}}});
  InkText colored = TextOf(QStringLiteral("one two\nsixxyz"), {4});
  colored.Runs = {{.Length = 11}, {.Length = 3, .Color = 0xFFFF0000}};
  EXPECT_EQ(Painted(m_layout), Painted(LayoutOf(colored)));
}

}  // namespace
}  // namespace quill
