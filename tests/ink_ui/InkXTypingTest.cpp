// Typing on a page, with keys and with input methods.
#include <QClipboard>
#include <QGuiApplication>

#include "ink_ui/InkFixture.h"

namespace quill {
namespace {

using InkXTypingTest = test::InkFixture;

TEST_F(InkXTypingTest, AKeyboardTypesWhileThePenWrites) {
  Type(QStringLiteral("Kim\nLee"));
  EXPECT_EQ(Ink().Toggle(), kInkPenWrites);
  EXPECT_EQ(Text(), QStringLiteral("Kim\nLee"));
}

TEST_F(InkXTypingTest, KeysWithControlOrAltTypeNothing) {
  Key(Qt::Key_K, Qt::ControlModifier, QStringLiteral("\x0B"));
  Key(Qt::Key_K, Qt::AltModifier, QStringLiteral("k"));
  Key(Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t"));
  EXPECT_EQ(Text(), QString());
}

TEST_F(InkXTypingTest, ALetterOfTwoUnitsIsTypedWhole) {
  Key(0, Qt::NoModifier, QStringLiteral("😀"));
  EXPECT_EQ(Text(), QStringLiteral("😀"));
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Text(), QString());
}

TEST_F(InkXTypingTest, BackspaceAndDeleteTakeBesideTheCaret) {
  Type(QStringLiteral("Kim"));
  Key(Qt::Key_Left);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Text(), QStringLiteral("Km"));
  Key(Qt::Key_Delete);
  EXPECT_EQ(Text(), QStringLiteral("K"));
  Key(Qt::Key_Delete);
  EXPECT_EQ(Text(), QStringLiteral("K"));
}

TEST_F(InkXTypingTest, WordsAreTakenWithControl) {
  Type(QStringLiteral("one two three"));
  Key(Qt::Key_Backspace, Qt::ControlModifier);
  EXPECT_EQ(Text(), QStringLiteral("one two "));
  Key(Qt::Key_Home);
  Key(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(Text(), QStringLiteral("two "));
}

TEST_F(InkXTypingTest, TypingReplacesWhatIsSelected) {
  Type(QStringLiteral("one two"));
  Key(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(Ink().HasSelection());
  Type(QStringLiteral("2"));
  EXPECT_EQ(Text(), QStringLiteral("one 2"));
  EXPECT_FALSE(Ink().HasSelection());
}

TEST_F(InkXTypingTest, TheKeysOfEveryEditorWork) {
  Type(QStringLiteral("Kim"));
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Text(), QString());
  Key(Qt::Key_V, Qt::ControlModifier);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text(), QStringLiteral("KimKim"));
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(), QStringLiteral("Kim"));
  Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Text(), QStringLiteral("KimKim"));
}

TEST_F(InkXTypingTest, EscapeIsLeftToTheWindowOnlyWhenNothingWouldBeLost) {
  const auto isLeft = [this] {
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(m_ink, &escape);
    return !escape.isAccepted();
  };
  EXPECT_TRUE(isLeft());
  Type(QStringLiteral("Kim"));
  Ink().SelectAll();
  EXPECT_FALSE(isLeft());
  EXPECT_FALSE(Ink().HasSelection());
  EXPECT_FALSE(isLeft());
  Ink().Undo();
  EXPECT_TRUE(isLeft());
}

TEST_F(InkXTypingTest, EscapeTakesTheStrokeInTheAirBack) {
  Tablet(QEvent::TabletPress, {{20, 30}});
  Tablet(QEvent::TabletMove, {{60, 30}});
  Key(Qt::Key_Escape);
  Tablet(QEvent::TabletRelease, {{60, 30}, 0});
  EXPECT_TRUE(Note().Strokes.empty());
}

