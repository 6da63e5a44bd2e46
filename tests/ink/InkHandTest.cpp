#include "ink/InkHand.h"

#include <gtest/gtest.h>

#include "ink/InkHandFixture.h"

namespace quill {
namespace {

using D = InkDevice;
using P = InkPhase;

class InkHandTest : public test::InkHandFixture {};

TEST_F(InkHandTest, APenWritesAStroke) {
  Take(D::Pen, P::Press, {10, 20});
  EXPECT_TRUE(m_hand.IsDown());
  EXPECT_TRUE(m_canvas.HasStroke());
  Take(D::Pen, P::Move, {30, 20});
  EXPECT_TRUE(Strokes().empty());
  EXPECT_TRUE(m_shown.contains(QRect(10, 20, 20, 1)));
  Take(D::Pen, P::Release, {30, 20});
  ASSERT_EQ(Strokes().size(), 1U);
  EXPECT_EQ(Strokes()[0]->Points.size(), 2U);
  EXPECT_EQ(Strokes()[0]->Bounds, QRect(QPoint(320, 640), QPoint(960, 640)));
  EXPECT_EQ(Strokes()[0]->Parts, InkCapture::PartsOf(D::Pen));
  EXPECT_EQ(Strokes()[0]->Start, m_clock.Now().toMSecsSinceEpoch());
  EXPECT_FALSE(m_hand.IsDown());
  EXPECT_FALSE(m_canvas.HasStroke());
  EXPECT_EQ(m_wrote, std::vector<QPointF>{QPointF(30, 20)});
  EXPECT_EQ(m_hand.LastPlace(), QPointF(30, 20));
}

TEST_F(InkHandTest, WritesWhereThePageIsShown) {
  Draw({10, 1000});
  m_canvas.SetZoom(200, {0, 0});
  m_canvas.FollowExtent();
  m_canvas.ScrollTo({0, 100});
  Drag(D::Mouse, {{20, 40}, {40, 40}});
  EXPECT_EQ(Strokes().back()->Bounds.topLeft(), QPoint(10, 70) * kInkUnitsPerPixel);
  EXPECT_EQ(Strokes().back()->Parts, InkCapture::PartsOf(D::Mouse));
}

TEST_F(InkHandTest, AStrokeEndsAtThePagesEdgeUnlessThePageIsEndless) {
  m_canvas.SetZoom(50, {0, 0});
  Drag(D::Pen, {{100, 20}, {140, 20}});
  EXPECT_EQ(Strokes().back()->Bounds.right(), 240 * kInkUnitsPerPixel);
  m_canvas.SetPaper({.IsEndless = true});
  Drag(D::Pen, {{100, 20}, {140, 20}});
  EXPECT_EQ(Strokes().back()->Bounds.right(), 280 * kInkUnitsPerPixel);
}

TEST_F(InkHandTest, AStrokeThatLeavesThePageAndComesBackIsTwo) {
  m_canvas.SetZoom(50, {0, 0});
  Drag(D::Pen, {{100, 20}, {140, 20}, {100, 40}});
  EXPECT_EQ(Strokes().size(), 2U);
  EXPECT_EQ(m_wrote.size(), 1U);
}

TEST_F(InkHandTest, APressOffThePageIsNothing) {
  m_canvas.SetZoom(50, {0, 0});
  Take(D::Pen, P::Press, {200, 20});
  EXPECT_FALSE(m_hand.IsDown());
  EXPECT_TRUE(m_wrote.empty());
}

TEST_F(InkHandTest, APenThatTellsNoPressureAtFirstBeginsWithItsFirst) {
  Take(D::Pen, P::Press, {10, 20}, 0);
  EXPECT_FALSE(m_hand.IsDown());
  Take(D::Pen, P::Move, {12, 20}, 0);
  Take(D::Pen, P::Move, {14, 20}, 0.2);
  Take(D::Pen, P::Release, {30, 20}, 0);
  ASSERT_EQ(Strokes().size(), 1U);
  EXPECT_EQ(Strokes()[0]->Bounds.left(), 14 * kInkUnitsPerPixel);
}

class InkHandGivesUp : public InkHandTest, public testing::WithParamInterface<InkPhase> {};

TEST_P(InkHandGivesUp, WaitingForPressure) {
  Take(D::Pen, P::Press, {10, 20}, 0);
  Take(D::Pen, GetParam(), {12, 20}, 0);
  Take(D::Pen, P::Move, {14, 20}, 0.2);
  EXPECT_FALSE(m_hand.IsDown());
}

INSTANTIATE_TEST_SUITE_P(Phases, InkHandGivesUp, testing::Values(P::Release, P::Hover));

TEST_F(InkHandTest, WaitingForAPensPressureIsNoneForAFinger) {
  Take(D::Pen, P::Press, {10, 20}, 0);
  Take(D::Finger, P::Move, {50, 50});
  EXPECT_FALSE(m_hand.IsDown());
  Take(D::Finger, P::Release, {50, 50});
  Take(D::Pen, P::Move, {14, 20}, 0.2);
  EXPECT_TRUE(m_hand.IsDown());
}

TEST_F(InkHandTest, WritingSelectsNothingAndShowsThat) {
  m_selection.SelectStrokes({Draw({10, 10})});
  Take(D::Pen, P::Press, {10, 20});
  EXPECT_TRUE(m_selection.IsEmpty());
  EXPECT_EQ(m_allShown, 1);
  Take(D::Pen, P::Press, {10, 40});
  EXPECT_EQ(m_allShown, 1);
}

TEST_F(InkHandTest, ACancelledStrokeIsGone) {
  Take(D::Pen, P::Press, {10, 20});
  Take(D::Pen, P::Move, {30, 20});
  m_shown = {};
  m_hand.Cancel();
  EXPECT_TRUE(m_shown.contains(QRect(10, 20, 20, 1)));
  EXPECT_FALSE(m_hand.IsDown());
  EXPECT_FALSE(m_canvas.HasStroke());
  Take(D::Pen, P::Move, {40, 20});
  Take(D::Pen, P::Release, {40, 20});
  EXPECT_TRUE(Strokes().empty());
}

TEST_F(InkHandTest, AnotherTaskEndsWhatIsHalfDone) {
  Take(D::Pen, P::Press, {10, 20});
  m_hand.SetTask(InkTask::Select);
  EXPECT_FALSE(m_hand.IsDown());
  EXPECT_TRUE(Strokes().empty());
}

TEST_F(InkHandTest, AStrokeThatIsFinishedIsWritten) {
  Take(D::Pen, P::Press, {10, 20});
  Take(D::Pen, P::Move, {30, 20});
  m_hand.Finish();
  EXPECT_EQ(Strokes().size(), 1U);
  EXPECT_FALSE(m_hand.IsDown());
  m_hand.SetTask(InkTask::Select);
  Take(D::Mouse, P::Press, {10, 20});
  m_hand.Finish();
  EXPECT_FALSE(m_hand.IsDown());
}

TEST_F(InkHandTest, OnlyAFingersGestureIsTakenBackForAPen) {
  Take(D::Finger, P::Press, {10, 20});
  m_hand.CancelFinger();
  EXPECT_FALSE(m_hand.IsDown());
  Take(D::Pen, P::Press, {10, 20});
  m_hand.CancelFinger();
  EXPECT_TRUE(m_hand.IsDown());
}

TEST_F(InkHandTest, APlaceIsForgotten) {
  EXPECT_FALSE(m_hand.LastPlace());
  Drag(D::Pen, {{10, 20}});
  m_hand.ForgetPlace();
  EXPECT_FALSE(m_hand.LastPlace());
}

TEST_F(InkHandTest, NoFingerDoesAnythingWhileAPenIsDown) {
  for (const InkTask task : {InkTask::Write, InkTask::Select, InkTask::Scroll}) {
    m_hand.SetTask(task);
    Take(D::Pen, P::Press, {10, 20});
    Take(D::Finger, P::Press, {90, 90});
    Take(D::Finger, P::Move, {95, 95});
    Take(D::Finger, P::Release, {95, 95});
    EXPECT_TRUE(m_hand.IsDown());
    Take(D::Pen, P::Release, {10, 20});
    EXPECT_FALSE(m_hand.IsDown());
  }
  ASSERT_EQ(Strokes().size(), 1U);
  EXPECT_EQ(Strokes()[0]->Points.size(), 1U);
}

TEST_F(InkHandTest, APenGoesBeforeAFinger) {
  Take(D::Finger, P::Press, {10, 20});
  Take(D::Pen, P::Press, {90, 90});
  Take(D::Finger, P::Move, {20, 20});
  Take(D::Pen, P::Release, {90, 90});
  ASSERT_EQ(Strokes().size(), 2U);
  EXPECT_EQ(Strokes()[0]->Points.size(), 1U);
  EXPECT_EQ(Strokes()[1]->Points.size(), 1U);
}

TEST_F(InkHandTest, APressWhileDownEndsTheGestureBefore) {
  m_hand.SetTask(InkTask::Select);
  Draw({50, 50});
  Take(D::Mouse, P::Press, {40, 40});
  Take(D::Mouse, P::Move, {80, 60});
  Take(D::Mouse, P::Press, {150, 150});
  EXPECT_EQ(m_hand.Lasso().size(), 1);
  EXPECT_EQ(m_selection.Strokes().size(), 1U);
}

TEST_F(InkHandTest, TheEraserEndsAStrokeThatWasNeverLifted) {
  Take(D::Pen, P::Press, {10, 20});
  Take(D::Eraser, P::Press, {100, 100});
  EXPECT_EQ(Strokes().size(), 1U);
  EXPECT_TRUE(m_hand.IsDown());
  EXPECT_FALSE(m_canvas.HasStroke());
}

TEST_F(InkHandTest, MovesWithoutPressureAreNoDrag) {
  m_hand.SetTask(InkTask::Scroll);
  Take(D::Pen, P::Press, {10, 20});
  Take(D::Pen, P::Move, {50, 50}, 0);
  EXPECT_TRUE(m_scrolls.empty());
}

TEST_F(InkHandTest, TheEraserTakesWhatItTouchesInOneStep) {
  for (const int top : {20, 40, 60, 90}) Draw({20, top});
  Take(D::Eraser, P::Press, {25, 20});
  EXPECT_EQ(Strokes().size(), 3U);
  Take(D::Eraser, P::Move, {25, 70});
  Take(D::Eraser, P::Release, {25, 70});
  EXPECT_EQ(Tops(), std::vector<int>{90});
  EXPECT_EQ(StepCount(), 5);
  EXPECT_EQ(m_hand.LastPlace(), QPointF(25, 20));
  Undo();
  EXPECT_EQ(Strokes().size(), 4U);
}

TEST_F(InkHandTest, EachGestureOfTheEraserIsAStep) {
  Draw({20, 20});
  Draw({20, 60});
  Drag(D::Eraser, {{25, 20}});
  Drag(D::Eraser, {{25, 60}});
  EXPECT_EQ(StepCount(), 4);
}

TEST_F(InkHandTest, TheEraserIsAsLargeOnTheScreenAtAnyZoom) {
  const auto reaches = [this](int zoom, qreal pixels) {
    m_canvas.SetZoom(zoom, {0, 0});
    Draw({50, 50});
    const QPointF at = m_canvas.View().WindowFromPage(QPointF(55, 50)) + QPointF(0, pixels);
    Drag(D::Eraser, {at});
    const bool erased = Strokes().empty();
    if (!erased) m_document.Delete(Strokes(), 0, 0);
    return erased;
  };
  for (const int zoom : {100, 200}) {
    EXPECT_TRUE(reaches(zoom, 5));
    EXPECT_FALSE(reaches(zoom, 9));
  }
}

TEST_F(InkHandTest, TheEraserErasesWhateverTheTask) {
  m_hand.SetTask(InkTask::Select);
  Draw({20, 20});
  Drag(D::Eraser, {{25, 20}});
  EXPECT_TRUE(Strokes().empty());
  EXPECT_TRUE(m_hand.Lasso().isEmpty());
}

TEST_F(InkHandTest, AReadersDragScrolls) {
  m_hand.SetTask(InkTask::Scroll);
  Draw({10, 1000});
  m_canvas.FollowExtent();
  m_canvas.ScrollTo({0, 100});
  Drag(D::Finger, {{100, 100}, {90, 60}});
  EXPECT_EQ(m_scrolls, (std::vector<QPoint>{{0, 100}, {10, 140}}));
  EXPECT_EQ(Strokes().size(), 1U);
  EXPECT_FALSE(m_hand.LastPlace());
}

TEST_F(InkHandTest, ADragScrollsDevicePixels) {
  m_hand.SetTask(InkTask::Scroll);
  m_canvas.SetWindow({240, 200}, {0, 0}, 1.5);
  Drag(D::Mouse, {{100, 100}, {90, 60}});
  EXPECT_EQ(m_scrolls.back(), QPoint(15, 60));
}

class InkHandLocked : public InkHandTest, public testing::WithParamInterface<InkTask> {};

TEST_P(InkHandLocked, OnlyScrolls) {
  m_document.SetData("something else");
  m_hand.SetTask(GetParam());
  Drag(D::Pen, {{100, 100}, {90, 60}});
  Drag(D::Eraser, {{100, 100}, {90, 60}});
  EXPECT_EQ(m_scrolls.size(), 4U);
  EXPECT_TRUE(Note().IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Tasks, InkHandLocked,
                         testing::Values(InkTask::Write, InkTask::Select, InkTask::Scroll));

}  // namespace
}  // namespace quill
