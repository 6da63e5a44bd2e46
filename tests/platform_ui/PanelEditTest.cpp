#include "platform/ui/PanelEdit.h"

#include "platform/Services.h"
#include "platform/ui/MenuPopup.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

class PanelEditTest : public test::ScreenFixture {
 protected:
  PanelEditTest() : m_frame(*m_screen), m_edit(QStringLiteral("02"), &m_frame), m_other(&m_frame) {
    m_edit.setGeometry(10, 10, 100, 18);
    m_other.setGeometry(10, 40, 100, 18);
    m_edit.show();
    m_other.show();
    m_other.setFocus();
  }

  // Opens the editor's menu and dismisses it; whether the panel was up meanwhile.
  bool IsUpBelowTheMenu() {
    bool up = false;
    const test::Steps steps(*m_screen, {[this, &up] {
      up = m_panel.IsUp();
      m_screen->Popup()->Dismiss();
    }});
    m_input.Key(Qt::Key_Menu);
    return up;
  }

  test::SampleFrame m_frame;
  CPanelEdit m_edit;
  QLineEdit m_other;
};

TEST_F(PanelEditTest, HasThePanelUpWhileItHasTheFocus) {
  m_input.Tap(m_edit.mapTo(m_screen, m_edit.rect().center()));
  EXPECT_TRUE(m_panel.IsUp());
  m_input.Tap(m_other.mapTo(m_screen, m_other.rect().center()));
  EXPECT_FALSE(m_panel.IsUp());
}

TEST_F(PanelEditTest, LowersItWhenItGoesOutOfSight) {
  m_edit.setFocus();
  m_edit.hide();
  EXPECT_FALSE(m_panel.IsUp());
}

TEST_F(PanelEditTest, ItsMenuMovesThePanelNeitherUpNorDown) {
  m_edit.setFocus();
  EXPECT_TRUE(IsUpBelowTheMenu());
  EXPECT_TRUE(m_panel.IsUp());
  m_panel.Lower();
  EXPECT_FALSE(IsUpBelowTheMenu());
  EXPECT_FALSE(m_panel.IsUp());
}

TEST_F(PanelEditTest, IsStillAnEditor) {
  m_edit.setFocus();
  EXPECT_TRUE(m_edit.hasFocus());
  m_edit.selectAll();
  m_input.Type(QStringLiteral("031"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("031"));
  m_other.setFocus();
  m_edit.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(m_edit.selectedText(), QStringLiteral("031")) << "as Tab does in every editor";
}

TEST_F(PanelEditTest, LeavingItSaysThatEditingEnded) {
  int ended = 0;
  QObject::connect(&m_edit, &QLineEdit::editingFinished, &m_edit, [&ended] { ++ended; });
  m_edit.setFocus();
  m_input.Type(QStringLiteral("031"));
  m_other.setFocus();
  EXPECT_EQ(ended, 1);
}

TEST_F(PanelEditTest, WorksWithoutAnInputPanel) {
  g_services.InputPanel = nullptr;
  m_edit.setFocus();
  EXPECT_TRUE(m_edit.hasFocus());
  m_other.setFocus();
  EXPECT_FALSE(m_edit.hasFocus());
}

}  // namespace
}  // namespace quill
