#include "settings/ui/DeleteConfirmDlg.h"

#include <QImage>
#include <QLabel>
#include <QPushButton>

#include "platform_ui/DialogFixture.h"
#include "settings/DeleteScope.h"

namespace quill {
namespace {

class DeleteConfirmDlgTest : public test::DialogFixture {
 protected:
  ~DeleteConfirmDlgTest() override { g_deleteScope = {}; }

  CDeleteConfirmDlg m_dialog{*m_screen};
};

TEST_F(DeleteConfirmDlgTest, StandsWithItsControlsAtTheirPlaces) {
  EXPECT_EQ(m_dialog.Caption(), QStringLiteral("Delete"));
  EXPECT_EQ(m_dialog.geometry(), QRect(30, 40, 180, 140));
  EXPECT_EQ(ClientPlace(m_dialog, 1030), QRect(20, 20, 140, 50));
  EXPECT_EQ(ClientPlace(m_dialog, 1064), QRect(20, 75, 64, 26));
  EXPECT_EQ(ClientPlace(m_dialog, 2), QRect(95, 75, 64, 26));
  EXPECT_EQ(Get<QPushButton>(m_dialog, 1064).text(), QStringLiteral("OK"));
  EXPECT_EQ(Get<QPushButton>(m_dialog, 2).text(), QStringLiteral("Cancel"));
}

TEST_F(DeleteConfirmDlgTest, AsksAboutTheScopeOfTheMomentWhenItOpens) {
  g_deleteScope = DeleteScope::All;
  const auto& message = Get<QLabel>(m_dialog, 1030);
  const test::Steps steps(*m_screen, {[&] {
    EXPECT_EQ(message.text(), DeleteQuestion(DeleteScope::All));
    m_input.Key(Qt::Key_Escape);
  }});
  m_dialog.DoModal();
  g_deleteScope = DeleteScope::Selected;
  const test::Steps again(*m_screen, {[&] {
    EXPECT_EQ(message.text(), DeleteQuestion(DeleteScope::Selected));
    m_input.Key(Qt::Key_Escape);
  }});
  m_dialog.DoModal();
}

TEST_F(DeleteConfirmDlgTest, EndsWithTheButtonThatIsTapped) {
  const test::Steps ok(*m_screen, {[this] { TapControl(m_dialog, 1064); }});
  EXPECT_EQ(m_dialog.DoModal(), kResultOK);
  const test::Steps cancel(*m_screen, {[this] { TapControl(m_dialog, 2); }});
  EXPECT_EQ(m_dialog.DoModal(), kResultCancel);
}

TEST_F(DeleteConfirmDlgTest, ItsGroundIsGreyAndItsButtonsAreToo) {
  EXPECT_EQ(m_dialog.grab().toImage().pixelColor(90, 130), QColor(192, 192, 192));
  EXPECT_EQ(m_dialog.Control(1064)->palette().color(QPalette::Button), QColor(192, 192, 192));
}

TEST_F(DeleteConfirmDlgTest, TheLongerQuestionFitsItsLabel) {
  g_deleteScope = DeleteScope::All;
  const test::Steps steps(*m_screen, {[this] {
    const auto& message = Get<QLabel>(m_dialog, 1030);
    EXPECT_LE(message.heightForWidth(message.width()), message.height());
    m_input.Key(Qt::Key_Escape);
  }});
  m_dialog.DoModal();
}

}  // namespace
}  // namespace quill
