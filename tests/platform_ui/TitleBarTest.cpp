#include "platform/ui/TitleBar.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "platform/ui/MenuPopup.h"
#include "platform_ui/AccessibleChild.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/Ids.h"

namespace quill {
namespace {

using test::Steps;

constexpr QPoint kOnCaption{60, 13};
constexpr QPoint kInClient{120, 150};

class TitleBarTest : public test::ScreenFixture {
 protected:
  TitleBarTest()
      : m_bar(*m_screen->findChild<CTitleBar*>()),
        m_frame(*m_screen),
        m_shellCommands({{ID_SHELL_LARGER, ID_SHELL_FULL_SCREEN,
                          [this](int id) { m_shellRan.push_back(id); }, nullptr}}) {
    m_screen->SetShellCommands(&m_shellCommands);
  }

  QPoint At(const char16_t* row) const { return RowNamed(m_bar, QString::fromUtf16(row)).center(); }
  QString ShownCaption() const { return m_bar.Rows().front().SpokenName; }

  CTitleBar& m_bar;
  test::SampleFrame m_frame;
  std::vector<int> m_shellRan;
  CommandTarget m_shellCommands;
};

TEST_F(TitleBarTest, APenHeldHalfASecondOpensTheShellsMenu) {
  const Steps steps(*m_screen, {[this] {
    ASSERT_NE(m_screen->Popup(), nullptr);
    EXPECT_EQ(m_screen->Popup()->Items().size(), 6U);
    EXPECT_TRUE(m_screen->Popup()->Choose(ID_SHELL_SMALLER));
  }});
  m_input.Press(kOnCaption);
  m_timers.Advance(499);
  EXPECT_EQ(m_screen->Popup(), nullptr);
  m_timers.Advance(1);
  EXPECT_EQ(m_shellRan, std::vector<int>{ID_SHELL_SMALLER});
}

TEST_F(TitleBarTest, TheReleaseOfTheHoldChoosesNothingInTheMenuThatOpened) {
  const Steps steps(*m_screen, {[this] { m_input.Release(kOnCaption + QPoint(5, 5)); },
                                [this] {
                                  ASSERT_NE(m_screen->Popup(), nullptr);
                                  m_screen->Popup()->Dismiss();
                                }});
  m_input.Press(kOnCaption);
  m_timers.Advance(500);
  EXPECT_TRUE(m_shellRan.empty());
}

TEST_F(TitleBarTest, TheHoldOpensOneMenuOnly) {
  const Steps steps(*m_screen, {[this] { m_screen->Popup()->Dismiss(); }});
  m_input.Press(kOnCaption);
  m_timers.Advance(5000);
  EXPECT_EQ(m_screen->Popup(), nullptr);
}

TEST_F(TitleBarTest, ATremblingPenStillHolds) {
  const Steps steps(*m_screen, {[this] { m_screen->Popup()->Dismiss(); }});
  m_input.Press(kOnCaption);
  m_input.Move(kOnCaption + QPoint(3, 3));
  m_timers.Advance(500);
}

TEST_F(TitleBarTest, APenThatMovesAwayDoesNotHold) {
  m_input.Press(kOnCaption);
  m_input.Move(kOnCaption + QPoint(4, 3));
  m_timers.Advance(2000);
  EXPECT_EQ(m_screen->Popup(), nullptr);
}

TEST_F(TitleBarTest, AReleaseInTimeDoesNotHold) {
  m_input.Press(kOnCaption);
  m_timers.Advance(499);
  m_input.Release(kOnCaption);
  m_timers.Advance(2000);
  EXPECT_EQ(m_screen->Popup(), nullptr);
  EXPECT_TRUE(m_frame.Happened.isEmpty());
}

TEST_F(TitleBarTest, APenHeldOnAButtonOpensNoMenu) {
  for (const QPoint at : {At(u"OK"), At(u"Close")}) {
    m_input.Press(at);
    m_timers.Advance(2000);
    m_input.Release(kInClient);
  }
  EXPECT_EQ(m_screen->Popup(), nullptr);
}

TEST_F(TitleBarTest, WithoutShellCommandsAHoldOpensNothing) {
  m_screen->SetShellCommands(nullptr);
  m_input.Press(kOnCaption);
  m_timers.Advance(2000);
  EXPECT_EQ(m_screen->Popup(), nullptr);
}

TEST_F(TitleBarTest, AButtonActsOnReleaseOnly) {
  for (const auto& [name, happens] : {std::pair{u"OK", u"OK"}, {u"Close", u"Cancel"}}) {
    m_frame.Happened.clear();
    m_input.Press(At(name));
    EXPECT_TRUE(m_frame.Happened.isEmpty());
    m_input.Release(At(name));
    EXPECT_EQ(m_frame.Happened, QStringList{QString::fromUtf16(happens)});
  }
}

TEST_F(TitleBarTest, AReleaseElsewhereDoesNothing) {
  for (const auto& [from, to] : {std::pair{At(u"OK"), At(u"Close")},
                                 {At(u"Close"), At(u"OK")},
                                 {At(u"Close"), kInClient},
                                 {kInClient, At(u"Close")},
                                 {kOnCaption, At(u"Close")},
                                 {At(u"Close"), kOnCaption}}) {
    m_input.Press(from);
    m_input.Move(to);
    m_input.Release(to);
  }
  EXPECT_TRUE(m_frame.Happened.isEmpty());
}

TEST_F(TitleBarTest, ShowsTheTopmostFullScreenWindow) {
  test::SampleDialog dialog(*m_screen, test::FullScreenSample());
  const Steps steps(*m_screen, {[&] {
    EXPECT_EQ(ShownCaption(), QStringLiteral("Full sample"));
    dialog.SetCaption(QStringLiteral("Another"));
    EXPECT_EQ(ShownCaption(), QStringLiteral("Another"));
    dialog.EndDialog(kResultOK);
  }});
  EXPECT_EQ(ShownCaption(), QStringLiteral("Frame"));
  dialog.DoModal();
  EXPECT_EQ(ShownCaption(), QStringLiteral("Frame"));
}

TEST_F(TitleBarTest, ItsButtonsEndAFullScreenDialog) {
  for (const auto& [name, result] : {std::pair{u"OK", kResultOK}, {u"Close", kResultCancel}}) {
    test::SampleDialog dialog(*m_screen, test::FullScreenSample());
    const Steps steps(*m_screen, {[this, name = name] { m_input.Tap(At(name)); }});
    EXPECT_EQ(dialog.DoModal(), result);
  }
  EXPECT_TRUE(m_frame.Happened.isEmpty());
}

class TitleNoticeTest : public TitleBarTest {
 protected:
  TitleNoticeTest() {
    m_screen->ShowNotice(TitleNotice{QStringLiteral("Receiving"), m_name, ID_SHELL_SMALLER});
  }
  QRect Notice() const { return RowNamed(m_bar, m_name); }

