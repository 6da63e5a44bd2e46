#include "ink/InkCapture.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using D = InkDevice;
using P = InkPhase;

struct Event {
  InkDevice Device;
  InkPhase Phase;
  QPointF At;
  qreal Pressure = 0.5;
};

// What events come to: B, E and . for beginning, going on and ending, with the places in pixels.
QString Outcome(InkCapture& capture, const std::vector<Event>& events) {
  QString outcome;
  for (const Event& event : events)
    for (const InkCaptured& captured : capture.Take({.Device = event.Device,
                                       .Phase = event.Phase,
                                       .At = event.At,
                                       .Pressure = event.Pressure})) {
      if (captured.Action == InkAction::End) {
        outcome += u'.';
        continue;
      }
      outcome += captured.Action == InkAction::Begin ? u'B' : u'E';
      outcome += QString::number(captured.Point.X / 32) + u',' +
                 QString::number(captured.Point.Y / 32) + u' ';
    }
  return outcome;
}

struct Course {
  const char* Name;
  std::vector<Event> Events;
  const char16_t* Outcome;
  bool IsDown = false;
};

class InkCaptureRules : public testing::TestWithParam<Course> {};

TEST_P(InkCaptureRules, MakeStrokesOfEvents) {
  InkCapture capture;
  capture.SetRightEdge(100);
  EXPECT_EQ(Outcome(capture, GetParam().Events), QString::fromUtf16(GetParam().Outcome));
  EXPECT_EQ(capture.IsDown(), GetParam().IsDown);
}

