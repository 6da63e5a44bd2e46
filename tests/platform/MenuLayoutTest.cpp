#include "platform/MenuLayout.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

constexpr QSize kScreen{240, 320};
constexpr QRect kAllScreen{0, 0, 240, 320};

double TenEach(QStringView text) { return 10.0 * static_cast<double>(text.size()); }

MenuItem Command(const QString& text, int id = 1) { return {.Text = text, .Id = id}; }

MenuItem Line() { return {.Enabled = false, .Separator = true}; }

std::vector<MenuItem> Commands(int count) {
  std::vector<MenuItem> items;
  for (int i = 0; i < count; ++i) items.push_back(Command(QStringLiteral("Item"), i + 1));
  return items;
}

MenuLayout LayOut(const std::vector<MenuItem>& items, QRect anchor = {10, 30, 0, 0},
                  MenuPlacement placement = MenuPlacement::Drop) {
  return LayOutMenu(items, {.Anchor = anchor, .Placement = placement, .Screen = kScreen}, TenEach);
}

MenuLayout LayOutFrom(const std::vector<MenuItem>& items, int firstItem) {
  return LayOutMenu(items, {.Anchor = {10, 30, 0, 0}, .Screen = kScreen, .FirstItem = firstItem},
                    TenEach);
}

TEST(MenuLayout, RowsStandBelowEachOtherWithTheirHeights) {
  const MenuLayout layout =
      LayOut({Command(QStringLiteral("New")), Line(), Command(QStringLiteral("Old"))});
  ASSERT_EQ(layout.Rows.size(), 3U);
  EXPECT_EQ(layout.Rows[0].Rectangle.height(), 17);
  EXPECT_EQ(layout.Rows[1].Rectangle.height(), 5);
  EXPECT_EQ(layout.Rows[2].Rectangle.height(), 17);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(layout.Rows[i].Key, i);
  for (int i = 1; i < 3; ++i)
    EXPECT_EQ(layout.Rows[i].Rectangle.top(), layout.Rows[i - 1].Rectangle.bottom() + 1);
  EXPECT_EQ(layout.Frame.height(), 1 + 17 + 5 + 17 + 1);
  EXPECT_EQ(layout.FirstItem, 0);
  EXPECT_EQ(layout.LastItem, 2);
}

TEST(MenuLayout, TheWidestTextFits) {
  const MenuLayout layout =
      LayOut({Command(QStringLiteral("A")), Command(QStringLiteral("Longest"))});
  for (const PaintedRow& row : layout.Rows)
    for (const PaintedItem& item : row.Items) {
      if (item.Text.isEmpty()) continue;
      EXPECT_GE(item.Rectangle.width(), 70);
    }
}

TEST(MenuLayout, AWideMenuLeavesAMarginToPressBesideIt) {
  const MenuLayout layout = LayOut({Command(QString(100, u'x'))});
  EXPECT_EQ(layout.Frame.width(), 220);
  EXPECT_TRUE(kAllScreen.contains(layout.Frame));
}

TEST(MenuLayout, ADroppedMenuStandsBelowItsAnchor) {
  const MenuLayout layout = LayOut(Commands(3), {20, 10, 30, 16});
  EXPECT_EQ(layout.Frame.topLeft(), QPoint(20, 26));
}

TEST(MenuLayout, ADroppedMenuWithoutRoomBelowStandsAboveItsAnchor) {
  const MenuLayout layout = LayOut(Commands(3), {20, 296, 30, 24});
  EXPECT_EQ(layout.Frame.top() + layout.Frame.height(), 296);
  EXPECT_EQ(layout.Frame.left(), 20);
}

TEST(MenuLayout, ASubmenuStandsBesideItsAnchor) {
  const MenuLayout layout = LayOut(Commands(3), {20, 40, 100, 17}, MenuPlacement::Beside);
  EXPECT_EQ(layout.Frame.topLeft(), QPoint(120, 40));
}

TEST(MenuLayout, ASubmenuWithoutRoomAtTheRightStandsAtTheLeft) {
  const MenuLayout layout = LayOut(Commands(3), {130, 40, 100, 17}, MenuPlacement::Beside);
  EXPECT_EQ(layout.Frame.left() + layout.Frame.width(), 130);
}

class MenuAnchorTest : public testing::TestWithParam<std::tuple<QPoint, MenuPlacement, int>> {};