TEST_F(InkXTypingTest, UndoWithThePenDownEndsItsStrokeFirst) {
  Line({20, 60}, {60, 60});
  Tablet(QEvent::TabletPress, {{20, 30}});
  Tablet(QEvent::TabletMove, {{60, 30}});
  Key(Qt::Key_Z, Qt::ControlModifier);
  Tablet(QEvent::TabletRelease, {{60, 30}, 0});
  EXPECT_EQ(Note().Strokes.size(), 1u);
  Ink().Redo();
  EXPECT_EQ(Note().Strokes.size(), 2u);
}

TEST_F(InkXTypingTest, WhatIsHalfDoneIsOnThePageWhenInputEnds) {
  Tablet(QEvent::TabletPress, {{20, 30}});
  Tablet(QEvent::TabletMove, {{60, 30}});
  Ink().EndInput();
  EXPECT_EQ(Note().Strokes.size(), 1u);
  Tablet(QEvent::TabletMove, {{90, 30}});
  Tablet(QEvent::TabletRelease, {{90, 30}, 0});
  EXPECT_EQ(Note().Strokes.size(), 1u);
}

TEST_F(InkXTypingTest, WhatIsComposedIsShownAndIsNotText) {
  const QImage before = Shown();
  Input(QStringLiteral("김"), {});
  EXPECT_EQ(Text(), QString());
  EXPECT_NE(Shown(), before);
  EXPECT_FALSE(Ink().CanUndo());
  Input({}, {});
  EXPECT_EQ(Text(), QString());
}

TEST_F(InkXTypingTest, WhatWasComposedIsTypedAtTheCaret) {
  Type(QStringLiteral("AB"));
  Key(Qt::Key_Left);
  Input(QStringLiteral("ㄱ"), {});
  Input(QStringLiteral("기"), {});
  Input({}, QStringLiteral("김"));
  Input(QStringLiteral("ㅊ"), QStringLiteral("씨"));
  EXPECT_EQ(Text(), QStringLiteral("A김씨B"));
}

TEST_F(InkXTypingTest, AnInputMethodSeesTheTextAndTheCaret) {
  Type(QStringLiteral("Kim Lee"));
  Key(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(Ink().inputMethodQuery(Qt::ImEnabled).toBool());
  EXPECT_EQ(Ink().inputMethodQuery(Qt::ImSurroundingText).toString(), QStringLiteral("Kim Lee"));
  EXPECT_EQ(Ink().inputMethodQuery(Qt::ImCursorPosition).toInt(), 4);
  EXPECT_EQ(Ink().inputMethodQuery(Qt::ImAnchorPosition).toInt(), 7);
  EXPECT_EQ(Ink().inputMethodQuery(Qt::ImCurrentSelection).toString(), QStringLiteral("Lee"));
  EXPECT_FALSE(Ink().inputMethodQuery(Qt::ImCursorRectangle).toRectF().isEmpty());
}

TEST_F(InkXTypingTest, AnInputMethodMayReplaceWhatStandsBeforeTheCaret) {
  Type(QStringLiteral("teh"));
  QInputMethodEvent event;
  event.setCommitString(QStringLiteral("the"), -3, 3);
  QCoreApplication::sendEvent(m_ink, &event);
  EXPECT_EQ(Text(), QStringLiteral("the"));
}

TEST_F(InkXTypingTest, TheViewFollowsTheCaret) {
  for (int i = 0; i < 20; ++i) Key(Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
  EXPECT_GT(Bar(Qt::Vertical).value(), 0);
  Key(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_LE(Bar(Qt::Vertical).value(), 3);
}

TEST_F(InkXTypingTest, WithoutTextTheArrowsScroll) {
  Line({20, 30}, {20, 400});
  Key(Qt::Key_Down);
  EXPECT_EQ(Bar(Qt::Vertical).value(), 24);
  Key(Qt::Key_Up);
  EXPECT_EQ(Bar(Qt::Vertical).value(), 0);
  Key(Qt::Key_PageDown);
  EXPECT_GT(Bar(Qt::Vertical).value(), 100);
}

}  // namespace
}  // namespace quill
