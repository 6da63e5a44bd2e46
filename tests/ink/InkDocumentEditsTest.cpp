// Each edit of a page: what is told of it, and how it goes back and comes again.
#include <gtest/gtest.h>

#include "ink/InkDocument.h"
#include "ink/InkFormat.h"
#include "ink/InkPageFixture.h"
#include "ink/InkSamples.h"

namespace quill {
namespace {

const InkPen kRed{.Color = 0xFFFF0000};
const InkPen kYellow{.Color = 0xFFFFFF00, .Diameter = 400, .Tip = InkTip::Highlighter};

class InkDocumentEdits : public test::InkPageFixture {};

TEST_F(InkDocumentEdits, AStrokeIsToldByItself) {
  Draw({5, 10});
  test::Told told(m_document);
  const InkStrokePtr stroke = Draw({5, 20}, kRed);
  EXPECT_EQ(told.Order, QStringLiteral("se"));
  EXPECT_EQ(told.Added, stroke);
  EXPECT_EQ(Note().Pens[stroke->Pen], kRed);
  EXPECT_EQ(m_document.InkBounds().bottom(), 20 * 32);
  Undo();
  EXPECT_EQ(told.Order, QStringLiteral("sece"));
  EXPECT_TRUE(told.Area.contains(stroke->Bounds));
  EXPECT_EQ(m_document.InkBounds().bottom(), 10 * 32);
  Redo();
  EXPECT_EQ(told.Order, QStringLiteral("secese"));
  EXPECT_EQ(Strokes().back(), stroke);
}

TEST_F(InkDocumentEdits, AStrokeWithoutPointsIsNone) {
  m_document.AddStroke({}, {});
  EXPECT_EQ(m_document.Steps().count(), 0);
}

TEST_F(InkDocumentEdits, StrokesOfOnePenShareIt) {
  Draw({5, 10}, kRed);
  Draw({5, 20}, kYellow);
  Draw({5, 30}, kRed);
  EXPECT_EQ(Note().Pens, (std::vector<InkPen>{kRed, kYellow}));
  EXPECT_EQ(Strokes()[2]->Pen, 0U);
}

TEST_F(InkDocumentEdits, ErasingNothingIsNoStep) {
  m_document.Erase({}, 1);
  EXPECT_EQ(m_document.Steps().count(), 0);
}

TEST_F(InkDocumentEdits, StrokesMoveAndComeBack) {
  const InkStrokePtr first = Draw({5, 10});
  const InkStrokePtr second = Draw({5, 20});
  test::Told told(m_document);
  const auto moved = m_document.Move({second}, {64, 320});
  ASSERT_EQ(moved.size(), 1U);
  EXPECT_EQ(Strokes(), (std::vector<InkStrokePtr>{first, moved[0]}));
  EXPECT_EQ(moved[0]->Bounds, second->Bounds.translated(64, 320));
  EXPECT_TRUE(told.Area.contains(second->Bounds.united(moved[0]->Bounds)));
  EXPECT_EQ(m_document.InkBounds().bottom(), 30 * 32);
  Undo();
  EXPECT_EQ(*Strokes()[1], *second);
  EXPECT_EQ(m_document.InkBounds().bottom(), 20 * 32);
}

TEST_F(InkDocumentEdits, StrokesMoveNoFartherThanThePageGoes) {
  const InkStrokePtr stroke = Draw({5, 10});
  EXPECT_EQ(m_document.Move({stroke}, {-9999, -9999})[0]->Bounds.topLeft(), QPoint(0, 0));
  const auto far = m_document.Move({Strokes()[0]}, {2000000000, 2000000000});
  EXPECT_EQ(far[0]->Bounds.bottomRight(), QPoint(kFarthestInk, kFarthestInk));
  EXPECT_EQ(m_document.Move({far[0]}, {1, 1}), far);
  EXPECT_EQ(StepCount(), 3);
}

TEST_F(InkDocumentEdits, NoWayIsNoMove) {
  const InkStrokePtr stroke = Draw({5, 10});
  EXPECT_EQ(m_document.Move({stroke}, {}), std::vector<InkStrokePtr>{stroke});
  EXPECT_EQ(StepCount(), 1);
}

TEST_F(InkDocumentEdits, StrokesAndTextAreDeletedAsOne) {
  Type(QStringLiteral("one two"));
  const InkStrokePtr first = Draw({5, 100});
  const InkStrokePtr second = Draw({5, 120});
  test::Told told(m_document);
  m_document.Delete({first}, 0, 4);
  EXPECT_EQ(Text(), QStringLiteral("two"));
  EXPECT_EQ(Strokes(), std::vector<InkStrokePtr>{second});
  EXPECT_EQ(told.Order.count(u'e'), 1);
  EXPECT_EQ(told.Caret, 0);
  Undo();
  EXPECT_EQ(Text(), QStringLiteral("one two"));
  EXPECT_EQ(Strokes(), (std::vector<InkStrokePtr>{first, second}));
  EXPECT_EQ(told.Caret, 4);
}

TEST_F(InkDocumentEdits, DeletedLinesTakeTheInkBelowUp) {
  Type(QStringLiteral("one\ntwo\nthree"));
  const InkStrokePtr gone = Draw({5, 40});
  Draw({5, 60});
  m_document.Delete({gone}, 0, 4);
  EXPECT_EQ(Tops(), std::vector<int>{36});
  Undo();
  EXPECT_EQ(Tops(), (std::vector<int>{40, 60}));
  Redo();
  EXPECT_EQ(Tops(), std::vector<int>{36});
}

TEST_F(InkDocumentEdits, PastedStrokesLieOnTopWithTheirPens) {
  const InkStrokePtr below = Draw({5, 10});
  const InkNote fragment{.Pens = {kYellow, kRed},
                         .Strokes = {SealInkStroke({.Pen = 1, .Points = {{.X = 9, .Y = 9}}}),
                                     SealInkStroke({.Pen = 7, .Points = {{.X = 1, .Y = 1}}})}};
  const auto pasted = m_document.Paste(fragment, {100, 200}, 0, 0);
  EXPECT_EQ(Strokes(), (std::vector<InkStrokePtr>{below, pasted[0], pasted[1]}));
  EXPECT_EQ(pasted[0]->Bounds, QRect(109, 209, 1, 1));
  EXPECT_EQ(Note().Pens[pasted[0]->Pen], kRed);
  EXPECT_EQ(Note().Pens[pasted[1]->Pen], InkPen{});
  Undo();
  EXPECT_EQ(Strokes(), std::vector<InkStrokePtr>{below});
}

TEST_F(InkDocumentEdits, PastedTextTakesThePlaceOfWhatIsSelected) {
  Type(QStringLiteral("one two"));
  InkNote fragment;
  fragment.Text.Text = QStringLiteral("three");
  EXPECT_TRUE(m_document.Paste(fragment, {}, 4, 7).empty());
  EXPECT_EQ(Text(), QStringLiteral("one three"));
  EXPECT_EQ(StepCount(), 2);
}

TEST_F(InkDocumentEdits, PastedInkStaysWhereItLandsWhileItsTextMovesOther) {
  Type(QStringLiteral("one\ntwo"));
  Draw({5, 60});
  InkNote fragment{.Strokes = {SealInkStroke({.Points = {{.X = 32, .Y = 70 * 32}}})}};
  fragment.Text.Text = QStringLiteral("a\nb");
  test::Told told(m_document);
  m_document.Paste(fragment, {}, 0, 0);
  EXPECT_EQ(Tops(), (std::vector<int>{84, 70}));
  EXPECT_FALSE(told.Order.contains(u's'));
  EXPECT_EQ(told.Order.count(u'e'), 1);
  Undo();
  EXPECT_EQ(Tops(), std::vector<int>{60});
  EXPECT_EQ(StepCount(), 2);
}

TEST_F(InkDocumentEdits, PastingNothingIsNoStep) {
  m_document.Paste({}, {5, 5}, 0, 0);
  EXPECT_EQ(m_document.Steps().count(), 0);
}

TEST_F(InkDocumentEdits, PastedInkStaysOnThePage) {
  const InkNote fragment{.Strokes = {SealInkStroke({.Points = {{.X = 32, .Y = 64}}})}};
  EXPECT_EQ(m_document.Paste(fragment, {-999, -999}, 0, 0)[0]->Bounds.topLeft(), QPoint(0, 0));
}

TEST_F(InkDocumentEdits, TypedTextIsToldWithItsCaret) {
  test::Told told(m_document);
  Type(QStringLiteral("one"));
  EXPECT_EQ(told.Order, QStringLiteral("cte"));
  EXPECT_EQ(told.Caret, 3);
  m_document.Type(1, 3, QStringLiteral("x"));
  EXPECT_EQ(told.Caret, 2);
  Undo();
  EXPECT_EQ(told.Caret, 0);
}

TEST_F(InkDocumentEdits, TypingNothingIsNoStep) {
  m_document.Type(0, 0, {});
  EXPECT_EQ(m_document.Steps().count(), 0);
  Type(QStringLiteral("one"));
  m_document.Type(2, 2, {});
  EXPECT_EQ(m_document.Steps().count(), 1);
}

TEST_F(InkDocumentEdits, WhatIsComposedIsNoPartOfThePage) {
  Type(QStringLiteral("one"));
  const QByteArray before = m_document.Data();
  test::Told told(m_document);
  m_document.SetPreedit({.Position = 3, .Text = QStringLiteral("xyz"), .Cursor = 3});
  EXPECT_EQ(told.Order, QStringLiteral("c"));
  EXPECT_TRUE(told.Area.contains(QRect(8 * 32, 0, 20 * 32, 24 * 32)));
  EXPECT_EQ(Text(), QStringLiteral("one"));
  EXPECT_EQ(m_document.Data(), before);
  EXPECT_EQ(StepCount(), 1);
  Undo();
  EXPECT_EQ(m_document.TextLayout().Preedit(), InkPreedit{});
}

TEST_F(InkDocumentEdits, LinesBrokenOnlyWhileComposingAreNotKept) {
  Type(QStringLiteral("one two three four five six\nlast"));
  const auto breaks = Note().Text.SoftBreaks;
  m_document.SetPreedit({.Position = 3, .Text = QString(100, u'x')});
  Type(QStringLiteral("!"));
  EXPECT_EQ(Note().Text.SoftBreaks, breaks);
}

TEST_F(InkDocumentEdits, AnotherPageTakesThePlaceAndGoesAgain) {
  Draw({5, 10}, kRed);
  test::Told told(m_document);
  const QRect before = Strokes()[0]->Bounds;
  m_document.Replace(test::SampleNote());
  EXPECT_EQ(told.Order, QStringLiteral("ce"));
  EXPECT_TRUE(told.Area.contains(before.united(m_document.InkBounds())));
  EXPECT_EQ(Text(), test::SampleNote().Text.Text);
  EXPECT_EQ(Note().Page.Width, test::SampleNote().Page.Width);
  EXPECT_EQ(Note().Pens[Strokes()[0]->Pen], test::SampleNote().Pens[0]);
  EXPECT_EQ(m_document.InkBounds(), Strokes()[0]->Bounds);
  EXPECT_EQ(m_document.TextLayout().LineOf(2), 0);
  Undo();
  EXPECT_EQ(m_document.InkBounds(), before);
  EXPECT_EQ(Note().Pens[Strokes()[0]->Pen], kRed);
}

TEST_F(InkDocumentEdits, PensOutliveThePageThatTheyCameWith) {
  Draw({5, 10}, kRed);
  m_document.Replace(test::SampleNote());
  Draw({5, 20}, kYellow);
  while (m_document.Steps().canUndo()) Undo();
  while (m_document.Steps().canRedo()) Redo();
  EXPECT_EQ(Note().Pens[Strokes()[0]->Pen], test::SampleNote().Pens[0]);
  EXPECT_EQ(Note().Pens[Strokes()[1]->Pen], kYellow);
}

}  // namespace
}  // namespace quill
