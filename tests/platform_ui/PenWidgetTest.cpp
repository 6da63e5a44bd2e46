#include "platform/ui/PenWidget.h"

#include <QTouchEvent>

#include "platform_ui/PenLog.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

using test::PenLog;
using test::ScreenInput;

constexpr QPoint kOrigin{20, 40};
constexpr QPoint kFarAway{200, 290};

QPoint At(int x, int y) { return kOrigin + QPoint(x, y); }

struct PenDevice {
  const char* Name;
  void (*Press)(ScreenInput&, QPoint);
  void (*Move)(ScreenInput&, QPoint);
  void (*Release)(ScreenInput&, QPoint);
};

const PenDevice kMouse = {"Mouse", [](ScreenInput& input, QPoint at) { input.Press(at); },
                          [](ScreenInput& input, QPoint at) { input.Move(at); },
                          [](ScreenInput& input, QPoint at) { input.Release(at); }};
const PenDevice kTablet = {"Tablet", [](ScreenInput& input, QPoint at) { input.TabletPress(at); },
                           [](ScreenInput& input, QPoint at) { input.TabletMove(at); },
                           [](ScreenInput& input, QPoint at) { input.TabletRelease(at); }};
const PenDevice kTouch = {"Touch", [](ScreenInput& input, QPoint at) { input.TouchPress(at); },
                          [](ScreenInput& input, QPoint at) { input.TouchMove(at); },
                          [](ScreenInput& input, QPoint at) { input.TouchRelease(at); }};

class PenWidgetTest : public test::ScreenFixture {
 protected:
  PenWidgetTest() : m_pen(new PenLog(m_screen, kOrigin)) {}

  PenLog* m_pen;
};

class PenDeviceTest : public PenWidgetTest, public testing::WithParamInterface<PenDevice> {};

TEST_P(PenDeviceTest, GivesPressMovesAndOneReleaseInPixelsOfTheWidget) {
  GetParam().Press(m_input, At(3, 4));
  GetParam().Move(m_input, At(5, 6));
  GetParam().Move(m_input, At(50, 60));
  GetParam().Release(m_input, At(50, 61));
  EXPECT_EQ(m_pen->Take(),
            (QStringList{QStringLiteral("press 3,4"), QStringLiteral("move 5,6"),
                         QStringLiteral("move 50,60"), QStringLiteral("release 50,61")}));
}

TEST_P(PenDeviceTest, TheReleaseComesToTheWidgetOfThePress) {
  PenLog* const other = new PenLog(m_screen, kFarAway);
  GetParam().Press(m_input, At(3, 4));
  GetParam().Move(m_input, kFarAway);
  GetParam().Release(m_input, kFarAway);
  EXPECT_EQ(m_pen->Take().last(), QStringLiteral("release 180,250"));
  EXPECT_TRUE(other->Take().isEmpty());
}

