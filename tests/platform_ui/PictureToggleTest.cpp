#include "platform/ui/PictureToggle.h"

#include <QAccessible>
#include <QImage>

#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

class PictureToggleTest : public test::ScreenFixture {
 protected:
  PictureToggleTest() : m_frame(*m_screen), m_toggle(QStringLiteral("Sun"), &m_frame) {
    m_toggle.setGeometry(10, 10, 30, 28);
    m_toggle.show();
  }

  QPoint OnToggle() const { return m_toggle.mapTo(m_screen, m_toggle.rect().center()); }
  QImage Look() { return m_toggle.grab().toImage(); }

  test::SampleFrame m_frame;
  CPictureToggle m_toggle;
};

TEST_F(PictureToggleTest, ATapTurnsItOver) {
  EXPECT_FALSE(m_toggle.isChecked());
  m_input.Tap(OnToggle());
  EXPECT_TRUE(m_toggle.isChecked());
  m_input.Tap(OnToggle());
  EXPECT_FALSE(m_toggle.isChecked());
}

TEST_F(PictureToggleTest, APenThatLeavesItChangesNothing) {
  m_input.Press(OnToggle());
  m_input.Move({200, 200});
  m_input.Release({200, 200});
  EXPECT_FALSE(m_toggle.isChecked());
}

TEST_F(PictureToggleTest, TheSpaceBarTurnsItOver) {
  m_toggle.setFocus(Qt::TabFocusReason);
  m_input.Key(Qt::Key_Space);
  EXPECT_TRUE(m_toggle.isChecked());
}

TEST_F(PictureToggleTest, OnOffPressedAndInFocusLookDifferent) {
  const QImage off = Look();
  m_toggle.setChecked(true);
  const QImage on = Look();
  m_toggle.setDown(true);
  const QImage pressed = Look();
  m_toggle.setDown(false);
  m_toggle.setFocus();
  const QImage focused = Look();
  EXPECT_NE(off, on);
  EXPECT_NE(on, pressed);
  EXPECT_NE(on, focused);
}

TEST_F(PictureToggleTest, IsACheckBoxToAssistiveTechnology) {
  auto* const accessible = QAccessible::queryAccessibleInterface(&m_toggle);
  EXPECT_EQ(accessible->role(), QAccessible::CheckBox);
  EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Sun"));
  EXPECT_FALSE(accessible->state().checked);
  accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_TRUE(accessible->state().checked);
}

}  // namespace
}  // namespace quill
