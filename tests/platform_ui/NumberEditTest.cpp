#include "platform/ui/NumberEdit.h"

#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

class NumberEditTest : public test::ScreenFixture {
 protected:
  NumberEditTest() {
    m_edit.show();
    m_edit.setFocus();
  }

  test::SampleFrame m_frame{*m_screen};
  CNumberEdit m_edit{QStringLiteral("Amount"), &m_frame};
};

TEST_F(NumberEditTest, TakesSixDigitsAndNothingElse) {
  m_input.Type(QStringLiteral("1a-2.3 4567"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("123456"));
  EXPECT_EQ(m_edit.Number(), 123456);
}

TEST_F(NumberEditTest, EmptyIsNone) { EXPECT_EQ(m_edit.Number(), 0); }

TEST_F(NumberEditTest, HasANameAndThePanelUpWithTheFocus) {
  EXPECT_EQ(m_edit.accessibleName(), QStringLiteral("Amount"));
  EXPECT_TRUE(m_panel.IsUp());
}

}  // namespace
}  // namespace quill
