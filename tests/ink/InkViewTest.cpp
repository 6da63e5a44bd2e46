#include "ink/InkView.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

constexpr int kUnits = 32;  // per pixel
constexpr QSize kWindow(240, 200);

// A page as wide as the window, with ink down to 1000 pixels.
InkView ViewOf(int zoom = 100, qreal ratio = 1, QSize covered = {}) {
  InkView view;
  view.SetWindow(kWindow, covered, ratio);
  view.SetExtent({.PageWidth = 240 * kUnits, .Content = QRect(0, 0, 100 * kUnits, 1000 * kUnits)});
  view.SetZoom(zoom, {0, 0});
  return view;
}

TEST(InkView, ScaleIsDevicePixelsPerUnit) {
  EXPECT_EQ(ViewOf(100, 1).Scale(), 1.0 / 32);
  EXPECT_EQ(ViewOf(300, 1).Scale(), 3.0 / 32);
  EXPECT_EQ(ViewOf(200, 1.5).Scale(), 3.0 / 32);
  EXPECT_EQ(ViewOf(200, 1.5).DevicePixelRatio(), 1.5);
  EXPECT_EQ(ViewOf(200).Zoom(), 200);
}

TEST(InkView, TheWindowIsWholeDevicePixels) {
  InkView view;
  view.SetWindow({101, 33}, {}, 1.5);
  EXPECT_EQ(view.WindowSize(), QSize(152, 50));
  EXPECT_EQ(view.Shown(), QRect(0, 0, 152, 50));
}

struct Extent {
  const char* Name;
  int Zoom;
  QRect Content;  // pixels
  bool GrowsRight;
  QPoint Farthest;
};

class InkViewExtent : public testing::TestWithParam<Extent> {};

TEST_P(InkViewExtent, SaysHowFarScrollingGoes) {
  const QRect content = GetParam().Content;
  InkView view = ViewOf(GetParam().Zoom);
  view.SetExtent({.PageWidth = 240 * kUnits,
                  .Content = QRect(content.topLeft() * kUnits, content.size() * kUnits),
                  .GrowsRight = GetParam().GrowsRight});
  EXPECT_EQ(view.FarthestScroll(), GetParam().Farthest);
}

