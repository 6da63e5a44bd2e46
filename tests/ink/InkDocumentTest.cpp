#include "ink/InkDocument.h"

#include <gtest/gtest.h>

#include "ink/InkFormat.h"
#include "ink/InkPageFixture.h"
#include "ink/InkSamples.h"

namespace quill {
namespace {

const InkPen kRed{.Color = 0xFFFF0000};
const InkPen kYellow{.Color = 0xFFFFFF00, .Diameter = 400, .Tip = InkTip::Highlighter};

QByteArray Foreign() { return QByteArrayLiteral("\xFF\xD8 a picture of a cat"); }

QByteArray Newer() {
  auto pieces = test::PiecesOf(test::SampleNoteBytes());
  pieces.insert(pieces.begin() + 1, test::Piece{"NEED", "x"});
  return test::Joined(pieces);
}

QByteArray Damaged() { return test::SampleNoteBytes().chopped(20); }

// Cut so near its beginning that nothing of its page is there.
QByteArray Lost() { return test::SampleNoteBytes().first(20); }

class InkDocumentTest : public test::InkPageFixture {};

class InkDocumentBytes : public InkDocumentTest, public testing::WithParamInterface<QByteArray> {};

TEST_P(InkDocumentBytes, ComeOutAsTheyWentIn) {
  m_document.SetData(GetParam());
  EXPECT_EQ(m_document.Data(), GetParam());
  m_document.SetNewPageWidth(20000);
  EXPECT_EQ(m_document.Data(), GetParam());
}

TEST_P(InkDocumentBytes, ComeBackWhenAllIsUndone) {
  m_document.SetData(GetParam());
  m_document.ClearAll();
  Draw({5, 10});
  Type(QStringLiteral("typed"));
  EXPECT_NE(m_document.Data(), GetParam());
  while (m_document.Steps().canUndo()) Undo();
  EXPECT_EQ(m_document.Data(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Kinds, InkDocumentBytes,
                         testing::Values(QByteArray(), test::SampleNoteBytes(), Foreign(), Newer(),
                                         Damaged(), Lost()));

TEST_F(InkDocumentTest, APageFromWhichAllWasDeletedIsNoBytes) {
  m_document.SetData(test::SampleNoteBytes());
  m_document.Delete(Strokes(), 0, static_cast<int>(Text().size()));
  EXPECT_TRUE(Note().IsEmpty());
  EXPECT_EQ(m_document.Data(), QByteArray());
}

TEST_F(InkDocumentTest, WhatIsWrittenIsReadAgain) {
  Draw({5, 10}, kYellow);
  Draw({5, 20}, kRed);
  Type(QStringLiteral("typed\ntext"));
  const InkContent content = ReadInk(m_document.Data());
  EXPECT_EQ(content.Reading, InkReading::Whole);
  InkNote expected = Note();
  expected.Page.ContentHeight = content.Note.Page.ContentHeight;
  EXPECT_TRUE(test::SameInk(content.Note, expected));
}

TEST_F(InkDocumentTest, TheBytesSayHowFarDownThePageGoes) {
  Draw({5, 100});
  EXPECT_EQ(ReadInk(m_document.Data()).Note.Page.ContentHeight, 100U * 32 + 1);
  Type(QStringLiteral("a\na\na\na\na\na"));
  EXPECT_NEAR(ReadInk(m_document.Data()).Note.Page.ContentHeight, 6 * 24 * 32, 1);
}

TEST_F(InkDocumentTest, SettingForgetsTheSteps) {
  Draw({5, 10});
  m_document.SetData(test::SampleNoteBytes());
  EXPECT_EQ(m_document.Steps().count(), 0);
  EXPECT_EQ(Strokes().size(), 1U);
  EXPECT_EQ(m_document.InkBounds(), Strokes()[0]->Bounds);
}

TEST_F(InkDocumentTest, SettingTellsOfTheWholePage) {
  m_document.SetData(test::SampleNoteBytes());
  const QRect area = m_document.InkBounds();
  m_document.SetData({});
  test::Told told(m_document);
  m_document.SetData(test::SampleNoteBytes());
  EXPECT_EQ(told.Order.back(), u't');
  EXPECT_TRUE(told.Area.contains(area));
  EXPECT_EQ(told.Caret, 2);
}

TEST_F(InkDocumentTest, OneStepMoreThanAThousandLosesTheFirst) {
  m_document.SetData(test::SampleNoteBytes());
  for (int i = 0; i < 1000; ++i) Draw({5, 10});
  EXPECT_EQ(m_document.Steps().count(), 1000);
  Draw({5, 10});
  EXPECT_EQ(m_document.Steps().count(), 1000);
  while (m_document.Steps().canUndo()) Undo();
  EXPECT_EQ(Strokes().size(), 2U);
  EXPECT_NE(m_document.Data(), test::SampleNoteBytes());
}

TEST_F(InkDocumentTest, ANoteThatWasReadHasNoNotice) {
  m_document.SetData(test::SampleNoteBytes());
  EXPECT_EQ(m_document.Notice(), InkNotice::None);
  EXPECT_FALSE(m_document.IsLocked());
}

TEST_F(InkDocumentTest, AForeignNoteShowsNothing) {
  m_document.SetData(Foreign());
  EXPECT_EQ(m_document.Notice(), InkNotice::Foreign);
  EXPECT_TRUE(m_document.IsLocked());
  EXPECT_TRUE(Note().IsEmpty());
}

TEST_F(InkDocumentTest, ADamagedNoteOfWhichNothingIsLeftIsLost) {
  m_document.SetData(Lost());
  EXPECT_EQ(m_document.Notice(), InkNotice::Lost);
  EXPECT_TRUE(Note().IsEmpty());
}

TEST_F(InkDocumentTest, ANewerNoteShowsWhatIsUnderstood) {
  m_document.SetData(Newer());
  EXPECT_EQ(m_document.Notice(), InkNotice::Newer);
  EXPECT_TRUE(m_document.IsLocked());
  EXPECT_EQ(Strokes().size(), 1U);
}

TEST_F(InkDocumentTest, ADamagedNoteKeepsItsNoticeAndIsWrittenAnewOnceEdited) {
  m_document.SetData(Damaged());
  EXPECT_EQ(m_document.Notice(), InkNotice::Damaged);
  EXPECT_FALSE(m_document.IsLocked());
  Draw({5, 10});
  EXPECT_EQ(m_document.Notice(), InkNotice::Damaged);
  EXPECT_EQ(ReadInk(m_document.Data()).Reading, InkReading::Whole);
}

class InkDocumentLocked : public InkDocumentBytes {};

TEST_P(InkDocumentLocked, RefusesEveryEditButToClearAll) {
  m_document.SetData(GetParam());
  const std::vector<InkStrokePtr> strokes = Strokes();
  const QString text = Text();
  test::Told told(m_document);
  m_document.AddStroke(StrokeThrough({{1, 1}}), {});
  m_document.Erase(strokes, 1);
  EXPECT_EQ(m_document.Move(strokes, {64, 64}), strokes);
  m_document.Delete(strokes, 0, static_cast<int>(text.size()));
  EXPECT_TRUE(m_document.Paste(test::SampleNote(), {}, 0, 0).empty());
  m_document.Type(0, 0, QStringLiteral("x"));
  m_document.SetPreedit({.Text = QStringLiteral("x")});
  EXPECT_EQ(told.Order, QString());
  EXPECT_EQ(m_document.Steps().count(), 0);
  EXPECT_EQ(Text(), text);
  EXPECT_EQ(m_document.TextLayout().Preedit(), InkPreedit{});
  m_document.ClearAll();
  EXPECT_EQ(m_document.Data(), QByteArray());
  EXPECT_FALSE(m_document.IsLocked());
  EXPECT_EQ(m_document.Notice(), InkNotice::None);
  Undo();
  EXPECT_TRUE(m_document.IsLocked());
  EXPECT_EQ(m_document.Data(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Kinds, InkDocumentLocked, testing::Values(Lost(), Foreign(), Newer()));

TEST_F(InkDocumentTest, AnEmptyPageIsAsWideAsItsWindow) {
  test::Told told(m_document);
  m_document.SetNewPageWidth(300 * 32);
  EXPECT_EQ(told.Order, QStringLiteral("c"));
  EXPECT_EQ(Note().Page.Width, 300U * 32);
  EXPECT_EQ(Note().Text.WrapWidth, 284U * 32);
  m_document.SetNewPageWidth(10);
  EXPECT_EQ(Note().Page.Width, 240U * 32);
  m_document.SetNewPageWidth(400 * 32);
  m_document.SetData({});
  EXPECT_EQ(Note().Page.Width, 400U * 32);
}

TEST_F(InkDocumentTest, TheFirstContentFixesTheWidth) {
  m_document.SetNewPageWidth(300 * 32);
  Draw({5, 10});
  m_document.SetNewPageWidth(400 * 32);
  EXPECT_EQ(Note().Page.Width, 300U * 32);
  m_document.Delete(Strokes(), 0, 0);
  m_document.SetNewPageWidth(500 * 32);
  Type(QStringLiteral("a"));
  EXPECT_EQ(Note().Page.Width, 300U * 32);
  EXPECT_EQ(Note().Text.WrapWidth, 284U * 32);
}

TEST_F(InkDocumentTest, APageThatWasSetKeepsItsWidth) {
  m_document.SetNewPageWidth(300 * 32);
  m_document.SetData(test::SampleNoteBytes());
  EXPECT_EQ(Note().Page.Width, 240U * 32);
  m_document.ClearAll();
  Type(QStringLiteral("a"));
  EXPECT_EQ(Note().Page.Width, 240U * 32);
}

TEST_F(InkDocumentTest, TextIsWrappedAsBeforeOnceAllIsCleared) {
  m_document.SetNewPageWidth(300 * 32);
  Type(QStringLiteral("a"));
  m_document.ClearAll();
  EXPECT_TRUE(Note().IsEmpty());
  EXPECT_TRUE(Note().Text.Runs.empty());
  EXPECT_EQ(Note().Text.WrapWidth, 284U * 32);
}

class InkDocumentBeginning : public InkDocumentTest, public testing::WithParamInterface<int> {};

TEST_P(InkDocumentBeginning, DatesThePage) {
  const auto begin = [this] {
    if (GetParam() == 0) Draw({5, 10});
    if (GetParam() == 1) Type(QStringLiteral("a"));
    if (GetParam() == 2) m_document.Paste(test::SampleNote(), {}, 0, 0);
  };
  const auto now = static_cast<quint64>(m_clock.Now().toMSecsSinceEpoch());
  begin();
  EXPECT_EQ(Note().Page.Created, now);
  Pass(5000);
  begin();
  EXPECT_EQ(Note().Page.Created, now);
}

INSTANTIATE_TEST_SUITE_P(Ways, InkDocumentBeginning, testing::Range(0, 3));

}  // namespace
}  // namespace quill
