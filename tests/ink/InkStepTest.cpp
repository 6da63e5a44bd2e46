#include "ink/InkStep.h"

#include <gtest/gtest.h>

#include "ink/InkPageFixture.h"

namespace quill {
namespace {

class InkStepTest : public test::InkPageFixture {
 protected:
  int NextGesture() { return ++m_gesture; }

  int m_gesture = 0;
};

TEST_F(InkStepTest, TypingGoesOnWithinASecond) {
  Type(QStringLiteral("a"));
  Pass(1000);
  Type(QStringLiteral("b"));
  Pass(1000);
  Type(QStringLiteral("c"));
  EXPECT_EQ(StepCount(), 1);
  Pass(1001);
  Type(QStringLiteral("d"));
  EXPECT_EQ(StepCount(), 2);
  Undo();
  EXPECT_EQ(Text(), QStringLiteral("abc"));
  Undo();
  EXPECT_EQ(Text(), QString());
  Redo();
  EXPECT_EQ(Text(), QStringLiteral("abc"));
}

TEST_F(InkStepTest, TypingDoesNotGoOnOverAStroke) {
  Type(QStringLiteral("a"));
  Draw({5, 100});
  Type(QStringLiteral("b"));
  EXPECT_EQ(StepCount(), 3);
  Undo();
  EXPECT_EQ(Text(), QStringLiteral("a"));
  EXPECT_EQ(Strokes().size(), 1U);
}

TEST_F(InkStepTest, TypingAtAnotherPlaceIsAnotherStep) {
  Type(QStringLiteral("one two"));
  Pass(2000);
  m_document.Type(3, 3, QStringLiteral("x"));
  m_document.Type(0, 1, QStringLiteral("yz"));
  EXPECT_EQ(Text(), QStringLiteral("yznex two"));
  EXPECT_EQ(StepCount(), 3);
  Undo();
  EXPECT_EQ(Text(), QStringLiteral("onex two"));
}

TEST_F(InkStepTest, WhatWasTypedAndTakenBackAtOnceIsNoStep) {
  Type(QStringLiteral("a"));
  m_document.Type(0, 1, {});
  EXPECT_EQ(StepCount(), 0);
  EXPECT_TRUE(m_document.Steps().isClean());
}

TEST_F(InkStepTest, TypingOnAfterLinesMovedKeepsBoth) {
  Type(QStringLiteral("one\ntwo"));
  Draw({5, 60});
  m_document.Type(3, 3, QStringLiteral("\n"));
  m_document.Type(4, 4, QStringLiteral("x"));
  EXPECT_EQ(StepCount(), 3);
  EXPECT_EQ(Tops(), std::vector<int>{84});
  Undo();
  EXPECT_EQ(Tops(), std::vector<int>{60});
  EXPECT_EQ(Text(), QStringLiteral("one\ntwo"));
}

TEST_F(InkStepTest, ErasingOfOneGestureIsOneStep) {
  for (const int top : {10, 20, 30, 40}) Draw({5, top});
  const std::vector<InkStrokePtr> all = Strokes();
  const int first = NextGesture();
  m_document.Erase({all[1]}, first);
  Pass(60000);
  m_document.Erase({all[3], all[0]}, first);
  m_document.Erase({all[2]}, NextGesture());
  EXPECT_EQ(StepCount(), 6);
  Undo();
  EXPECT_EQ(Strokes(), (std::vector<InkStrokePtr>{all[2]}));
  Undo();
  EXPECT_EQ(Strokes(), all);
  Redo();
  EXPECT_EQ(Strokes(), (std::vector<InkStrokePtr>{all[2]}));
}

TEST_F(InkStepTest, ErasingDoesNotGoOnOverAnotherStep) {
  const InkStrokePtr first = Draw({5, 10});
  const InkStrokePtr second = Draw({5, 20});
  m_document.Erase({first}, 1);
  m_document.Move({second}, {0, 64});
  m_document.Erase({Strokes().front()}, 1);
  EXPECT_EQ(StepCount(), 5);
}

TEST_F(InkStepTest, NothingElseIsMerged) {
  Draw({5, 10});
  Draw({5, 20});
  m_document.Move({Strokes()[0]}, {64, 0});
  m_document.Move({Strokes()[0]}, {64, 0});
  m_document.Delete({Strokes()[0]}, 0, 0);
  m_document.Delete({Strokes()[0]}, 0, 0);
  EXPECT_EQ(StepCount(), 6);
}

TEST_F(InkStepTest, TypingBehindAnUndoneStepIsOneOfItsOwn) {
  Type(QStringLiteral("a"));
  Undo();
  Type(QStringLiteral("b"));
  EXPECT_EQ(StepCount(), 1);
  EXPECT_EQ(m_document.Steps().count(), 1);
  Undo();
  EXPECT_EQ(Text(), QString());
}

}  // namespace
}  // namespace quill
