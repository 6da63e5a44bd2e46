#include "ink/InkLiveStroke.h"

#include <gtest/gtest.h>

#include "ink/InkPictures.h"
#include "ink/InkStrokePainter.h"

namespace quill {
namespace {

constexpr double kScale = InkScale(100, 1);
constexpr QRect kView(0, 0, 200, 120);

struct Screen {
  int Zoom;
  double Ratio;
};

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
  InkStroke stroke = Scribble(40, 9);
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

INSTANTIATE_TEST_SUITE_P(Screens, InkLiveStrokePixels,
                         testing::Values(Screen{75, 1}, Screen{100, 1}, Screen{150, 1},
                                         Screen{200, 1}, Screen{300, 1}, Screen{75, 1.5},
                                         Screen{100, 1.5}, Screen{150, 1.5}, Screen{200, 1.5},
                                         Screen{300, 1.5}, Screen{75, 2}, Screen{100, 2},
                                         Screen{150, 2}, Screen{200, 2}, Screen{300, 2}),
                         [](const auto& screen) {
                           return "Zoom" + std::to_string(screen.param.Zoom) + "Ratio" +
                                  std::to_string(static_cast<int>(screen.param.Ratio * 10));
                         });

}  // namespace
}  // namespace quill
