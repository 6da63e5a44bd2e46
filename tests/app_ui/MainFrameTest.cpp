#include "app/ui/MainFrame.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include "FrameFixture.h"

namespace quill {
namespace {

// A store with as many commits of other programs as Number says.
class WatchedStore : public test::FaultyStore {
 public:
  using FaultyStore::FaultyStore;
  qint64 Changes() override { return Number; }

  qint64 Number = 0;
};

class MainFrameTest : public test::FrameFixture {
 protected:
  ~MainFrameTest() override { CloseSession(); }  // while the watched store is there

  // Lets queued messages arrive.
  static void Deliver() { QCoreApplication::processEvents(); }

  // Whether the view waits for half a second to rebuild its list.
  bool ViewWaits() const { return m_timers.IsRunning(m_frame->View(), kNoticeTimer); }
  static constexpr int kNoticeTimer = 3;

  void Send(QEvent::Type type) {
    QEvent event(type);
    QCoreApplication::sendEvent(m_frame.get(), &event);
  }

  // Opens a session over the store that is watched.
  void OpenWatched() {
    m_frame->View().OnInitialUpdate(m_watched);
    m_frame->WatchStore();
  }

  WatchedStore m_watched{m_store};
};

struct MessageCase {
  const char* Name;
  int Number;
  int First;
  bool Rebuilds;
};

class StoreMessageTest : public MainFrameTest, public testing::WithParamInterface<MessageCase> {};

// The view takes a first parameter of 1 for a change of its own and does nothing.
TEST_P(StoreMessageTest, ReachesTheViewWithItsParametersOrNotAtAll) {
  Open();
  m_frame->PostStoreMessage(GetParam().Number, GetParam().First, 7);
  EXPECT_FALSE(ViewWaits()) << "it is queued";
  Deliver();
  EXPECT_EQ(ViewWaits(), GetParam().Rebuilds);
  m_timers.Advance(500);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Messages, StoreMessageTest,
    testing::Values(MessageCase{"WrittenByOthers", 1025, 0, true},
                    MessageCase{"WrittenByThisProgram", 1025, 1, false},
                    MessageCase{"WrittenWithAnyOtherParameter", 1025, 2, true},
                    MessageCase{"DeletedByOthers", 1027, 0, true},
                    MessageCase{"DeletedByThisProgram", 1027, 1, false},
                    MessageCase{"ChangedByOthers", 1030, 0, true},
                    MessageCase{"ChangedByThisProgram", 1030, 1, false},
                    MessageCase{"NoticeWithZero", 10024, 0, true},
                    // Its parameters are not handed on: the view is given zeros.
                    MessageCase{"NoticeWithOne", 10024, 1, true},
                    MessageCase{"Unknown", 1026, 0, false}, MessageCase{"Nothing", 0, 0, false}),
    [](const auto& parameter) { return std::string(parameter.param.Name); });

TEST_F(MainFrameTest, ShowsTheApplicationsTitleAndTheMainMenu) {
  EXPECT_EQ(m_frame->Caption(), QStringLiteral("Quill (Quillbook)"));
  const MenuBarModel bar = m_frame->MenuBar();
  ASSERT_EQ(bar.Buttons.size(), 2U);
  EXPECT_EQ(bar.Buttons[0].Id, 57600);
  EXPECT_EQ(bar.Buttons[1].Id, ID_SHELL_INPUT_PANEL);
  ASSERT_EQ(bar.Menus.size(), 3U);
  EXPECT_EQ(bar.Menus[0].Text, QStringLiteral("Tool"));
  EXPECT_EQ(bar.Menus[1].Text, QStringLiteral("View"));
  EXPECT_EQ(bar.Menus[2].Text, QStringLiteral("Help"));
}

TEST_F(MainFrameTest, TheModeInForceIsCheckedInTheViewMenu) {
  const auto checked = [this] {
    std::vector<int> ids;
    const MenuBarModel bar = m_frame->MenuBar();
    for (const MenuItem& item : bar.Menus[1].Items)
      if (item.Checked) ids.push_back(item.Id);
    return ids;
  };
  EXPECT_EQ(checked(), std::vector<int>{59413});
  g_list.Mode = ViewMode::ByCompany;
  EXPECT_EQ(checked(), std::vector<int>{32823});
  g_list.Mode = ViewMode::ByMemo;
  EXPECT_EQ(checked(), std::vector<int>{32825});
}

TEST_F(MainFrameTest, TheControlsAreTheViews) {
  EXPECT_EQ(m_frame->Control(ContactsViewIds::kListControl)->parentWidget(), &m_frame->View());
  EXPECT_EQ(m_frame->Control(4711), nullptr);
  EXPECT_EQ(m_frame->View().geometry(), QRect(0, 0, 240, 270));
}

TEST_F(MainFrameTest, TheApplicationsCommandsAreAskedAfterTheViews) {
  EXPECT_EQ(m_frame->RunCommand(ID_APP_ABOUT), CommandResult::Done);
  EXPECT_EQ(m_abouts, 1);
  EXPECT_EQ(m_frame->RunCommand(4711), CommandResult::Unknown);
}

TEST_F(MainFrameTest, ClosingTheFrameClosesTheScreen) {
  int closed = 0;
  m_screen->Closed = [&closed] { ++closed; };
  m_frame->OnCancel();
  EXPECT_EQ(closed, 1);
}

TEST_F(MainFrameTest, ItsCommandOfThePanelsButtonRaisesAndLowersThePanel) {
  m_frame->RunCommand(ID_SHELL_INPUT_PANEL);
  EXPECT_TRUE(m_panel.IsUp());
  m_frame->RunCommand(ID_SHELL_INPUT_PANEL);
  EXPECT_FALSE(m_panel.IsUp());
}

TEST_F(MainFrameTest, ThePanelComesBackWithTheActivationThatItWasUpAt) {
  m_panel.Raise();
  Send(QEvent::WindowDeactivate);
  m_panel.Lower();
  Send(QEvent::WindowActivate);
  EXPECT_TRUE(m_panel.IsUp());
}

TEST_F(MainFrameTest, APanelThatWasDownStaysDown) {
  Send(QEvent::WindowDeactivate);
  Send(QEvent::WindowActivate);
  EXPECT_FALSE(m_panel.IsUp());
}

TEST_F(MainFrameTest, AnothersCommitIsFoundWithinAQuarterOfASecond) {
  OpenWatched();
  m_watched.Number = 1;
  m_timers.Advance(249);
  Deliver();
  EXPECT_FALSE(ViewWaits());
  m_timers.Advance(1);
  Deliver();
  EXPECT_TRUE(ViewWaits());
  m_timers.Advance(500);
}

TEST_F(MainFrameTest, AnothersCommitIsFoundOnActivationAtOnce) {
  OpenWatched();
  m_watched.Number = 1;
  Send(QEvent::WindowActivate);
  Deliver();
  EXPECT_TRUE(ViewWaits());
  m_timers.Advance(500);
}

TEST_F(MainFrameTest, WithoutACommitOfOthersNothingIsRebuilt) {
  OpenWatched();
  m_timers.Advance(5000);
  Deliver();
  EXPECT_FALSE(ViewWaits());
}

TEST_F(MainFrameTest, AHiddenWindowDoesNotLookForCommits) {
  OpenWatched();
  m_watched.Number = 1;
  m_outer->hide();
  m_timers.Advance(5000);
  Deliver();
  EXPECT_FALSE(ViewWaits());
}

}  // namespace
}  // namespace quill
