#include "settings/ui/NameEntryDlg.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>

#include "platform/Services.h"
#include "platform_ui/DialogFixture.h"

namespace quill {
namespace {

using test::Steps;

const QString kPath = QStringLiteral("\\My Documents\\Fennick\\A rather long name of a memo.pwi");

class NameEntryDlgTest : public test::DialogFixture {
 protected:
  static QLineEdit& Editor(const CDialog& dialog) { return Get<QLineEdit>(dialog, 1017); }

  CNameEntryDlg m_dialog{*m_screen, NameEntryMode::Rename, kPath};
};

struct ModeCase {
  NameEntryMode Mode;
  const char16_t* Title;
};

class NameEntryTitle : public NameEntryDlgTest, public testing::WithParamInterface<ModeCase> {};

TEST_P(NameEntryTitle, SaysWhatTheNameIsForInCaptionAndLabel) {
  const CNameEntryDlg dialog(*m_screen, GetParam().Mode, QString());
  const QString title = QString::fromUtf16(GetParam().Title);
  EXPECT_EQ(dialog.Caption(), title);
  EXPECT_EQ(Get<QLabel>(dialog, 1012).text(), title);
  EXPECT_EQ(Editor(dialog).accessibleName(), title);
}

INSTANTIATE_TEST_SUITE_P(Modes, NameEntryTitle,
                         testing::Values(ModeCase{NameEntryMode::Copy, u"Copy As"},
                                         ModeCase{NameEntryMode::Rename, u"Rename As"},
                                         ModeCase{NameEntryMode::Save, u"Save As"},
                                         ModeCase{static_cast<NameEntryMode>(9), u"Save As"}));

TEST_F(NameEntryDlgTest, OpensWithTheWholePresetSelectedInFocusAndThePanelUp) {
  const Steps steps(*m_screen, {[this] {
    EXPECT_EQ(QApplication::focusWidget(), &Editor(m_dialog));
    EXPECT_EQ(Editor(m_dialog).selectedText(), kPath);
    EXPECT_EQ(Editor(m_dialog).cursorPosition(), kPath.size());
    EXPECT_TRUE(m_panel.IsUp());
    m_input.Key(Qt::Key_Escape);
  }});
  m_dialog.DoModal();
}

TEST_F(NameEntryDlgTest, OKTakesTheTextAsItIsAndLowersThePanel) {
  const Steps steps(*m_screen, {[this] { m_input.Type(QStringLiteral(" a/b ")); },
                                [this] {
                                  EXPECT_EQ(m_dialog.Text(), QString());
                                  TapControl(m_dialog, 1064);
                                }});
  EXPECT_EQ(m_dialog.DoModal(), kResultOK);
  EXPECT_EQ(m_dialog.Text(), QStringLiteral(" a/b "));
  EXPECT_FALSE(m_panel.IsUp());
}

TEST_F(NameEntryDlgTest, ReturnIsOK) {
  const Steps steps(*m_screen, {[this] { m_input.Key(Qt::Key_Return); }});
  EXPECT_EQ(m_dialog.DoModal(), kResultOK);
  EXPECT_EQ(m_dialog.Text(), kPath);
}

TEST_F(NameEntryDlgTest, CancelGivesNoTextAndLeavesThePanelUp) {
  const Steps steps(*m_screen, {[this] { TapControl(m_dialog, 2); }});
  EXPECT_EQ(m_dialog.DoModal(), kResultCancel);
  EXPECT_EQ(m_dialog.Text(), QString());
  EXPECT_TRUE(m_panel.IsUp());
}

TEST_F(NameEntryDlgTest, WorksWithoutAnInputPanel) {
  g_services.InputPanel = nullptr;
  const Steps steps(*m_screen, {[this] { TapControl(m_dialog, 1064); }});
  EXPECT_EQ(m_dialog.DoModal(), kResultOK);
}

class NameAsking : public NameEntryDlgTest {
 protected:
  // Answered by this key.
  std::optional<QString> Ask(Qt::Key answer) {
    const Steps steps(*m_screen, {[this, answer] { m_input.Key(answer); }});
    return AskForName(*m_screen, NameEntryMode::Copy, kPath);
  }
};

TEST_F(NameAsking, GivesTheNameThatOKTook) {
  EXPECT_EQ(Ask(Qt::Key_Return), kPath);
  EXPECT_FALSE(m_panel.IsUp());
}

TEST_F(NameAsking, GivesNothingAfterCancelAndThePanelGoesDownWithTheDialog) {
  EXPECT_EQ(Ask(Qt::Key_Escape), std::nullopt);
  EXPECT_FALSE(m_panel.IsUp());
}

TEST_F(NameAsking, APanelThatWasUpBeforeStaysUpAfterCancel) {
  m_panel.Raise();
  EXPECT_EQ(Ask(Qt::Key_Escape), std::nullopt);
  EXPECT_TRUE(m_panel.IsUp());
}

TEST_F(NameAsking, WorksWithoutAnInputPanel) {
  g_services.InputPanel = nullptr;
  EXPECT_EQ(Ask(Qt::Key_Escape), std::nullopt);
}

TEST_F(NameEntryDlgTest, StandsAboveTheInputPanel) {
  m_panel.Raise();
  EXPECT_LE(m_dialog.geometry().bottom(), m_panel.VisibleArea().bottom());
}

}  // namespace
}  // namespace quill
