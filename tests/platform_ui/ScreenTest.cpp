#include "platform/ui/Screen.h"

#include <QKeyEvent>

#include "platform/ui/MenuPopup.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/Ids.h"

namespace quill {
namespace {

using test::Steps;

constexpr QRect kWholeClient{0, 26, 240, 270};
constexpr QRect kClientAbovePanel{0, 26, 240, 190};

class ScreenTest : public test::ScreenFixture {
 protected:
  ScreenTest()
      : m_frame(*m_screen),
        m_shellCommands({{ID_SHELL_LARGER, ID_SHELL_SMALLER,
                          [this](int id) { m_shellRan.push_back(id); }, nullptr}}) {
    m_screen->SetShellCommands(&m_shellCommands);
  }

  test::SampleFrame m_frame;
  std::vector<int> m_shellRan;
  CommandTarget m_shellCommands;
};

class Card : public CWindow {
 public:
  explicit Card(CScreen& screen) : CWindow(screen) { screen.Push(*this); }
  ~Card() override { Screen().Remove(*this); }
  WindowKind Kind() const override { return WindowKind::Card; }
  WindowSize Size() const override { return WindowSize::Small; }
};

TEST_F(ScreenTest, TheUppermostWindowTakesCommandsButACardNever) {
  EXPECT_EQ(m_screen->Topmost(), &m_frame);
  const Card card(*m_screen);
  EXPECT_EQ(m_screen->Topmost(), &m_frame);
  EXPECT_EQ(m_screen->Windows().size(), 2U);
  m_screen->RunCommand(7);
  EXPECT_EQ(m_frame.Ran, std::vector<int>{7});
}

struct ContextKey {
  const char* Name;
  int Key;
  Qt::KeyboardModifiers Modifiers;
};

class ContextKeyTest : public ScreenTest, public testing::WithParamInterface<ContextKey> {};

TEST_P(ContextKeyTest, OpensTheShellsMenuOnAWindowWithoutAPopupOfItsOwn) {
  const Steps steps(*m_screen, {[this] {
    ASSERT_NE(m_screen->Popup(), nullptr);
    EXPECT_EQ(m_screen->Popup()->Items()[0].Id, ID_SHELL_LARGER);
    EXPECT_FALSE(m_screen->Popup()->Items()[2].Enabled) << "nothing runs it";
    m_screen->Popup()->Choose(ID_SHELL_LARGER);
  }});
  m_input.Key(GetParam().Key, GetParam().Modifiers);
  EXPECT_EQ(m_shellRan, std::vector<int>{ID_SHELL_LARGER});
}

TEST_P(ContextKeyTest, OpensTheWindowsOwnPopupWhereItHasOne) {
  m_frame.HasContextMenu = true;
  m_input.Key(GetParam().Key, GetParam().Modifiers);
  EXPECT_EQ(m_frame.Happened, QStringList{QStringLiteral("Context menu")});
  EXPECT_EQ(m_screen->Popup(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Keys, ContextKeyTest,
                         testing::Values(ContextKey{"Menu", Qt::Key_Menu, Qt::NoModifier},
                                         ContextKey{"ShiftF10", Qt::Key_F10, Qt::ShiftModifier}),
                         [](const auto& parameter) { return std::string(parameter.param.Name); });

TEST_F(ScreenTest, ControlPlusAndMinusRunTheShellsScaleCommands) {
  m_input.Key(Qt::Key_Plus, Qt::ControlModifier);
  m_input.Key(Qt::Key_Equal, Qt::ControlModifier);
  m_input.Key(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(m_shellRan, (std::vector<int>{ID_SHELL_LARGER, ID_SHELL_LARGER, ID_SHELL_SMALLER}));
  m_input.Key(Qt::Key_Plus);
  EXPECT_EQ(m_shellRan.size(), 3U) << "not without Control";
}

TEST_F(ScreenTest, WindowsAreToldWhatThePanelLeavesOfTheScreen) {
  m_panel.Raise();
  m_panel.Raise();
  m_panel.Lower();
  EXPECT_EQ(m_frame.VisibleAreas, (std::vector<QRect>{kClientAbovePanel, kWholeClient}));
}

TEST_F(ScreenTest, IsIdleWhileNeitherModalWindowNorPopupIsOpen) {
  EXPECT_TRUE(m_screen->IsIdle());
  test::SampleDialog dialog(*m_screen);
  const Steps dialogSteps(*m_screen, {[this] { EXPECT_FALSE(m_screen->IsIdle()); },
                                      [&dialog] { dialog.EndDialog(kResultOK); }});
  dialog.DoModal();
  EXPECT_TRUE(m_screen->IsIdle());
  const Steps menuSteps(*m_screen, {[this] { EXPECT_FALSE(m_screen->IsIdle()); },
                                    [this] { m_screen->Popup()->Dismiss(); }});
  m_screen->ShowShellMenu({0, 0});
  EXPECT_TRUE(m_screen->IsIdle());
}

TEST_F(ScreenTest, ClosingWithoutModalWindowsCallsClosedAtOnce) {
  int closed = 0;
  m_screen->Closed = [&closed] { ++closed; };
  m_screen->CloseAll();
  EXPECT_EQ(closed, 1);
  EXPECT_TRUE(m_screen->IsClosing());
}

TEST_F(ScreenTest, ClosingDismissesAPopup) {
  const Steps steps(*m_screen, {[this] { m_screen->CloseAll(); }});
  m_screen->ShowShellMenu({0, 0});
  EXPECT_TRUE(m_shellRan.empty());
}

TEST_F(ScreenTest, ClosingEndsModalWindowsFromTheTopWithCancel) {
  QStringList ended;
  int closed = 0;
  m_screen->Closed = [&closed] { ++closed; };
  test::SampleDialog lower(*m_screen);
  test::SampleDialog upper(*m_screen);
  const auto run = [&ended](test::SampleDialog& dialog, const QString& name) {
    EXPECT_EQ(dialog.DoModal(), kResultCancel);
    ended.append(name);
  };
  const Steps steps(
      *m_screen, {[&] { run(upper, QStringLiteral("upper")); }, [this] { m_screen->CloseAll(); }});
  run(lower, QStringLiteral("lower"));
  EXPECT_EQ(ended, (QStringList{QStringLiteral("upper"), QStringLiteral("lower")}));
  EXPECT_EQ(closed, 1);
  EXPECT_EQ(m_screen->Windows(), std::vector<CWindow*>{&m_frame});
}

TEST_F(ScreenTest, TheDesktopClosingItsWindowClosesTheScreenButHidesNothing) {
  EXPECT_FALSE(m_outer->close());
  EXPECT_TRUE(m_screen->IsClosing());
  EXPECT_TRUE(m_outer->isVisible());
}

TEST_F(ScreenTest, ControlReturnAndControlWDoWhatTheTitleBarsButtonsDo) {
  m_input.Key(Qt::Key_Return, Qt::ControlModifier);
  m_input.Key(Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(m_frame.Happened, (QStringList{QStringLiteral("OK"), QStringLiteral("Cancel")}));
}

TEST_F(ScreenTest, ControlReturnEndsADialogWithOKWhateverHasTheFocus) {
  test::SampleDialog dialog(*m_screen);
  const Steps steps(*m_screen, {[&dialog] { dialog.Control(kResultCancel)->setFocus(); },
                                [this] { m_input.Key(Qt::Key_Return, Qt::ControlModifier); }});
  EXPECT_EQ(dialog.DoModal(), kResultOK);
}

TEST_F(ScreenTest, AHeldKeyRunsItsCommandOnce) {
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_W, Qt::ControlModifier, {}, true);
  QCoreApplication::sendEvent(&m_frame, &repeated);
  EXPECT_TRUE(m_frame.Happened.isEmpty());
}

TEST_F(ScreenTest, ControlF10OpensTheTitleBarsMenuAlsoWhereTheWindowHasAPopup) {
  m_frame.HasContextMenu = true;
  const Steps steps(*m_screen, {[this] {
    ASSERT_NE(m_screen->Popup(), nullptr);
    EXPECT_EQ(m_screen->Popup()->Items()[0].Id, ID_SHELL_LARGER);
    m_screen->Popup()->Dismiss();
  }});
  m_input.Key(Qt::Key_F10, Qt::ControlModifier);
  EXPECT_TRUE(m_frame.Happened.isEmpty());
}

TEST_F(ScreenTest, F9ShowsAndHidesTheKeys) {
  m_input.Key(Qt::Key_F9);
  EXPECT_TRUE(m_panel.IsUp());
  m_input.Key(Qt::Key_F9);
  EXPECT_FALSE(m_panel.IsUp());
}

}  // namespace
}  // namespace quill
