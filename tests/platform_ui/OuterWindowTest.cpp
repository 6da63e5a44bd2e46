#include "platform/ui/OuterWindow.h"

#include <QLineEdit>

#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

class OuterWindowTest : public test::ScreenFixture {};

TEST_F(OuterWindowTest, HasTheSizeOfTheScreen) {
  EXPECT_EQ(m_outer->size(), QSize(240, 320));
  EXPECT_EQ(m_screen->geometry(), QRect(0, 0, 240, 320));
}

TEST_F(OuterWindowTest, TheScreenStandsInTheCentreOfALargerOne) {
  m_outer->setFixedSize(400, 500);
  EXPECT_EQ(m_screen->geometry(), QRect(80, 90, 240, 320));
}

TEST_F(OuterWindowTest, FullScreenIsAsLargeAsTheDesktopAllows) {
  m_outer->ShowOnFullScreen();
  EXPECT_TRUE(m_outer->isFullScreen());
  EXPECT_EQ(m_screen->geometry().center(), m_outer->rect().center());
  EXPECT_EQ(m_screen->size(), QSize(240, 320));
}

TEST_F(OuterWindowTest, KeysReachTheScreenWhileNothingInItHasTheFocus) {
  test::SampleFrame frame(*m_screen);
  frame.HasContextMenu = true;
  ASSERT_EQ(m_outer->focusWidget(), nullptr);
  m_input.Key(Qt::Key_Menu);
  EXPECT_EQ(frame.Happened.size(), 1);
}

TEST_F(OuterWindowTest, AKeyThatAControlLeavesReachesTheScreenOnce) {
  test::SampleFrame frame(*m_screen);
  frame.HasContextMenu = true;
  QLineEdit editor(&frame);
  editor.show();
  editor.setFocus();
  m_input.Key(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(frame.Happened.size(), 1);
}

TEST_F(OuterWindowTest, WithoutAListenerClosingDoesNothing) {
  m_outer->CloseAsked = nullptr;
  EXPECT_FALSE(m_outer->close());
  EXPECT_FALSE(m_screen->IsClosing());
}

}  // namespace
}  // namespace quill