TEST_P(PenDeviceTest, APressElsewhereIsNotThisWidgetsAffair) {
  GetParam().Press(m_input, kFarAway);
  GetParam().Move(m_input, At(3, 4));
  GetParam().Release(m_input, At(3, 4));
  EXPECT_TRUE(m_pen->Take().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Devices, PenDeviceTest, testing::Values(kMouse, kTablet, kTouch),
                         [](const auto& parameter) { return std::string(parameter.param.Name); });

TEST_F(PenWidgetTest, APenThatDoesNotTouchHovers) {
  m_input.Hover(At(7, 8));
  EXPECT_EQ(m_pen->Take(), QStringList{QStringLiteral("hover 7,8")});
  m_input.TabletHover(At(9, 10));
  EXPECT_EQ(m_pen->Take(), QStringList{QStringLiteral("hover 9,10")});
}

TEST_F(PenWidgetTest, TheSecondPressOfADoubleTapIsAPressLikeAnyOther) {
  m_input.Tap(At(3, 4));
  m_input.PressAgain(At(3, 4));
  EXPECT_EQ(m_pen->Take(), (QStringList{QStringLiteral("press 3,4"), QStringLiteral("release 3,4"),
                                        QStringLiteral("press 3,4")}));
}

// A pen widget that wants to know of second presses.
class DoubleLog : public PenLog {
 public:
  using PenLog::PenLog;

 protected:
  void PenDoublePress(QPoint) override { PenHover({2, 2}); }
};

struct SecondPressCase {
  quint64 FirstTime;
  quint64 SecondTime;
  QPoint Second;  // the first is at 3,4
  const char* Log;
};

class SecondPressTest : public PenWidgetTest,
                        public testing::WithParamInterface<SecondPressCase> {};

TEST_P(SecondPressTest, OfAPenIsOneThatComesSoonAndNearby) {
  const SecondPressCase& press = GetParam();
  DoubleLog* const log = new DoubleLog(m_screen, kFarAway - QPoint(100, 100));
  const QPoint origin = log->pos();
  m_input.TabletPress(origin + QPoint(3, 4), press.FirstTime);
  m_input.TabletRelease(origin + QPoint(3, 4));
  m_input.TabletPress(origin + press.Second, press.SecondTime);
  EXPECT_EQ(log->Take().last(), QString::fromLatin1(press.Log));
}

INSTANTIATE_TEST_SUITE_P(Presses, SecondPressTest,
                         testing::Values(SecondPressCase{1000, 1100, {5, 5}, "hover 2,2"},
                                         SecondPressCase{1000, 3000, {3, 4}, "press 3,4"},
                                         SecondPressCase{1000, 1100, {40, 4}, "press 40,4"},
                                         SecondPressCase{0, 0, {3, 4}, "press 3,4"},
                                         SecondPressCase{0, 100, {3, 4}, "press 3,4"}));

TEST_F(PenWidgetTest, TheThirdPressOfAPenIsAFirstOneAgain) {
  DoubleLog* const log = new DoubleLog(m_screen, kFarAway - QPoint(100, 100));
  for (const quint64 time : {1000, 1100, 1200}) {
    m_input.TabletPress(log->pos() + QPoint(3, 4), time);
    m_input.TabletRelease(log->pos() + QPoint(3, 4));
  }
  EXPECT_EQ(log->Take().join(u';').toStdString(),
            "press 3,4;release 3,4;hover 2,2;release 3,4;press 3,4;release 3,4");
}

TEST_F(PenWidgetTest, TheSecondPressOfAMouseIsTheWindowSystemsAffair) {
  DoubleLog* const log = new DoubleLog(m_screen, kFarAway - QPoint(100, 100));
  m_input.PressAgain(log->pos() + QPoint(3, 4));
  EXPECT_EQ(log->Take(), QStringList{QStringLiteral("hover 2,2")});
}

TEST_F(PenWidgetTest, ATabletsReleaseWithoutAPressIsNothing) {
  m_input.TabletRelease(At(3, 4));
  EXPECT_TRUE(m_pen->Take().isEmpty());
}

TEST_F(PenWidgetTest, OtherButtonsDoNothing) {
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
    m_input.Press(At(3, 4), button);
    m_input.Release(At(3, 4), button);
  }
  EXPECT_TRUE(m_pen->Take().isEmpty());
}

TEST_F(PenWidgetTest, ASecondFingerDoesNothing) {
  m_input.TouchPress(At(3, 4));
  m_input.TouchPress(At(30, 40), 1);
  m_input.TouchRelease(At(31, 41), 1);
  m_input.TouchRelease(At(3, 4));
  QStringList log = m_pen->Take();
  log.removeAll(QStringLiteral("move 3,4"));  // where it is already
  EXPECT_EQ(log, (QStringList{QStringLiteral("press 3,4"), QStringLiteral("release 3,4")}));
}

TEST_F(PenWidgetTest, TheReleaseIsTheFirstFingersEvenWhenAnotherStays) {
  m_input.TouchPress({23, 44});
  m_input.TouchPress({50, 80}, 1);
  m_input.TouchRelease({23, 44});
  m_input.TouchRelease({50, 80}, 1);
  QStringList log = m_pen->Take();
  log.removeAll(QStringLiteral("move 3,4"));
  EXPECT_EQ(log.join(u';').toStdString(), "press 3,4;release 3,4");
}

TEST_F(PenWidgetTest, ATouchThatTheSystemTakesAwayEndsOutside) {
  m_input.TouchPress({23, 44});
  m_pen->Take();
  QTouchEvent cancel(QEvent::TouchCancel);
  QCoreApplication::sendEvent(m_pen, &cancel);
  EXPECT_EQ(m_pen->Take().join(u';').toStdString(), "move -1,-1;release -1,-1");
  m_input.TouchMove({25, 46});
  EXPECT_TRUE(m_pen->Take().isEmpty());
  m_input.TouchRelease({25, 46});
}

}  // namespace
}  // namespace quill
