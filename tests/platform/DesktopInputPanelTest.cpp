#include "platform/DesktopInputPanel.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

TEST(DesktopInputPanel, IsDownAtFirstAndLeavesTheWholeClientArea) {
  const DesktopInputPanel panel;
  EXPECT_FALSE(panel.IsUp());
  EXPECT_EQ(panel.VisibleArea(), QRect(0, 26, 240, 270));
}

TEST(DesktopInputPanel, TakesTheLowerEightyPixelsWhileItIsUp) {
  DesktopInputPanel panel;
  panel.Raise();
  EXPECT_TRUE(panel.IsUp());
  EXPECT_EQ(panel.VisibleArea(), QRect(0, 26, 240, 190));
  panel.Lower();
  EXPECT_EQ(panel.VisibleArea(), QRect(0, 26, 240, 270));
}

TEST(DesktopInputPanel, TellsEachRealChangeOnceAndAfterwards) {
  DesktopInputPanel panel;
  std::vector<bool> told;
  panel.Changed = [&] { told.push_back(panel.IsUp()); };
  panel.Lower();
  panel.Raise();
  panel.Raise();
  panel.Lower();
  EXPECT_EQ(told, (std::vector<bool>{true, false}));
}

}  // namespace
}  // namespace quill
