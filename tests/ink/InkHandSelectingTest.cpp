// What a drag selects, and how what is selected is moved.
#include <gtest/gtest.h>

#include "ink/InkHandFixture.h"

namespace quill {
namespace {

using D = InkDevice;
using P = InkPhase;

class InkHandOnInkAlone : public test::InkHandFixture {};

class InkHandSelecting : public test::InkHandFixture {
 protected:
  InkHandSelecting() {
    Type(QStringLiteral("one two\nthree"));
    m_first = Draw({50, 100});
    m_second = Draw({50, 150});
    m_hand.SetTask(InkTask::Select);
  }

  InkStrokePtr m_first;
  InkStrokePtr m_second;
};

TEST_F(InkHandSelecting, ADragTakesInTheInkOfARectangle) {
  Drag(D::Mouse, {{45, 95}, {70, 105}});
  EXPECT_EQ(m_selection.Strokes(), std::vector<InkStrokePtr>{m_first});
  EXPECT_EQ(m_selection.TextFrom(), m_selection.TextTo());
  EXPECT_GT(m_allShown, 0);
}

TEST_F(InkHandSelecting, ALoopTakesInWhatItSurrounds) {
  Drag(D::Pen, {{45, 145}, {75, 145}, {75, 155}, {45, 155}, {45, 147}});
  EXPECT_EQ(m_selection.Strokes(), std::vector<InkStrokePtr>{m_second});
}

TEST_F(InkHandSelecting, ADragOverTextSelectsItAsReadersDo) {
  const InkTextLayout& layout = m_document.TextLayout();
  Take(D::Mouse, P::Press, layout.Caret(4).center());
  Take(D::Mouse, P::Move, layout.Caret(10).center());
  EXPECT_EQ(m_selection.TextFrom(), 4);
  EXPECT_EQ(m_selection.TextTo(), 10);
  EXPECT_EQ(m_selection.Caret(), 10);
  EXPECT_EQ(m_hand.Lasso().size(), 2);
  EXPECT_EQ(m_hand.Dragged(), QPointF());
  Take(D::Mouse, P::Release, layout.Caret(10).center());
  EXPECT_TRUE(m_hand.Lasso().isEmpty());
}

TEST_F(InkHandSelecting, ATapSetsTheCaret) {
  m_selection.SelectStrokes({m_first});
  Tap(m_document.TextLayout().Caret(5).center());
  EXPECT_EQ(m_selection.Caret(), 5);
  EXPECT_TRUE(m_selection.IsEmpty());
  EXPECT_EQ(m_hand.LastPlace(), m_document.TextLayout().Caret(5).center());
}

TEST_F(InkHandSelecting, ATapMayTrembleAsLongAsItLikes) {
  const QPointF at = m_document.TextLayout().Caret(5).center();
  std::vector<QPointF> way;
  for (int i = 0; i < 40; ++i) way.push_back(at + QPointF(i % 3, i % 2));
  Drag(D::Pen, way);
  EXPECT_EQ(m_selection.Caret(), 5);
  EXPECT_TRUE(m_selection.IsEmpty());
}

TEST_F(InkHandSelecting, ADragThatEndsWhereItBeganIsNoTap) {
  Drag(D::Pen, {{45, 95}, {70, 95}, {70, 105}, {45, 105}, {45, 95}});
  EXPECT_EQ(m_selection.Strokes(), std::vector<InkStrokePtr>{m_first});
}

TEST_F(InkHandSelecting, ATapIsAsSmallOnTheScreenAtAnyZoom) {
  m_canvas.SetZoom(300, {0, 0});
  Drag(D::Mouse, {{150, 30}, {153, 30}, {150, 30}});
  EXPECT_TRUE(m_selection.IsEmpty());
  m_canvas.SetZoom(25, {0, 0});
  Drag(D::Mouse, {{10, 24}, {18, 28}});
  EXPECT_EQ(m_selection.Strokes(), std::vector<InkStrokePtr>{m_first});
}

TEST_F(InkHandSelecting, WhatIsSelectedIsDraggedAndStaysSelected) {
  m_selection.SelectStrokes({m_first});
  Take(D::Mouse, P::Press, {55, 100});
  Take(D::Mouse, P::Move, {65, 105});
  EXPECT_EQ(m_hand.Dragged(), QPointF(10, 5));
  EXPECT_TRUE(m_hand.Lasso().isEmpty());
  EXPECT_EQ(Tops(), (std::vector<int>{100, 150}));
  Take(D::Mouse, P::Release, {65, 105});
  EXPECT_EQ(m_hand.Dragged(), QPointF());
  EXPECT_EQ(Tops(), (std::vector<int>{105, 150}));
  EXPECT_EQ(Strokes()[0]->Bounds.left(), 60 * kInkUnitsPerPixel);
  EXPECT_EQ(m_selection.Strokes(), std::vector<InkStrokePtr>{Strokes()[0]});
}

TEST_F(InkHandSelecting, ATapOnWhatIsSelectedSetsTheCaret) {
  m_selection.SelectStrokes({m_first});
  Tap({55, 100});
  EXPECT_TRUE(m_selection.IsEmpty());
  EXPECT_EQ(Tops(), (std::vector<int>{100, 150}));
}

TEST_F(InkHandSelecting, WhatIsSelectedIsTakenHoldOfALittleBesideIt) {
  const QRectF bounds(QPointF(47, 97), QPointF(63.1, 103.1));  // with the pen's width
  for (const QPointF beside : {QPointF(-3, 3), QPointF(20, 3), QPointF(8, -3), QPointF(8, 9)}) {
    m_selection.SelectStrokes({m_first});
    Take(D::Mouse, P::Press, bounds.topLeft() + beside);
    Take(D::Mouse, P::Move, bounds.topLeft() + beside + QPointF(9, 9));
    EXPECT_EQ(m_hand.Dragged(), QPointF(9, 9)) << beside.x() << ',' << beside.y();
    m_hand.Cancel();
  }
  Take(D::Mouse, P::Press, {40, 100});
  EXPECT_EQ(m_hand.Lasso().size(), 1);
}

TEST_F(InkHandSelecting, ACancelledDragMovesNothing) {
  m_selection.SelectStrokes({m_first});
  Take(D::Mouse, P::Press, {55, 100});
  Take(D::Mouse, P::Move, {95, 100});
  m_hand.Cancel();
  EXPECT_EQ(m_hand.Dragged(), QPointF());
  EXPECT_EQ(StepCount(), 3);
}

TEST_F(InkHandOnInkAlone, ATapOnAPageWithoutTextSaysWhereTextBegins) {
  m_hand.SetTask(InkTask::Select);
  Tap({50, 100});
  Type(QStringLiteral("a"));
  EXPECT_EQ(Note().Text.Y, 96 * kInkUnitsPerPixel);
}

struct TextDrag {
  const char* Name;
  int From;
  int To;
  int Press;
  int Drop;
  const char16_t* Text;
  int SelectedFrom;
};

class InkHandDragsText : public InkHandSelecting, public testing::WithParamInterface<TextDrag> {};

TEST_P(InkHandDragsText, ToWhereItIsDropped) {
  const TextDrag& row = GetParam();
  const int steps = StepCount();
  m_selection.SelectText(row.From, row.To);
  const auto placeOf = [this](int position) {
    return m_document.TextLayout().Caret(position).center() + QPointF(1, 0);
  };
  Drag(D::Mouse, {placeOf(row.Press), placeOf(row.Drop)});
  EXPECT_EQ(Text(), QString::fromUtf16(row.Text));
  EXPECT_EQ(m_selection.TextFrom(), row.SelectedFrom);
  EXPECT_EQ(m_selection.TextTo(), row.SelectedFrom + row.To - row.From);
  const bool isMoved = Text() != QStringLiteral("one two\nthree");
  EXPECT_EQ(StepCount(), steps + (isMoved ? 1 : 0));
  if (isMoved) Undo();
  EXPECT_EQ(Text(), QStringLiteral("one two\nthree"));
}

INSTANTIATE_TEST_SUITE_P(Ways, InkHandDragsText,
                         testing::Values(TextDrag{"Forwards", 0, 4, 1, 10, u"two\nthone ree", 6},
                                         TextDrag{"Backwards", 8, 13, 9, 0, u"threeone two\n", 0},
                                         TextDrag{"ToTheEnd", 0, 3, 0, 13, u" two\nthreeone", 10},
                                         TextDrag{"WithinItself", 0, 7, 1, 6, u"one two\nthree",
                                                  0}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST_F(InkHandSelecting, ADragBesideSelectedTextSelectsAnew) {
  m_selection.SelectText(0, 3);
  const InkTextLayout& layout = m_document.TextLayout();
  Drag(D::Mouse, {layout.Caret(5).center(), layout.Caret(10).center()});
  EXPECT_EQ(Text(), QStringLiteral("one two\nthree"));
  EXPECT_EQ(m_selection.TextFrom(), 5);
}

TEST_F(InkHandSelecting, ATapOnSelectedTextSetsTheCaret) {
  m_selection.SelectText(0, 7);
  Tap(m_document.TextLayout().Caret(5).center());
  EXPECT_EQ(m_selection.Caret(), 5);
  EXPECT_TRUE(m_selection.IsEmpty());
}

}  // namespace
}  // namespace quill