  const QString m_name = QStringLiteral("Receiving contacts");
  const std::vector<int> m_ran{ID_SHELL_SMALLER};
};

TEST_F(TitleNoticeTest, ATapRunsItsCommand) {
  m_input.Press(Notice().center());
  m_timers.Advance(2000);
  EXPECT_EQ(m_screen->Popup(), nullptr);
  EXPECT_TRUE(m_shellRan.empty());
  m_input.Release(Notice().center());
  EXPECT_EQ(m_shellRan, m_ran);
  EXPECT_TRUE(m_frame.Happened.isEmpty());
}

TEST_F(TitleNoticeTest, EscapeRunsItsCommandOnceAPress) {
  m_frame.setFocus();
  m_input.Key(Qt::Key_Escape);
  EXPECT_EQ(m_shellRan, m_ran);
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
  QCoreApplication::sendEvent(&m_frame, &repeated);
  EXPECT_EQ(m_shellRan, m_ran);
}

TEST_F(TitleNoticeTest, IsReadOutAndPressedByAssistiveTechnology) {
  test::AccessibleChild child(m_bar, u"Receiving contacts");
  EXPECT_EQ(child.Role(), QAccessible::PushButton);
  child.Press();
  EXPECT_EQ(m_shellRan, m_ran);
}

TEST_F(TitleNoticeTest, StaysBesideTheCaptionOfEveryWindow) {
  test::SampleDialog dialog(*m_screen, test::FullScreenSample());
  const Steps steps(*m_screen, {[&] {
    EXPECT_EQ(ShownCaption(), QStringLiteral("Full sample"));
    m_input.Tap(Notice().center());
    EXPECT_EQ(m_shellRan, m_ran);
    dialog.EndDialog(kResultOK);
  }});
  dialog.DoModal();
  EXPECT_TRUE(Notice().isValid());
}

TEST_F(TitleNoticeTest, BelowASmallDialogItWaits) {
  test::SampleDialog dialog(*m_screen);
  const Steps steps(*m_screen, {[this] { m_input.Tap(Notice().center()); },
                                [this] { m_input.Key(Qt::Key_Escape); }});
  EXPECT_EQ(dialog.DoModal(), kResultCancel);
  EXPECT_TRUE(m_shellRan.empty());
}

TEST_F(TitleNoticeTest, GoesWhenItIsTakenAway) {
  const QPoint at = Notice().center();
  m_screen->ShowNotice(std::nullopt);
  EXPECT_FALSE(Notice().isValid());
  m_input.Tap(at);
  m_frame.setFocus();
  m_input.Key(Qt::Key_Escape);
  EXPECT_TRUE(m_shellRan.empty());
}

TEST_F(TitleBarTest, BelowASmallDialogItKeepsTheFramesCaptionAndTakesNoPen) {
  test::SampleDialog dialog(*m_screen);
  const Steps steps(*m_screen, {[this] {
                                  EXPECT_EQ(ShownCaption(), QStringLiteral("Frame"));
                                  m_input.Tap(At(u"Close"));
                                },
                                [&dialog] { dialog.EndDialog(kResultOK); }});
  EXPECT_EQ(dialog.DoModal(), kResultOK);
  EXPECT_TRUE(m_frame.Happened.isEmpty());
}

}  // namespace
}  // namespace quill