INSTANTIATE_TEST_SUITE_P(
    Pages, InkViewExtent,
    testing::Values(
        Extent{"AnEmptyPageHasHalfAViewMore", 100, {}, false, {0, 100}},
        Extent{"ALittleInkToo", 100, {0, 0, 50, 50}, false, {0, 100}},
        Extent{"HalfAViewLiesBelowTheInk", 100, {0, 0, 50, 1000}, false, {0, 900}},
        Extent{"EnlargedThereIsMoreOfIt", 200, {0, 0, 50, 1000}, false, {240, 1900}},
        Extent{"SmallerThePageFits", 75, {0, 0, 50, 1000}, false, {0, 650}},
        Extent{"InkRightOfThePageStaysInReach", 100, {0, 0, 500, 50}, false, {260, 100}},
        Extent{"AGrowingPageHasHalfAViewBesideTheInk", 100, {0, 0, 500, 50}, true, {380, 100}},
        Extent{"AGrowingPageIsAtLeastAPage", 100, {0, 0, 50, 50}, true, {0, 100}},
        Extent{"AnEmptyGrowingPageIsAPage", 100, {}, true, {0, 100}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(InkView, ScrollingReachesBeyondWhatIsCovered) {
  EXPECT_EQ(ViewOf(100, 1, {8, 6}).FarthestScroll(), QPoint(0, 906));
  EXPECT_EQ(ViewOf(200, 1, {8, 6}).FarthestScroll(), QPoint(248, 1906));
  EXPECT_EQ(ViewOf(200, 1.5, {8, 6}).FarthestScroll(), QPoint(372, 2859));
}

TEST(InkView, ScrollingEndsWhereThePageDoes) {
  InkView view = ViewOf(200);
  view.ScrollTo({5000, 500});
  EXPECT_EQ(view.Scroll(), QPoint(240, 500));
  view.ScrollTo({-5, 9999});
  EXPECT_EQ(view.Scroll(), QPoint(0, 1900));
  view.SetExtent({.PageWidth = 240 * kUnits});
  EXPECT_EQ(view.Scroll(), QPoint(0, 300 - 200));
  view.SetWindow({480, 600}, {}, 1);
  EXPECT_EQ(view.Scroll(), QPoint(0, 100));
}

TEST(InkView, WindowAndPageAreTheSamePlace) {
  for (const qreal ratio : {1.0, 1.5, 2.0}) {
    InkView view = ViewOf(150, ratio);
    view.ScrollTo({60, 300});
    EXPECT_EQ(view.PageFromWindow({0, 0}), QPointF(60, 300) / 1.5 / ratio);
    EXPECT_EQ(view.PageFromWindow({15, 30}) - view.PageFromWindow({0, 0}), QPointF(10, 20));
    const QPointF back = view.WindowFromPage(view.PageFromWindow({17, 31}));
    EXPECT_NEAR(back.x(), 17, 1e-9);
    EXPECT_NEAR(back.y(), 31, 1e-9);
  }
}

TEST(InkView, ARectangleOfThePageIsOneOfTheWindow) {
  InkView view = ViewOf(200);
  view.ScrollTo({100, 300});
  EXPECT_EQ(view.WindowFromPage(QRectF(60, 160, 10, 20)), QRectF(20, 20, 20, 40));
}

struct Zooming {
  int From;
  int To;
  qreal Ratio;
};

class InkViewZooming : public testing::TestWithParam<Zooming> {};

TEST_P(InkViewZooming, KeepsWhatIsAtTheAnchor) {
  InkView view = ViewOf(GetParam().From, GetParam().Ratio);
  view.ScrollTo({100, 700});
  const QPointF anchor(120, 100);
  const QPointF before = view.PageFromWindow(anchor);
  view.SetZoom(GetParam().To, anchor);
  const QPointF after = view.WindowFromPage(before);
  EXPECT_NEAR(after.x(), anchor.x(), 0.51);
  EXPECT_NEAR(after.y(), anchor.y(), 0.51);
}

INSTANTIATE_TEST_SUITE_P(Zooms, InkViewZooming,
                         testing::Values(Zooming{200, 300, 1}, Zooming{300, 200, 1},
                                         Zooming{200, 300, 1.5}, Zooming{800, 600, 2},
                                         Zooming{200, 800, 1}));

TEST(InkView, ZoomingOutStaysOnThePage) {
  InkView view = ViewOf(300);
  view.ScrollTo({0, 0});
  view.SetZoom(75, {200, 150});
  EXPECT_EQ(view.Scroll(), QPoint(0, 0));
}

TEST(InkView, UnitsGrowToWholeDevicePixels) {
  const InkView view = ViewOf(100, 1.5);
  EXPECT_EQ(view.DeviceFromUnits(QRect(QPoint(0, 0), QPoint(63, 63))), QRect(0, 0, 3, 3));
  EXPECT_EQ(view.DeviceFromUnits(QRect(QPoint(22, 21), QPoint(64, 85))),
            QRect(QPoint(1, 0), QPoint(3, 4)));
  EXPECT_TRUE(view.DeviceFromUnits({}).isEmpty());
  EXPECT_EQ(view.DeviceFromUnits(QRect(QPoint(-1, -1), QPoint(0, 0))).topLeft(), QPoint(-1, -1));
}

TEST(InkView, DevicePixelsGrowToWholeWindowPixels) {
  InkView view = ViewOf(100, 1.5);
  view.ScrollTo({0, 100});
  EXPECT_EQ(view.WindowFromDevice(QRect(0, 100, 3, 3)), QRect(0, 0, 2, 2));
  EXPECT_EQ(view.WindowFromDevice(QRect(2, 101, 2, 1)), QRect(1, 0, 2, 2));
  EXPECT_EQ(view.WindowFromDevice(QRect(-50, 50, 9999, 9999)), QRect(0, 0, 240, 200));
  EXPECT_TRUE(view.WindowFromDevice(QRect(0, 0, 50, 50)).isEmpty());
}

struct Showing {
  const char* Name;
  QRectF Page;
  QPoint Scroll;
};

class InkViewShowing : public testing::TestWithParam<Showing> {};

TEST_P(InkViewShowing, ScrollsAsLittleAsShowsIt) {
  InkView view = ViewOf(200, 1, {8, 6});
  view.ScrollTo({100, 500});
  view.Show(GetParam().Page);
  EXPECT_EQ(view.Scroll(), GetParam().Scroll);
}

// 240 by 200 pixels are seen from 50, 250, less what is covered.
INSTANTIATE_TEST_SUITE_P(
    Places, InkViewShowing,
    testing::Values(Showing{"WhatIsSeenAlready", {60, 260, 20, 20}, {100, 500}},
                    Showing{"Above", {60, 200, 20, 20}, {100, 400}},
                    Showing{"Below", {60, 400, 20, 20}, {100, 646}},
                    Showing{"Left", {10, 260, 20, 20}, {20, 500}},
                    Showing{"Right", {200, 260, 20, 20}, {208, 500}},
                    Showing{"TooTallFromItsTop", {60, 300, 20, 300}, {100, 600}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(InkView, CoveredWindowPixelsAreDevicePixels) {
  InkView view = ViewOf(100, 2, {0, 10});
  view.Show({0, 300, 10, 10});
  EXPECT_EQ(view.Scroll(), QPoint(0, 620 - 380));
}

TEST(InkView, PlacesBeyondWhatAnIntHoldsAreCutOff) {
  InkView view;
  view.SetWindow(kWindow, {}, 2);
  view.SetExtent({.PageWidth = 1 << 30, .Content = QRect(0, 0, 1 << 30, 1 << 30)});
  view.SetZoom(800, {0, 0});
  EXPECT_GT(view.FarthestScroll().x(), 1 << 28);
  const InkView huge = [] {
    InkView seen;
    seen.SetWindow(kWindow, {}, 4);
    seen.SetZoom(3200, {0, 0});
    return seen;
  }();
  EXPECT_EQ(huge.DeviceFromUnits(QRect(0, 0, 1 << 30, 1 << 30)).right(), 999'999'999);
}

}  // namespace
}  // namespace quill
