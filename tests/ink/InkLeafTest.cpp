#include "ink/InkLeaf.h"

#include <gtest/gtest.h>

#include "ink/InkPageFixture.h"
#include "ink/InkTextEditing.h"

namespace quill {
namespace {

// Which ink goes along when lines of text do. The text's lines are 24 pixels high, the first one
// begins at the page's top; the ink is at 2, 26, 50, 74 and 122 pixels.
struct LineEdit {
  const char* Name;
  const char16_t* Text;
  int From;
  int To;
  const char16_t* Typed;
  std::vector<int> Tops;
};

class InkBelowLines : public test::InkPageFixture, public testing::WithParamInterface<LineEdit> {};

TEST_P(InkBelowLines, GoesWithTheLinesThatFollow) {
  Type(QString::fromUtf16(GetParam().Text));
  const std::vector<int> before{2, 26, 50, 74, 122};
  for (const int top : before) Draw({5, top});
  const QByteArray data = m_document.Data();
  m_document.Type(GetParam().From, GetParam().To, QString::fromUtf16(GetParam().Typed));
  EXPECT_EQ(Tops(), GetParam().Tops);
  EXPECT_EQ(StepCount(), 7);
  EXPECT_EQ(m_document.InkBounds().bottom() / 32, GetParam().Tops.back());
  Undo();
  EXPECT_EQ(Tops(), before);
  EXPECT_EQ(m_document.Data(), data);
  Redo();
  EXPECT_EQ(Tops(), GetParam().Tops);
}

const std::vector<int> kStays{2, 26, 50, 74, 122};

INSTANTIATE_TEST_SUITE_P(
    Edits, InkBelowLines,
    testing::Values(
        LineEdit{"EnterInTheFirstLine", u"one\ntwo\nsix", 1, 1, u"\n", {2, 50, 74, 98, 146}},
        LineEdit{"EnterAtTheEndOfALine", u"one\ntwo\nsix", 7, 7, u"\n", {2, 26, 74, 98, 146}},
        LineEdit{"EnterInTheLastLine", u"one\ntwo\nsix", 9, 9, u"\n", {2, 26, 50, 98, 146}},
        LineEdit{"EnterAtTheVeryEndMovesNothing", u"one\ntwo\nsix", 11, 11, u"\n", kStays},
        LineEdit{"SeveralLineEnds", u"one\ntwo", 1, 1, u"a\nb\nc", {2, 74, 98, 122, 170}},
        LineEdit{"BackspaceAtALinesBeginning", u"one\ntwo\nsix", 3, 4, u"", {2, 26, 26, 50, 98}},
        LineEdit{
            "BackspaceAtTheLastLinesBeginning", u"one\ntwo\nsix", 7, 8, u"", {2, 26, 50, 50, 98}},
        LineEdit{"BackspaceOfAnEmptyLastLine", u"one\ntwo\n", 7, 8, u"", kStays},
        LineEdit{"SelectedLinesReplaced", u"one\ntwo\nsix\nten", 0, 8, u"x", {2, 26, 50, 26, 74}},
        LineEdit{"ALetterMovesNothing", u"one\ntwo\nsix", 1, 1, u"x", kStays},
        LineEdit{"TypingThatBreaksALineOnce",
                 u"one\ntwo",
                 3,
                 3,
                 u" long enough to need a second line",
                 {2, 50, 74, 98, 146}},
        LineEdit{"TypingThatBreaksTheLastLine", u"one\ntwo", 7, 7,
                 u" long enough to need a second line", kStays},
        LineEdit{"EnterWithinABrokenParagraph",
                 u"a paragraph that is long enough to be broken into two",
                 1,
                 1,
                 u"\n",
                 {2, 50, 74, 98, 146}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(InkLeaf, LinesThatWereNeverStoredCountAsTheyAreSeen) {
  InkLeaf leaf;
  InkNote note;
  note.Text.Text = QStringLiteral(
      "a text of one paragraph that was written by a program which "
      "stores no breaks\nlast");
  note.Text.Runs = {{.Length = static_cast<int>(note.Text.Text.size())}};
  note.Strokes = {SealInkStroke({.Points = {{.X = 9, .Y = 1 << 20}}})};
  leaf.Load(note);
  ASSERT_GT(leaf.TextLayout().LineCount(), 2);
  const auto changes = leaf.Typed(1, 1, QStringLiteral("\n"), note.Strokes);
  ASSERT_EQ(changes.size(), 2U);
  EXPECT_EQ(changes[1].Shifted.By, QPoint(0, 24 * 32));
}

TEST(InkLeaf, InkOnTheEdgeOfTheNextLineIsBelow) {
  InkLeaf leaf;
  InkNote note;
  note.Text.Text = QStringLiteral("a\nb");
  note.Text.Runs = {{.Length = 3}};
  note.Strokes = {SealInkStroke({.Points = {{.X = 9, .Y = 24 * 32}}}),
                  SealInkStroke({.Points = {{.X = 9, .Y = 24 * 32 - 1}, {.X = 9, .Y = 9999}}})};
  leaf.Load(note);
  const auto changes = leaf.Typed(1, 1, QStringLiteral("\n"), note.Strokes);
  ASSERT_EQ(changes.size(), 2U);
  EXPECT_EQ(changes[1].Shifted.Indices, std::vector<std::size_t>{0});
}

TEST(InkLeaf, WhatItPaintsIsMoreThanItsLinesAndPoints) {
  InkLeaf leaf;
  EXPECT_TRUE(leaf.PaintedArea().isEmpty());
  EXPECT_TRUE(leaf.TextArea().isEmpty());
  InkNote note;
  note.Text.Text = QStringLiteral("a");
  note.Text.Runs = {{.Length = 1}};
  note.Strokes = {SealInkStroke({.Points = {{.X = 900, .Y = 9000}}})};
  leaf.Load(note);
  EXPECT_EQ(leaf.TextArea().topLeft(), QPoint(8 * 32, 0));
  EXPECT_EQ(leaf.TextArea().height(), 24 * 32);
  EXPECT_TRUE(leaf.PaintedTextArea().contains(leaf.TextArea().adjusted(-32, -32, 32, 32)));
  EXPECT_TRUE(leaf.PaintedArea().contains(leaf.PaintedTextArea()));
  EXPECT_TRUE(leaf.PaintedArea().contains(QRect(840, 8940, 120, 120)));
}

TEST(InkLeaf, NothingComesOfTypingIntoAFullText) {
  InkLeaf leaf;
  InkNote note;
  note.Text.WrapWidth = 0;
  note.Text.Text = QString(kLongestInkText, u'x');
  note.Text.Runs = {{.Length = kLongestInkText}};
  leaf.Load(note);
  EXPECT_TRUE(leaf.Typed(5, 5, QStringLiteral("y"), {}).empty());
}

TEST(InkLeaf, StrokesThatNameThePagesPensAreNotCopied) {
  InkLeaf leaf;
  leaf.PenFor({.Color = 0xFFFF0000});
  const InkNote note{.Pens = {{.Color = 0xFFFF0000}, {.Color = 0xFF00FF00}},
                     .Strokes = {SealInkStroke({.Pen = 0, .Points = {{}}}),
                                 SealInkStroke({.Pen = 1, .Points = {{}}})}};
  const InkNote named = leaf.WithPensOfPage(note);
  EXPECT_EQ(named.Strokes, note.Strokes);
  EXPECT_EQ(named.Pens, note.Pens);
}

}  // namespace
}  // namespace quill
