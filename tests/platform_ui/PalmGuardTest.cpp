// The times of the rule are the palm filter's; here, that the guard stands before every window.
#include "platform/ui/PalmGuard.h"

#include "platform_ui/PenLog.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

constexpr QPoint kOrigin{20, 40};
constexpr QPoint kOnWidget{30, 50};

class PalmGuardTest : public test::ScreenFixture {
 protected:
  PalmGuardTest() : m_pen(new test::PenLog(m_screen, kOrigin)) {}

  QStringList AfterTouch() {
    m_pen->Take();
    m_input.TouchPress(kOnWidget);
    m_input.TouchRelease(kOnWidget);
    return m_pen->Take();
  }

  PalmGuard m_guard;
  test::PenLog* m_pen;
};

TEST_F(PalmGuardTest, AFingerCountsWhileNoPenIsAbout) {
  EXPECT_EQ(AfterTouch(),
            (QStringList{QStringLiteral("press 10,10"), QStringLiteral("release 10,10")}));
}

TEST_F(PalmGuardTest, NoTouchReachesAWindowWhileThePenHovers) {
  m_input.TabletHover(kOnWidget);
  EXPECT_TRUE(AfterTouch().isEmpty());
}

TEST_F(PalmGuardTest, NoTouchReachesAWindowWhileThePenWrites) {
  m_input.TabletPress(kOnWidget);
  EXPECT_TRUE(AfterTouch().isEmpty());
  m_input.TabletRelease(kOnWidget);
}

TEST_F(PalmGuardTest, NoTouchReachesAWindowRightAfterThePenWent) {
  m_input.TabletPress(kOnWidget);
  m_input.TabletRelease(kOnWidget);
  EXPECT_TRUE(AfterTouch().isEmpty());
}

TEST_F(PalmGuardTest, ThePenItselfAlwaysPasses) {
  m_input.TabletPress(kOnWidget);
  m_input.TabletMove(kOnWidget);
  m_input.TabletRelease(kOnWidget);
  EXPECT_EQ(m_pen->Take().size(), 3);
}

TEST_F(PalmGuardTest, AMousePassesWhileThePenIsNear) {
  m_input.TabletHover(kOnWidget);
  m_pen->Take();
  m_input.Tap(kOnWidget);
  EXPECT_EQ(m_pen->Take().size(), 2);
}

TEST_F(PalmGuardTest, ASecondFingerOnAnotherWidgetDoesNothing) {
  auto* const other = new test::PenLog(m_screen, {120, 40});
  m_input.TouchPress({23, 44});
  m_input.TouchPress({125, 50}, 1);
  m_input.TouchRelease({125, 50}, 1);
  m_input.TouchRelease({23, 44});
  QStringList log = m_pen->Take();
  log.removeAll(QStringLiteral("move 3,4"));
  EXPECT_EQ(log.join(u';').toStdString(), "press 3,4;release 3,4");
  EXPECT_TRUE(other->Take().isEmpty());
}

TEST_F(PalmGuardTest, APalmThatLayThereBeforeThePenCameMakesNoTap) {
  m_input.TouchPress({23, 44});
  m_input.TabletHover(kOnWidget);
  m_pen->Take();
  m_input.TouchMove({28, 49});
  EXPECT_TRUE(m_pen->Take().isEmpty());
  m_input.TouchRelease({28, 49});
  EXPECT_EQ(m_pen->Take().join(u';').toStdString(), "move -1,-1;release -1,-1");
}

}  // namespace
}  // namespace quill
