#include "platform/ui/PenWatch.h"

#include <functional>

#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

using test::ScreenInput;

constexpr QPoint kAt{120, 160};

// How each of them comes down, moves and goes up.
struct WatchCase {
  const char* Name;
  std::function<void(ScreenInput&)> Press;
  std::function<void(ScreenInput&)> Move;
  std::function<void(ScreenInput&)> Release;
};

void PrintTo(const WatchCase& each, std::ostream* out) { *out << each.Name; }

class PenWatchTest : public test::ScreenFixture, public testing::WithParamInterface<WatchCase> {};

TEST_P(PenWatchTest, APenIsDownFromItsPressToItsRelease) {
  EXPECT_FALSE(m_screen->IsPenDown());
  GetParam().Press(m_input);
  EXPECT_TRUE(m_screen->IsPenDown());
  GetParam().Move(m_input);
  EXPECT_TRUE(m_screen->IsPenDown());
  GetParam().Release(m_input);
  EXPECT_FALSE(m_screen->IsPenDown());
}

TEST_P(PenWatchTest, WhereItIsPutDownIsATapUntilItGoesAway) {
  constexpr int kLong = 600'000;
  EXPECT_EQ(m_screen->Pens().TappedWithin(kLong), std::nullopt);
  GetParam().Press(m_input);
  GetParam().Move(m_input);
  GetParam().Release(m_input);
  EXPECT_EQ(m_screen->Pens().TappedWithin(kLong), QPointF(m_screen->mapToGlobal(kAt)));
}

TEST_F(PenWatchTest, AStrokeIsNoTap) {
  m_input.TabletPress(kAt);
  m_input.TabletMove(kAt + QPoint(12, 0));
  EXPECT_NE(m_screen->Pens().TappedWithin(600'000), std::nullopt);
  m_input.TabletMove(kAt + QPoint(20, 0));
  m_input.TabletRelease(kAt);
  EXPECT_EQ(m_screen->Pens().TappedWithin(600'000), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    Devices, PenWatchTest,
    testing::Values(WatchCase{"mouse", [](ScreenInput& input) { input.Press(kAt); },
                              [](ScreenInput& input) { input.Move(kAt); },
                              [](ScreenInput& input) { input.Release(kAt); }},
                    WatchCase{"second press", [](ScreenInput& input) { input.PressAgain(kAt); },
                              [](ScreenInput& input) { input.Move(kAt); },
                              [](ScreenInput& input) { input.Release(kAt); }},
                    WatchCase{"pen", [](ScreenInput& input) { input.TabletPress(kAt); },
                              [](ScreenInput& input) { input.TabletMove(kAt); },
                              [](ScreenInput& input) { input.TabletRelease(kAt); }},
                    WatchCase{"finger", [](ScreenInput& input) { input.TouchPress(kAt); },
                              [](ScreenInput& input) { input.TouchMove(kAt + QPoint(9, 9)); },
                              [](ScreenInput& input) { input.TouchRelease(kAt); }}));

class LostRelease : public test::ScreenFixture {};

TEST_F(LostRelease, IsMadeUpForByTheNextMoveWithoutAButton) {
  m_input.Press(kAt);
  m_input.Hover(kAt);
  EXPECT_FALSE(m_screen->IsPenDown());
  m_input.TabletPress(kAt);
  m_input.TabletHover(kAt);
  EXPECT_FALSE(m_screen->IsPenDown());
}

TEST_F(LostRelease, AMouseThatMovesDoesNotLiftThePen) {
  m_input.TabletPress(kAt);
  m_input.Hover(kAt);
  EXPECT_TRUE(m_screen->IsPenDown());
  m_input.TabletRelease(kAt);
}

}  // namespace
}  // namespace quill
