#include "list/ListAreas.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

TEST(ListAreas, LeaveRoomForTheIndexStripWhereItIsShown) {
  const Settings settings{.Abc = 1};
  EXPECT_TRUE(ShowsIndexStrip(settings));
  EXPECT_EQ(LayOutAreas(settings), (ListAreas{14, {0, 45, 225, 225}, {225, 45, 15, 222}}));
}

TEST(ListAreas, MoveUpWithARowMoreWhereTheIndexStripIsHidden) {
  const Settings settings{.Abc = 0};
  EXPECT_FALSE(ShowsIndexStrip(settings));
  EXPECT_EQ(LayOutAreas(settings), (ListAreas{15, {0, 25, 225, 245}, {225, 25, 15, 242}}));
}

TEST(ListAreas, AnyStoredNumberButZeroShowsTheIndexStrip) {
  EXPECT_TRUE(ShowsIndexStrip(Settings{.Abc = 7}));
}

}  // namespace
}  // namespace quill