INSTANTIATE_TEST_SUITE_P(
    Courses, InkCaptureRules,
    testing::Values(
        Course{
            "AStroke",
            {{D::Pen, P::Press, {1, 1}}, {D::Pen, P::Move, {2, 2}}, {D::Pen, P::Release, {3, 3}}},
            u"B1,1 E2,2 ."},
        Course{"WithoutPressureNothingTouches",
               {{D::Pen, P::Press, {1, 1}, 0}, {D::Pen, P::Move, {2, 2}}},
               u""},
        Course{
            "MovesWithoutPressureAreNoInk",
            {{D::Pen, P::Press, {1, 1}}, {D::Pen, P::Move, {9, 9}, 0}, {D::Pen, P::Move, {2, 2}}},
            u"B1,1 E2,2 ",
            true},
        Course{"AMouseHasNoPressure",
               {{D::Mouse, P::Press, {1, 1}, 0}, {D::Mouse, P::Move, {2, 2}, 0}},
               u"B1,1 E2,2 ",
               true},
        Course{"AHoverEndsWhatWasNeverReleased",
               {{D::Pen, P::Press, {1, 1}}, {D::Pen, P::Hover, {5, 5}}, {D::Pen, P::Move, {6, 6}}},
               u"B1,1 ."},
        Course{"APressWhileDownBeginsAnew",
               {{D::Pen, P::Press, {1, 1}}, {D::Pen, P::Press, {5, 5}}, {D::Pen, P::Move, {6, 6}}},
               u"B1,1 .B5,5 E6,6 ",
               true},
        Course{"ARepeatedReleaseIsNothing",
               {{D::Pen, P::Press, {1, 1}},
                {D::Pen, P::Release, {1, 1}},
                {D::Pen, P::Release, {1, 1}}},
               u"B1,1 ."},
        Course{"AMoveWithoutAPressIsNothing", {{D::Mouse, P::Move, {1, 1}}}, u""},
        Course{"NoFingerWritesWhileAPenDoes",
               {{D::Pen, P::Press, {1, 1}},
                {D::Finger, P::Press, {50, 50}},
                {D::Finger, P::Move, {51, 51}},
                {D::Finger, P::Release, {51, 51}},
                {D::Pen, P::Move, {2, 2}}},
               u"B1,1 E2,2 ",
               true},
        Course{"NoMouseWritesWhileAPenDoes",
               {{D::Pen, P::Press, {1, 1}},
                {D::Mouse, P::Press, {50, 50}},
                {D::Mouse, P::Hover, {51, 51}},
                {D::Pen, P::Move, {2, 2}}},
               u"B1,1 E2,2 ",
               true},
        Course{"APenGoesBeforeAFinger",
               {{D::Finger, P::Press, {1, 1}},
                {D::Pen, P::Press, {5, 5}},
                {D::Finger, P::Move, {2, 2}},
                {D::Pen, P::Move, {6, 6}}},
               u"B1,1 .B5,5 E6,6 ",
               true},
        Course{"TheOtherEndOfThePenGoesOn",
               {{D::Pen, P::Press, {1, 1}}, {D::Eraser, P::Press, {5, 5}}},
               u"B1,1 .B5,5 ",
               true},
        Course{"APressRightOfThePageIsNothing",
               {{D::Pen, P::Press, {101, 5}}, {D::Pen, P::Move, {50, 5}}},
               u""},
        Course{"APressAboveOrLeftOfThePageIsNothing",
               {{D::Pen, P::Press, {5, -1}}, {D::Mouse, P::Press, {-1, 5}}},
               u""},
        Course{"APressOffThePageEndsWhatIsDown",
               {{D::Pen, P::Press, {1, 1}}, {D::Pen, P::Press, {200, 1}}},
               u"B1,1 ."},
        Course{"TheEdgeIsOnThePage",
               {{D::Pen, P::Press, {100, 0}}, {D::Pen, P::Move, {0, 0}}},
               u"B100,0 E0,0 ",
               true},
        Course{"AStrokeIsCutAtTheRightEdge",
               {{D::Pen, P::Press, {80, 10}}, {D::Pen, P::Move, {120, 30}}},
               u"B80,10 E100,20 .",
               true},
        Course{"AStrokeIsCutAtTheTop",
               {{D::Pen, P::Press, {10, 10}}, {D::Pen, P::Move, {30, -10}}},
               u"B10,10 E20,0 .",
               true},
        Course{"AStrokeIsCutAtTheLeft",
               {{D::Pen, P::Press, {10, 10}}, {D::Pen, P::Move, {-10, 30}}},
               u"B10,10 E0,20 .",
               true},
        Course{"AtACornerTheNearerEdgeCuts",
               {{D::Pen, P::Press, {90, 30}}, {D::Pen, P::Move, {110, -10}}},
               u"B90,30 E100,10 .",
               true},
        Course{"AnotherBeginsWhereItComesBack",
               {{D::Pen, P::Press, {80, 10}},
                {D::Pen, P::Move, {120, 10}},
                {D::Pen, P::Move, {140, 10}},
                {D::Pen, P::Move, {60, 50}},
                {D::Pen, P::Move, {50, 50}}},
               u"B80,10 E100,10 .B100,30 E60,50 E50,50 ",
               true},
        Course{"LiftedOffThePageItIsOver",
               {{D::Pen, P::Press, {80, 10}},
                {D::Pen, P::Move, {120, 10}},
                {D::Pen, P::Release, {120, 10}},
                {D::Pen, P::Move, {50, 10}}},
               u"B80,10 E100,10 ."}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(InkCapture, AnEndlessPageHasNoRightEdge) {
  InkCapture capture;
  EXPECT_EQ(Outcome(capture, {{D::Pen, P::Press, {5000, 1}}, {D::Pen, P::Move, {9000, 1}}}),
            QStringLiteral("B5000,1 E9000,1 "));
}

TEST(InkCapture, APageThatGrewTakesTheStrokeOnFromWhereItWas) {
  InkCapture capture;
  capture.SetRightEdge(100);
  Outcome(capture, {{D::Pen, P::Press, {80, 1}}, {D::Pen, P::Move, {120, 1}}});
  capture.SetRightEdge(std::nullopt);
  EXPECT_EQ(Outcome(capture, {{D::Pen, P::Move, {130, 1}}}), QStringLiteral("B120,1 E130,1 "));
}

TEST(InkCapture, WhatIsForgottenDoesNotGoOn) {
  InkCapture capture;
  Outcome(capture, {{D::Pen, P::Press, {1, 1}}});
  capture.Reset();
  EXPECT_FALSE(capture.IsDown());
  EXPECT_EQ(Outcome(capture, {{D::Pen, P::Move, {2, 2}}, {D::Pen, P::Release, {2, 2}}}), QString());
}

TEST(InkCapture, TheDeviceIsTheOneThatIsDown) {
  InkCapture capture;
  Outcome(capture, {{D::Finger, P::Press, {1, 1}}});
  EXPECT_EQ(capture.Device(), D::Finger);
  Outcome(capture, {{D::Eraser, P::Press, {1, 1}}});
  EXPECT_EQ(capture.Device(), D::Eraser);
}

InkPoint PointFrom(const InkInput& input) {
  InkCapture capture;
  return capture.Take(input).at(0).Point;
}

struct Rounded {
  qreal Pixels;
  int Units;
};

class InkCaptureRounding : public testing::TestWithParam<Rounded> {};

TEST_P(InkCaptureRounding, GoesToTheNearestUnit) {
  const InkPoint point = PointFrom({.At = {GetParam().Pixels, GetParam().Pixels}});
  EXPECT_EQ(point.X, GetParam().Units);
  EXPECT_EQ(point.Y, GetParam().Units);
}

INSTANTIATE_TEST_SUITE_P(Places, InkCaptureRounding,
                         testing::Values(Rounded{0, 0}, Rounded{1, 32}, Rounded{1.015, 32},
                                         Rounded{1.015625, 33}, Rounded{1.02, 33}));

TEST(InkCapture, APenTellsPressureAndTilt) {
  const InkPoint point =
      PointFrom({.Device = D::Pen, .At = {1, 1}, .Pressure = 0.5, .Tilt = {-12.6, 40.2}});
  EXPECT_EQ(point.Pressure, 512);
  EXPECT_EQ(point.TiltX, -13);
  EXPECT_EQ(point.TiltY, 40);
}

TEST(InkCapture, WhatADriverOverdoesIsBroughtWithinItsLimits) {
  const InkPoint point =
      PointFrom({.Device = D::Eraser, .At = {1, 1}, .Pressure = 1.5, .Tilt = {-200, 200}});
  EXPECT_EQ(point.Pressure, kFullPressure);
  EXPECT_EQ(point.TiltX, -90);
  EXPECT_EQ(point.TiltY, 90);
}

TEST(InkCapture, AMouseAndAFingerPressFully) {
  for (const InkDevice device : {D::Mouse, D::Finger}) {
    const InkPoint point =
        PointFrom({.Device = device, .At = {1, 1}, .Pressure = 0.2, .Tilt = {5, 5}});
    EXPECT_EQ(point.Pressure, kFullPressure);
    EXPECT_EQ(point.TiltX, 0);
    EXPECT_EQ(point.TiltY, 0);
  }
}

TEST(InkCapture, TimeCountsFromTheBeginningOfEachStroke) {
  InkCapture capture;
  capture.SetRightEdge(100);
  const auto timeOf = [&](InkPhase phase, QPointF at, qint64 time) {
    return capture.Take({.Phase = phase, .At = at, .Time = time}).back().Point.Time;
  };
  EXPECT_EQ(timeOf(P::Press, {5, 5}, 1000), 0U);
  EXPECT_EQ(timeOf(P::Move, {6, 5}, 1016), 16U);
  EXPECT_EQ(timeOf(P::Move, {7, 5}, 900), 0U);
  timeOf(P::Move, {200, 5}, 1100);
  EXPECT_EQ(timeOf(P::Move, {50, 5}, 1200), 0U);
  EXPECT_EQ(timeOf(P::Move, {40, 5}, 1230), 30U);
}

TEST(InkCapture, ADeviceRecordsWhatItCanTell) {
  for (const InkDevice pen : {D::Pen, D::Eraser})
    EXPECT_EQ(InkCapture::PartsOf(pen), kInkHasPressure | kInkHasTime | kInkHasTilt);
  for (const InkDevice other : {D::Mouse, D::Finger})
    EXPECT_EQ(InkCapture::PartsOf(other), kInkHasTime);
}

}  // namespace
}  // namespace quill
