#include "platform/MenuModel.h"

#include <gtest/gtest.h>

#include "platform/CommandTarget.h"

namespace quill {
namespace {

using resources::MenuEntry;
using resources::MenuResource;

constexpr std::array kEntries = {MenuEntry{u"First", 1}, MenuEntry{}, MenuEntry{u"Second", 2}};

CommandRow Idle(int id) {
  return {.First = id, .Last = id, .Run = [](int) {}};
}

TEST(MenuModel, ItemsCarryTheStateThatTheirCommandsHaveNow) {
  CommandRow checked = Idle(1);
  checked.Update = [](int, CommandState& state) { state.Checked = true; };
  const CommandTarget target({checked});
  CommandRoute route;
  route.Add(target);
  const std::vector<MenuItem> items = BuildMenuItems(kEntries, route);
  ASSERT_EQ(items.size(), 3U);
  EXPECT_EQ(items[0].Text, QStringLiteral("First"));
  EXPECT_EQ(items[0].Id, 1);
  EXPECT_TRUE(items[0].Enabled);
  EXPECT_TRUE(items[0].Checked);
  EXPECT_FALSE(items[2].Enabled) << "nothing handles it";
  EXPECT_FALSE(items[2].Checked);
}

TEST(MenuModel, AnEntryWithoutIdIsASeparatorThatCannotBeChosen) {
  const std::vector<MenuItem> items = BuildMenuItems(kEntries, CommandRoute());
  EXPECT_TRUE(items[1].Separator);
  EXPECT_FALSE(items[1].Enabled);
  EXPECT_FALSE(items[0].Separator);
}

TEST(MenuModel, MenusKeepTheirTitlesAndOrder) {
  const std::array resources = {MenuResource{u"Tool", kEntries}, MenuResource{u"Help", {}}};
  const std::vector<Menu> menus = BuildMenus(resources, CommandRoute());
  ASSERT_EQ(menus.size(), 2U);
  EXPECT_EQ(menus[0].Text, QStringLiteral("Tool"));
  EXPECT_EQ(menus[0].Items.size(), 3U);
  EXPECT_EQ(menus[1].Text, QStringLiteral("Help"));
  EXPECT_TRUE(menus[1].Items.empty());
}

TEST(MenuModel, AnItemIsFoundByItsIdInSubmenusToo) {
  const MenuItem inner{.Text = QStringLiteral("Inner"), .Id = 7};
  const std::vector<MenuItem> items = {{.Text = QStringLiteral("Outer"), .Id = 5, .Items = {inner}},
                                       {.Text = QStringLiteral("Plain"), .Id = 6}};
  ASSERT_NE(FindMenuItem(items, 7), nullptr);
  EXPECT_EQ(FindMenuItem(items, 7)->Text, QStringLiteral("Inner"));
  ASSERT_NE(FindMenuItem(items, 6), nullptr);
  EXPECT_EQ(FindMenuItem(items, 6)->Text, QStringLiteral("Plain"));
}

TEST(MenuModel, SubmenusAndSeparatorsAreNoItemsToFind) {
  const std::vector<MenuItem> items = {
      {.Text = QStringLiteral("Outer"), .Id = 5, .Items = {{.Id = 7}}},
      {.Id = 0, .Separator = true}};
  EXPECT_EQ(FindMenuItem(items, 5), nullptr);
  EXPECT_EQ(FindMenuItem(items, 0), nullptr);
  EXPECT_EQ(FindMenuItem(items, 99), nullptr);
}

}  // namespace
}  // namespace quill