TEST_P(MenuAnchorTest, AMenuAlwaysStandsInsideTheScreen) {
  const auto& [at, placement, count] = GetParam();
  const MenuLayout layout = LayOut(Commands(count), QRect(at, QSize(40, 17)), placement);
  EXPECT_TRUE(kAllScreen.contains(layout.Frame));
  for (const PaintedRow& row : layout.Rows)
    EXPECT_TRUE(QRect(QPoint(), layout.Frame.size()).contains(row.Rectangle));
}

INSTANTIATE_TEST_SUITE_P(
    Anchors, MenuAnchorTest,
    testing::Combine(testing::Values(QPoint(0, 0), QPoint(230, 0), QPoint(0, 310), QPoint(239, 319),
                                     QPoint(120, 160), QPoint(-50, -50), QPoint(500, 500)),
                     testing::Values(MenuPlacement::Drop, MenuPlacement::Beside),
                     testing::Values(1, 10, 18, 19, 200)));

TEST(MenuLayout, AMenuThatJustFitsHasNoStrips) {
  // 17 rows of 17 pixels and the border.
  const MenuLayout layout = LayOut(Commands(17));
  EXPECT_TRUE(layout.UpStrip.isNull());
  EXPECT_TRUE(layout.DownStrip.isNull());
  EXPECT_EQ(layout.Rows.size(), 17U);
}

TEST(MenuLayout, ALongerMenuShowsAsManyItemsAsFitBetweenItsStrips) {
  const MenuLayout layout = LayOutFrom(Commands(40), 1);
  EXPECT_EQ(layout.Frame.height(), 300);
  EXPECT_EQ(layout.UpStrip.height(), 10);
  EXPECT_EQ(layout.DownStrip.height(), 10);
  ASSERT_EQ(layout.Rows.size(), 16U);  // (300 - 2 - 20) / 17
  EXPECT_EQ(layout.Rows.front().Rectangle.top(), layout.UpStrip.bottom() + 1);
  EXPECT_LT(layout.Rows.back().Rectangle.bottom(), layout.DownStrip.top());
  EXPECT_EQ(layout.FirstItem, 1);
  EXPECT_EQ(layout.LastItem, 16);
}

TEST(MenuLayout, AStripThatLeadsNowhereIsNotThere) {
  const MenuLayout begin = LayOutFrom(Commands(40), 0);
  EXPECT_TRUE(begin.UpStrip.isNull());
  EXPECT_FALSE(begin.DownStrip.isNull());
  const MenuLayout end = LayOutFrom(Commands(40), 39);
  EXPECT_FALSE(end.UpStrip.isNull());
  EXPECT_TRUE(end.DownStrip.isNull());
  EXPECT_EQ(begin.Rows.front().Rectangle.top(), end.Rows.front().Rectangle.top());
}

TEST(MenuLayout, AScrolledMenuKeepsTheItemsOwnNumbers) {
  const MenuLayout layout = LayOutFrom(Commands(40), 10);
  EXPECT_EQ(layout.FirstItem, 10);
  EXPECT_EQ(layout.Rows.front().Key, 10);
  EXPECT_EQ(layout.LastItem, 25);
}

TEST(MenuLayout, AMenuScrollsNoFurtherThanItsEnds) {
  const MenuLayout end = LayOutFrom(Commands(40), 39);
  EXPECT_EQ(end.LastItem, 39);
  EXPECT_EQ(end.Rows.size(), 16U);
  EXPECT_EQ(LayOutFrom(Commands(40), -5).FirstItem, 0);
  EXPECT_EQ(LayOutFrom(Commands(5), 3).FirstItem, 0) << "nothing to scroll";
}

TEST(MenuLayout, EveryItemOfALongMenuCanBeBroughtIntoView) {
  std::vector<MenuItem> items = Commands(60);
  for (std::size_t i = 5; i < items.size(); i += 7) items[i] = Line();
  MenuLayout layout = LayOutFrom(items, 0);
  for (int item = 0; item < 60; ++item) {
    layout = LayOutFrom(items, FirstItemToShow(items, layout, item));
    EXPECT_LE(layout.FirstItem, item);
    EXPECT_GE(layout.LastItem, item);
  }
  for (int item = 59; item >= 0; --item) {
    layout = LayOutFrom(items, FirstItemToShow(items, layout, item));
    EXPECT_LE(layout.FirstItem, item);
    EXPECT_GE(layout.LastItem, item);
  }
}

