#include "ink/InkLiveStroke.h"

#include <gtest/gtest.h>

#include "ink/InkPictures.h"
#include "ink/InkScreens.h"
#include "ink/InkStrokePainter.h"

namespace quill {
namespace {

constexpr double kScale = InkScale(100, 1);
constexpr QRect kView(0, 0, 200, 120);

using Screen = test::InkScreen;

class InkLiveStrokePixels : public testing::TestWithParam<Screen> {
 protected:
  double Scale() const { return InkScale(GetParam().Zoom, GetParam().Ratio); }
};

// The page as it is shown while the pen is down: the cached picture, over which the stroke is
// painted where it has to be shown again.
void Show(QImage& shown, const QImage& cache, const InkLiveStroke& live, const QRect& again) {
  const QRect area = again & QRect({}, cache.size());
  QImage piece = cache.copy(area);
  live.PaintOver(piece, area.topLeft(), area);
  PutPicture(shown, area.topLeft(), piece);
}

TEST_P(InkLiveStrokePixels, AreThoseOfRenderingWhatIsThereAfterEveryPoint) {
  const InkNote before = ScribbledNote(20, 5);
  InkNote after = before;
  InkStroke stroke = Scribble(24, 9);
  QImage cache = PageOf(before, Scale());
  QImage shown = cache;
  InkLiveStroke live;
  live.Begin(before.Pens[0], Scale(), stroke.Parts, QRect({}, cache.size()));
  after.Strokes.emplace_back();
  InkStroke prefix = stroke;
  prefix.Points.clear();
  for (const InkPoint& point : stroke.Points) {
    Show(shown, cache, live, live.Add(point));
    prefix.Points.push_back(point);
    after.Strokes.back() = SealInkStroke(prefix);
    ASSERT_EQ(shown, PageOf(after, Scale())) << prefix.Points.size() << " points";
  }
  live.Finish(cache, {});
  EXPECT_EQ(cache, PageOf(after, Scale()));
}

INSTANTIATE_TEST_SUITE_P(Screens, InkLiveStrokePixels, testing::ValuesIn(test::kInkScreens),
                         test::NameOfInkScreen);

InkPoint At(int x, int y) {
  return {.X = x * kInkUnitsPerPixel, .Y = y * kInkUnitsPerPixel, .Pressure = 700};
}

QImage Paper() {
  QImage image(kView.size(), QImage::Format_RGB32);
  PaintPaper(image, {});
  return image;
}

// What is shown of a stroke over bare paper, all of it painted again.
QImage Shown(const InkLiveStroke& live) {
  QImage image = Paper();
  live.PaintOver(image, {}, kView);
  return image;
}

// The smallest rectangle around the pixels that differ.
QRect ChangedArea(const QImage& before, const QImage& after) {
  QRect changed;
  for (int y = 0; y < before.height(); ++y) {
    for (int x = 0; x < before.width(); ++x) {
      if (before.pixel(x, y) != after.pixel(x, y)) changed |= QRect(x, y, 1, 1);
    }
  }
  return changed;
}

QImage Rendered(const InkStroke& stroke, const InkPen& pen = {}) {
  InkNote note;
  note.Pens = {pen};
  note.Strokes = {SealInkStroke(stroke)};
  return PieceOf(note, kScale, kView);
}

TEST(InkLiveStroke, AHighlighterIsShownUnderRoundInk) {
  const InkNote before = ScribbledNote(24, 6);
  InkNote after = before;
  InkStroke stroke = Scribble(30, 8);
  stroke.Pen = 1;
  after.Strokes.insert(after.Strokes.begin() + 6, SealInkStroke(stroke));
  InkLiveStroke live;
  live.Begin(before.Pens[1], kScale, stroke.Parts, kView);
  for (const InkPoint& point : stroke.Points) live.Add(point);
  QImage piece = Paper();
  PaintHighlighters(piece, {}, kView, kScale, before);
  live.PaintOver(piece, {}, kView);
  PaintRoundStrokes(piece, {}, kView, kScale, before);
  EXPECT_EQ(piece, PieceOf(after, kScale, kView));
}

TEST(InkLiveStroke, IsShownInAnyPiece) {
  const InkStroke stroke = Scribble(30, 5);
  InkLiveStroke live;
  live.Begin(InkPen{}, kScale, stroke.Parts, kView);
  for (const InkPoint& point : stroke.Points) live.Add(point);
  const QImage whole = Shown(live);
  EXPECT_EQ(whole, Rendered(stroke));
  for (int x = 0; x < 200; x += 23) {
    const QRect area(x, x / 3, 31, 47);
    QImage piece = Paper().copy(area);
    live.PaintOver(piece, area.topLeft(), area);
    ASSERT_EQ(piece, whole.copy(area)) << "at " << x;
  }
}

TEST(InkLiveStroke, IsGoneWhenItIsCancelled) {
  InkLiveStroke live;
  live.Begin(InkPen{}, kScale, 0, kView);
  live.Add(At(20, 30));
  live.Add(At(60, 40));
  EXPECT_TRUE(live.IsDown());
  const QRect shown = live.Cancel();
  EXPECT_EQ(shown, QRect(QPoint(19, 29), QPoint(60, 40)));
  EXPECT_FALSE(live.IsDown());
  EXPECT_EQ(Shown(live), Paper());
}

TEST(InkLiveStroke, FinishedItGoesIntoThePictureWhole) {
  InkStroke stroke{.Points = {At(20, 30), At(60, 40), At(90, 20)}};
  InkLiveStroke live;
  live.Begin(InkPen{}, kScale, stroke.Parts, kView);
  for (const InkPoint& point : stroke.Points) live.Add(point);
  QImage cache = Paper();
  const QRect painted = live.Finish(cache, {});
  EXPECT_EQ(cache, Rendered(stroke));
  EXPECT_TRUE(painted.contains(QRect(QPoint(20, 22), QPoint(89, 35))));
  EXPECT_TRUE(QRect(QPoint(19, 19), QPoint(90, 40)).contains(painted));
  EXPECT_FALSE(live.IsDown());
  EXPECT_EQ(Shown(live), Paper());
}

TEST(InkLiveStroke, AStrokeOfNoPointsIsNothing) {
  InkLiveStroke live;
  live.Begin(InkPen{}, kScale, 0, kView);
  EXPECT_EQ(Shown(live), Paper());
  QImage cache = Paper();
  EXPECT_TRUE(live.Finish(cache, {}).isEmpty());
  EXPECT_EQ(cache, Paper());
}

TEST(InkLiveStroke, WithoutAPenDownNothingHappens) {
  InkLiveStroke live;
  EXPECT_FALSE(live.IsDown());
  EXPECT_TRUE(live.Add(At(20, 30)).isEmpty());
  live.MoveTo(kScale, kView);
  QImage cache = Paper();
  EXPECT_TRUE(live.Finish(cache, {}).isEmpty());
  EXPECT_TRUE(live.Cancel().isEmpty());
  EXPECT_EQ(Shown(live), Paper());
  EXPECT_EQ(cache, Paper());
}

TEST(InkLiveStroke, FinishedTwiceItIsPaintedOnce) {
  InkLiveStroke live;
  live.Begin({.Color = 0x80000000}, kScale, 0, kView);
  live.Add(At(20, 30));
  QImage once = Paper();
  live.Finish(once, {});
  QImage twice = once;
  EXPECT_TRUE(live.Finish(twice, {}).isEmpty());
  EXPECT_TRUE(live.Cancel().isEmpty());
  EXPECT_EQ(twice, once);
}

TEST(InkLiveStroke, NothingOfTheStrokeBeforeIsLeft) {
  InkLiveStroke live;
  for (const QRect& view : {kView, QRect(0, 0, 100, 100)}) {
    live.Begin(InkPen{}, kScale, 0, kView);
    live.Add(At(20, 30));
    live.Add(At(60, 40));
    live.Add(At(90, 90));
    const InkStroke stroke{.Points = {At(70, 20), At(80, 30)}};
    live.Begin({.Color = 0xFFFF0000}, kScale, 0, view);
    for (const InkPoint& point : stroke.Points) live.Add(point);
    EXPECT_EQ(Shown(live), Rendered(stroke, {.Color = 0xFFFF0000}));
    live.MoveTo(kScale, kView);
    EXPECT_EQ(Shown(live), Rendered(stroke, {.Color = 0xFFFF0000}));
    EXPECT_EQ(live.Cancel(), QRect(QPoint(69, 19), QPoint(80, 30)));
  }
}

TEST(InkLiveStroke, GoesOnWhenTheViewMoves) {
  const InkStroke stroke = Scribble(40, 12);
  InkLiveStroke live;
  live.Begin(InkPen{}, InkScale(200, 1), stroke.Parts, QRect(0, 0, 60, 50));
  for (int point = 0; point < 20; ++point) live.Add(stroke.Points[point]);
  live.MoveTo(kScale, kView);
  for (int point = 20; point < 40; ++point) live.Add(stroke.Points[point]);
  EXPECT_EQ(Shown(live), Rendered(stroke));
}

TEST(InkLiveStroke, OnlyWhatIsInTheViewIsShown) {
  const InkStroke stroke = Scribble(40, 13);
  const QRect view(50, 20, 100, 70);
  InkLiveStroke live;
  live.Begin(InkPen{}, kScale, stroke.Parts, view);
  for (const InkPoint& point : stroke.Points) {
    const QRect again = live.Add(point);
    ASSERT_TRUE(again.isEmpty() || view.contains(again));
  }
  QImage cache = Paper().copy(view);
  live.Finish(cache, view.topLeft());
  EXPECT_EQ(cache, Rendered(stroke).copy(view));
}

// Black on white, so that each step of coverage is a colour of its own.
TEST(InkLiveStroke, AMoveShowsNoMoreThanWhatChanges) {
  const InkStroke stroke = Scribble(40, 14);
  InkLiveStroke live;
  live.Begin({.Color = 0xFF000000}, kScale, stroke.Parts, kView);
  QImage white = Paper();
  white.fill(Qt::white);
  QImage before = white;
  for (const InkPoint& point : stroke.Points) {
    const QRect again = live.Add(point);
    QImage after = white;
    live.PaintOver(after, {}, kView);
    ASSERT_EQ(again, ChangedArea(before, after));
    before = after;
  }
}

TEST(InkLiveStroke, AStraightMoveShowsItsEndOnly) {
  InkLiveStroke live;
  live.Begin(InkPen{}, kScale, 0, kView);
  for (int x = 10; x <= 150; x += 10) live.Add(At(x, 50));
  EXPECT_EQ(live.Add(At(160, 50)), QRect(QPoint(150, 49), QPoint(160, 50)));
}

}  // namespace
}  // namespace quill
