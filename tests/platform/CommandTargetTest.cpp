#include "platform/CommandTarget.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quill {
namespace {

using testing::ElementsAre;

class CommandRouteTest : public testing::Test {
 protected:
  CommandRow Recording(int first, int last) {
    return {.First = first, .Last = last, .Run = [this](int id) { m_run.push_back(id); }};
  }

  std::vector<int> m_run;
};

TEST_F(CommandRouteTest, RunsTheRowWhoseRangeHoldsTheId) {
  const CommandTarget target({Recording(10, 20), Recording(30, 30)});
  CommandRoute route;
  route.Add(target);
  EXPECT_EQ(route.Run(10, CommandCheck::AsMenu), CommandResult::Done);
  EXPECT_EQ(route.Run(20, CommandCheck::AsMenu), CommandResult::Done);
  EXPECT_EQ(route.Run(30, CommandCheck::AsMenu), CommandResult::Done);
  EXPECT_THAT(m_run, ElementsAre(10, 20, 30));
}

TEST_F(CommandRouteTest, KnowsNoCommandBesideTheRanges) {
  const CommandTarget target({Recording(10, 20)});
  CommandRoute route;
  route.Add(target);
  EXPECT_EQ(route.Run(9, CommandCheck::AsMenu), CommandResult::Unknown);
  EXPECT_EQ(route.Run(21, CommandCheck::Anyway), CommandResult::Unknown);
  EXPECT_FALSE(route.State(21).Enabled);
  EXPECT_TRUE(m_run.empty());
}

TEST_F(CommandRouteTest, TheFirstTargetOnTheRouteWins) {
  const CommandTarget second({Recording(10, 10)});
  int ranFirst = 0;
  const CommandTarget first({{.First = 10, .Last = 10, .Run = [&](int) { ++ranFirst; }}});
  CommandRoute tail;
  tail.Add(second);
  CommandRoute route;
  route.Add(first);
  route.Append(tail);
  EXPECT_EQ(route.Rows(10).size(), 2U);
  EXPECT_EQ(route.Run(10, CommandCheck::AsMenu), CommandResult::Done);
  EXPECT_EQ(ranFirst, 1);
  EXPECT_TRUE(m_run.empty());
}

TEST_F(CommandRouteTest, AppendedTargetsAreAskedToo) {
  const CommandTarget target({Recording(10, 10)});
  CommandRoute tail;
  tail.Add(target);
  CommandRoute route;
  route.Append(tail);
  EXPECT_EQ(route.Run(10, CommandCheck::AsMenu), CommandResult::Done);
  EXPECT_THAT(m_run, ElementsAre(10));
}

TEST_F(CommandRouteTest, ADisabledCommandRunsOnlyWhateverTheMenuSays) {
  CommandRow row = Recording(10, 10);
  row.Update = [](int, CommandState& state) { state.Enabled = false; };
  const CommandTarget target({row});
  CommandRoute route;
  route.Add(target);
  EXPECT_EQ(route.Run(10, CommandCheck::AsMenu), CommandResult::Disabled);
  EXPECT_TRUE(m_run.empty());
  EXPECT_EQ(route.Run(10, CommandCheck::Anyway), CommandResult::Done);
  EXPECT_THAT(m_run, ElementsAre(10));
}

TEST_F(CommandRouteTest, ACommandWithoutHandlerMayBeCheckedButNeverEnabled) {
  const CommandTarget target({{.First = 10, .Last = 10, .Update = [](int, CommandState& state) {
                                 state = {.Enabled = true, .Checked = true};
                               }}});
  CommandRoute route;
  route.Add(target);
  EXPECT_FALSE(route.State(10).Enabled);
  EXPECT_TRUE(route.State(10).Checked);
  EXPECT_EQ(route.Run(10, CommandCheck::Anyway), CommandResult::Disabled);
}

TEST_F(CommandRouteTest, TheUpdateHandlerKnowsWhichIdItSpeaksFor) {
  CommandRow row = Recording(10, 12);
  row.Update = [](int id, CommandState& state) { state.Checked = id == 11; };
  const CommandTarget target({row});
  CommandRoute route;
  route.Add(target);
  EXPECT_FALSE(route.State(10).Checked);
  EXPECT_TRUE(route.State(11).Checked);
  EXPECT_FALSE(route.State(12).Checked);
}

TEST_F(CommandRouteTest, AHandlerMayEndTheTargetThatOwnsIt) {
  std::unique_ptr<CommandTarget> target;
  const std::string text(100, 'x');  // long enough to live outside the handler's own bytes
  std::string seen;
  target = std::make_unique<CommandTarget>(
      std::vector<CommandRow>{{.First = 10, .Last = 10, .Run = [&target, &seen, text](int) {
                                 target.reset();
                                 seen = text;
                               }}});
  CommandRoute route;
  route.Add(*target);
  EXPECT_EQ(route.Run(10, CommandCheck::AsMenu), CommandResult::Done);
  EXPECT_EQ(seen, text);
}

}  // namespace
}  // namespace quill
