// The doubles that other tests trust.
#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <functional>

#include "platform/Services.h"
#include "support/FixedClock.h"
#include "support/ScriptedPrompt.h"
#include "support/SteppedTimers.h"

namespace quill {
namespace {

using test::FixedClock;
using test::ScriptedPrompt;
using test::SteppedTimers;
using testing::ElementsAre;

TEST(Services, NothingIsInstalledUntilSomebodyDoes) {
  const Services services;
  EXPECT_EQ(services.Clock, nullptr);
  EXPECT_EQ(services.Timers, nullptr);
  EXPECT_EQ(services.Registry, nullptr);
  EXPECT_EQ(services.InputPanel, nullptr);
  EXPECT_EQ(services.Prompt, nullptr);
}

TEST(FixedClock, StandsStillUntilItIsSet) {
  const QDateTime first(QDate(2004, 9, 15), QTime(9, 30, 5));
  FixedClock clock(first);
  EXPECT_EQ(clock.Now(), first);
  clock.Set(first.addDays(1));
  EXPECT_EQ(clock.Now(), first.addDays(1));
}

TEST(ScriptedPrompt, AnswersInOrderAndRemembersWhatWasAsked) {
  ScriptedPrompt prompt({PromptAnswer::Yes, PromptAnswer::No});
  EXPECT_EQ(prompt.Show({.Text = QStringLiteral("one")}), PromptAnswer::Yes);
  EXPECT_EQ(prompt.Show({.Text = QStringLiteral("two")}), PromptAnswer::No);
  ASSERT_EQ(prompt.Shown().size(), 2U);
  EXPECT_EQ(prompt.Shown()[0].Text, QStringLiteral("one"));
  EXPECT_EQ(prompt.Shown()[1].Text, QStringLiteral("two"));
  EXPECT_EQ(prompt.Shown()[1].Caption, QStringLiteral("Quill (Quillbook)"));
}

TEST(ScriptedPrompt, AQuestionWithoutAnswerFailsTheTest) {
  ScriptedPrompt prompt;
  EXPECT_NONFATAL_FAILURE(prompt.Show({.Text = QStringLiteral("sure")}), "no answer is left");
}

TEST(ScriptedPrompt, AnAnswerThatNothingAskedForFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(ScriptedPrompt({PromptAnswer::OK}), "1 answers were never asked for");
}

class RecordingTarget : public TimerTarget {
 public:
  void OnTimer(int id) override {
    Fired.push_back(id);
    if (Then) Then(id);
  }

  std::vector<int> Fired;
  std::function<void(int id)> Then;
};

TEST(SteppedTimers, ATimerFiresEachTimeThatItFallsDue) {
  SteppedTimers timers;
  RecordingTarget target;
  timers.Set(target, 6, 500);
  timers.Advance(499);
  EXPECT_TRUE(target.Fired.empty());
  timers.Advance(1);
  EXPECT_THAT(target.Fired, ElementsAre(6));
  timers.Advance(1000);
  EXPECT_THAT(target.Fired, ElementsAre(6, 6, 6));
}

TEST(SteppedTimers, TimersFireInTheOrderOfTheirTimes) {
  SteppedTimers timers;
  RecordingTarget target;
  timers.Set(target, 1, 300);
  timers.Set(target, 2, 100);
  timers.Set(target, 3, 200);
  timers.Advance(300);
  EXPECT_THAT(target.Fired, ElementsAre(2, 3, 2, 1, 2));
}

TEST(SteppedTimers, SettingARunningTimerStartsItAnew) {
  SteppedTimers timers;
  RecordingTarget target;
  timers.Set(target, 6, 500);
  timers.Advance(400);
  timers.Set(target, 6, 500);
  timers.Advance(400);
  EXPECT_TRUE(target.Fired.empty());
  timers.Advance(100);
  EXPECT_THAT(target.Fired, ElementsAre(6));
}

TEST(SteppedTimers, AHandlerMayKillItsOwnTimer) {
  SteppedTimers timers;
  RecordingTarget target;
  target.Then = [&](int id) { timers.Kill(target, id); };
  timers.Set(target, 6, 10);
  timers.Advance(100);
  EXPECT_THAT(target.Fired, ElementsAre(6));
  EXPECT_FALSE(timers.IsRunning(target, 6));
}

TEST(SteppedTimers, KillAllEndsTheTimersOfOneTargetOnly) {
  SteppedTimers timers;
  RecordingTarget first;
  RecordingTarget second;
  timers.Set(first, 1, 10);
  timers.Set(first, 2, 10);
  timers.Set(second, 1, 10);
  timers.KillAll(first);
  timers.Advance(10);
  EXPECT_TRUE(first.Fired.empty());
  EXPECT_THAT(second.Fired, ElementsAre(1));
  EXPECT_TRUE(timers.IsRunning(second, 1));
}

}  // namespace
}  // namespace quill