TEST(MenuLayout, AnItemInViewDoesNotScrollTheMenu) {
  const std::vector<MenuItem> items = Commands(40);
  const MenuLayout layout = LayOutFrom(items, 10);
  EXPECT_EQ(FirstItemToShow(items, layout, 10), 10);
  EXPECT_EQ(FirstItemToShow(items, layout, 25), 10);
  EXPECT_EQ(FirstItemToShow(items, layout, 26), 11);
  EXPECT_EQ(FirstItemToShow(items, layout, 9), 9);
}

TEST(MenuLayout, RowsSayWhatTheyAreAndHowTheyStand) {
  MenuItem checked = Command(QStringLiteral("Checked"));
  checked.Checked = true;
  MenuItem disabled = Command(QStringLiteral("Disabled"));
  disabled.Enabled = false;
  MenuItem opens = Command(QStringLiteral("More"));
  opens.Items = {Command(QStringLiteral("Inner"))};
  const std::vector<MenuItem> items = {checked, disabled, opens, Line()};
  const MenuLayout layout =
      LayOutMenu(items, {.Anchor = {10, 30, 0, 0}, .Screen = kScreen, .Current = 2}, TenEach);
  EXPECT_EQ(layout.Rows[0].State, PaintedState(PaintedStateFlag::Checked));
  EXPECT_EQ(layout.Rows[0].Role, PaintedRole::MenuItem);
  EXPECT_EQ(layout.Rows[0].SpokenName, QStringLiteral("Checked"));
  EXPECT_EQ(layout.Rows[1].State, PaintedState(PaintedStateFlag::Disabled));
  EXPECT_EQ(layout.Rows[2].State, PaintedStateFlag::HasPopup | PaintedStateFlag::Current);
  EXPECT_EQ(layout.Rows[3].Role, PaintedRole::Separator);
}

TEST(MenuLayout, PicturesTellCheckedItemsAndSubmenus) {
  MenuItem checked = Command(QStringLiteral("Checked"));
  checked.Checked = true;
  MenuItem opens = Command(QStringLiteral("More"));
  opens.Items = {Command(QStringLiteral("Inner"))};
  const MenuLayout layout = LayOut({checked, opens, Command(QStringLiteral("Plain"))});
  const auto pictures = [&](int row) {
    std::vector<const resources::Picture*> found;
    for (const PaintedItem& item : layout.Rows[row].Items)
      if (item.Picture) found.push_back(item.Picture);
    return found;
  };
  EXPECT_EQ(pictures(0), std::vector{&resources::kCheckPicture});
  EXPECT_EQ(pictures(1), std::vector{&resources::kRightPicture});
  EXPECT_TRUE(pictures(2).empty());
}

TEST(MenuLayout, TheHighlightSkipsWhatCannotBeChosenAndWrapsRound) {
  MenuItem disabled = Command(QStringLiteral("Disabled"));
  disabled.Enabled = false;
  const std::vector<MenuItem> items = {disabled, Command(QStringLiteral("One")), Line(),
                                       Command(QStringLiteral("Two"))};
  EXPECT_EQ(NextMenuItem(items, -1, +1), 1);
  EXPECT_EQ(NextMenuItem(items, 1, +1), 3);
  EXPECT_EQ(NextMenuItem(items, 3, +1), 1);
  EXPECT_EQ(NextMenuItem(items, -1, -1), 3);
  EXPECT_EQ(NextMenuItem(items, 3, -1), 1);
  EXPECT_EQ(NextMenuItem(items, 1, -1), 3);
}

TEST(MenuLayout, AMenuWithoutAnythingToChooseHasNoHighlight) {
  EXPECT_EQ(NextMenuItem({}, -1, +1), -1);
  EXPECT_EQ(NextMenuItem({Line()}, -1, +1), -1);
  EXPECT_EQ(NextMenuItem({Line()}, 0, -1), -1);
}

TEST(MenuLayout, ATextThatIsTooLongEndsWithDotsAndIsSpokenWhole) {
  const QString subject = QString(100, u'x');
  const PaintedRow row = LayOut({Command(subject)}).Rows[0];
  EXPECT_EQ(row.Items[0].Text, QString(15, u'x') + QStringLiteral("..."));
  EXPECT_EQ(row.SpokenName, subject);
}

}  // namespace
}  // namespace quill
