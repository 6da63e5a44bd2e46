#include "platform/QtTimers.h"

#include <QEventLoop>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace quill {
namespace {

using testing::ElementsAre;

class RecordingTarget : public TimerTarget {
 public:
  void OnTimer(int id) override {
    Fired.push_back(id);
    if (Then) Then(id);
  }

  std::vector<int> Fired;
  std::function<void(int id)> Then;
};

// Each test runs the event loop until a timer of its own says that it is over.
class QtTimersTest : public testing::Test {
 protected:
  void RunUntilFired(RecordingTarget& target, std::size_t times) {
    while (target.Fired.size() < times) m_loop.processEvents(QEventLoop::WaitForMoreEvents);
  }

  // Timers that would have fired by now have fired when this one has.
  void RunPast(int milliseconds) {
    RecordingTarget end;
    m_timers.Set(end, 0, milliseconds);
    RunUntilFired(end, 1);
    m_timers.KillAll(end);
  }

  QtTimers m_timers;
  QEventLoop m_loop;
};

TEST_F(QtTimersTest, ATimerRepeatsWithItsIdUntilItIsKilled) {
  RecordingTarget target;
  m_timers.Set(target, 6, 1);
  RunUntilFired(target, 3);
  m_timers.Kill(target, 6);
  EXPECT_THAT(target.Fired, ElementsAre(6, 6, 6));
  RunPast(20);
  EXPECT_EQ(target.Fired.size(), 3U);
}

TEST_F(QtTimersTest, SettingARunningTimerStartsItAnewInsteadOfASecondOne) {
  RecordingTarget target;
  m_timers.Set(target, 6, 1);
  m_timers.Set(target, 6, 600'000);
  RunPast(20);
  EXPECT_TRUE(target.Fired.empty());
}

TEST_F(QtTimersTest, EqualIdsOfTwoTargetsAreTwoTimers) {
  RecordingTarget first;
  RecordingTarget second;
  m_timers.Set(first, 6, 1);
  m_timers.Set(second, 6, 1);
  m_timers.Kill(first, 6);
  RunUntilFired(second, 1);
  EXPECT_TRUE(first.Fired.empty());
  m_timers.KillAll(second);
}

TEST_F(QtTimersTest, KillAllEndsEveryTimerOfATargetThatGoes) {
  RecordingTarget other;
  m_timers.Set(other, 1, 1);
  {
    RecordingTarget target;
    m_timers.Set(target, 1, 1);
    m_timers.Set(target, 2, 1);
    m_timers.KillAll(target);
  }
  RunPast(20);
  EXPECT_FALSE(other.Fired.empty());
  m_timers.KillAll(other);
}

TEST_F(QtTimersTest, ATimerMayBeKilledByItsOwnHandler) {
  RecordingTarget target;
  target.Then = [&](int id) { m_timers.Kill(target, id); };
  m_timers.Set(target, 6, 1);
  RunPast(20);
  EXPECT_THAT(target.Fired, ElementsAre(6));
}

TEST_F(QtTimersTest, ATimerMayBeSetAnewByItsOwnHandler) {
  RecordingTarget target;
  target.Then = [&](int id) { m_timers.Set(target, id, 600'000); };
  m_timers.Set(target, 6, 1);
  RunPast(20);
  EXPECT_THAT(target.Fired, ElementsAre(6));
  m_timers.KillAll(target);
}

TEST_F(QtTimersTest, AHandlerMayEndAllTimersOfItsTarget) {
  auto target = std::make_unique<RecordingTarget>();
  int fired = 0;
  target->Then = [&](int) {
    ++fired;
    m_timers.KillAll(*target);
  };
  m_timers.Set(*target, 1, 1);
  m_timers.Set(*target, 2, 1);
  RunPast(20);
  target.reset();
  RunPast(20);
  EXPECT_EQ(fired, 1);
}

TEST_F(QtTimersTest, KillingWhatDoesNotRunDoesNothing) {
  RecordingTarget target;
  m_timers.Kill(target, 6);
  m_timers.KillAll(target);
  RunPast(5);
  EXPECT_TRUE(target.Fired.empty());
}

}  // namespace
}  // namespace quill
