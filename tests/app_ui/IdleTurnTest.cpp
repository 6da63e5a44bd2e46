#include "app/ui/IdleTurn.h"

#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

class IdleTurnTest : public test::ScreenFixture {
 protected:
  void Await() {
    m_turn.Await([this] { ++m_calls; });
  }

  test::SampleFrame m_frame{*m_screen};
  IdleTurn m_turn{*m_screen, m_timers};
  int m_calls = 0;
};

TEST_F(IdleTurnTest, ComesAtOnceAndOnceWhenAllIsIdle) {
  Await();
  EXPECT_EQ(m_calls, 1);
  m_timers.Advance(5000);
  EXPECT_EQ(m_calls, 1);
}

TEST_F(IdleTurnTest, WaitsUntilThePenIsUp) {
  m_input.Press({120, 160});
  Await();
  m_timers.Advance(5000);
  EXPECT_EQ(m_calls, 0);
  m_input.Release({120, 160});
  m_timers.Advance(100);
  EXPECT_EQ(m_calls, 1);
}

TEST_F(IdleTurnTest, WaitsUntilADialogHasClosed) {
  test::SampleDialog dialog(*m_screen);
  const test::Steps steps(*m_screen, {[&] {
    Await();
    m_timers.Advance(5000);
    EXPECT_EQ(m_calls, 0);
    dialog.EndDialog(kResultOK);
  }});
  dialog.DoModal();
  m_timers.Advance(100);
  EXPECT_EQ(m_calls, 1);
}

TEST_F(IdleTurnTest, WaitsUntilAMenuHasClosed) {
  const test::Steps steps(*m_screen, {[this] {
    Await();
    m_timers.Advance(5000);
    EXPECT_EQ(m_calls, 0);
    m_screen->DropPopup();
  }});
  m_screen->TrackMenu({10, 10}, {{.Text = QStringLiteral("One"), .Id = 1}});
  m_timers.Advance(100);
  EXPECT_EQ(m_calls, 1);
}

TEST_F(IdleTurnTest, DoesNotComeOnceItIsCancelled) {
  m_input.Press({120, 160});
  Await();
  m_turn.Cancel();
  m_input.Release({120, 160});
  m_timers.Advance(5000);
  EXPECT_EQ(m_calls, 0);
}

TEST_F(IdleTurnTest, DoesNotComeOnceItIsGone) {
  m_input.Press({120, 160});
  {
    IdleTurn turn(*m_screen, m_timers);
    turn.Await([this] { ++m_calls; });
  }
  m_input.Release({120, 160});
  m_timers.Advance(5000);
  EXPECT_EQ(m_calls, 0);
}

}  // namespace
}  // namespace quill
