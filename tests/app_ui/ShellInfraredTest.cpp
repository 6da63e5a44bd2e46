#include "app/ui/ShellInfrared.h"

#include <QTcpServer>
#include <QTemporaryDir>

#include "app/Program.h"
#include "infrared/ObexPeers.h"
#include "infrared/ObexTcpSender.h"
#include "platform/Services.h"
#include "platform/ui/TitleBar.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"
#include "resources/Ids.h"
#include "support/InfraredLog.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

ProgramOptions OptionsAt(const QString& home) {
  ProgramOptions options;
  options.Where = HomePlaces(home, {});
  return options;
}

quint16 FreePort() {
  QTcpServer server;
  EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
  return server.serverPort();
}

class ShellInfraredTest : public test::ScreenFixture {
 protected:
  ShellInfraredTest() : m_program(OptionsAt(m_home.path())) {
    g_services.Prompt = &m_prompt;
    EXPECT_TRUE(WriteInfraredSettings(*g_services.Registry,
                                      {.Port = m_port, .TrustedPeers = {u"127.0.0.1"_qs}}));
  }
  ~ShellInfraredTest() override {
    m_infrared.reset();
    m_program.Store().Close();
    g_services.Prompt = nullptr;
    g_services.Infrared = nullptr;
  }

  void Begin() { m_infrared.emplace(*m_screen, m_program, m_timers); }
  bool ShowsMarker() const {
    const auto& bar = *m_screen->findChild<CTitleBar*>();
    return RowNamed(bar, QStringLiteral("Receiving contacts. Stop")).isValid();
  }

  QTemporaryDir m_home;
  const quint16 m_port = FreePort();
  Program m_program;
  test::ScriptedPrompt m_prompt;
  test::SampleFrame m_frame{*m_screen};
  std::optional<ShellInfrared> m_infrared;
};

TEST_F(ShellInfraredTest, IsTheDevicesFolderForAsLongAsItLives) {
  Begin();
  EXPECT_NE(g_services.Infrared, nullptr);
  m_infrared.reset();
  EXPECT_EQ(g_services.Infrared, nullptr);
}

TEST_F(ShellInfraredTest, LeavesAnotherFolderInItsPlace) {
  test::InfraredLog other;
  g_services.Infrared = &other;
  Begin();
  EXPECT_EQ(g_services.Infrared, &other);
  EXPECT_FALSE(m_infrared->IsReceiving());
  m_infrared->StopReceiving();
  m_infrared.reset();
  EXPECT_EQ(g_services.Infrared, &other);
}

TEST_F(ShellInfraredTest, MarksAReceiveForAsLongAsItIsOn) {
  Begin();
  EXPECT_FALSE(ShowsMarker());
  ASSERT_TRUE(g_services.Infrared->Receive());
  EXPECT_TRUE(ShowsMarker());
  EXPECT_TRUE(m_infrared->IsReceiving());
  m_timers.Advance(120'000);
  EXPECT_FALSE(ShowsMarker());
  EXPECT_FALSE(m_infrared->IsReceiving());
}

TEST_F(ShellInfraredTest, AReceiveThatCannotBeginIsNotMarked) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost, m_port));
  Begin();
  EXPECT_FALSE(g_services.Infrared->Receive());
  EXPECT_FALSE(ShowsMarker());
}

TEST_F(ShellInfraredTest, StopsAReceiveOnceTheUserWantsIt) {
  Begin();
  m_infrared->StopReceiving();
  ASSERT_TRUE(g_services.Infrared->Receive());
  m_prompt.Expect(PromptAnswer::No);
  m_infrared->StopReceiving();
  EXPECT_TRUE(ShowsMarker());
  m_prompt.Expect(PromptAnswer::Yes);
  m_infrared->StopReceiving();
  EXPECT_FALSE(ShowsMarker());
  EXPECT_EQ(m_prompt.Shown()[0].Text, QStringLiteral("Stop receiving contacts?"));
}

TEST_F(ShellInfraredTest, MayGoWhileAReceiveIsOn) {
  Begin();
  ASSERT_TRUE(g_services.Infrared->Receive());
  m_infrared.reset();
  Begin();
  EXPECT_TRUE(g_services.Infrared->Receive()) << "the port is free again";
}

TEST_F(ShellInfraredTest, TellsOfContactsThatCameIn) {
  StoreProvider& store = m_program.Store();
  ASSERT_EQ(store.Create() + store.Logon() + store.OpenFolder(FolderKind::Contacts), 0);
  Begin();
  int received = 0;
  m_infrared->ContactsReceived = [&] { ++received; };
  const qint64 changes = store.Changes();
  ASSERT_TRUE(g_services.Infrared->Receive());
  ObexTcpSender sender(m_timers);
  std::vector<ObexOutcome> outcomes;
  sender.Send(u"127.0.0.1"_qs, m_port,
              {{{}, "BEGIN:VCARD\r\nVERSION:2.1\r\nN:Lee\r\nEND:VCARD\r\n"}},
              [&](const std::vector<ObexOutcome>& all) { outcomes = all; });
  ASSERT_TRUE(test::Until([&] { return !outcomes.empty(); }));
  EXPECT_EQ(received, 1);
  EXPECT_EQ(store.Contacts()->Count(store.Contacts()->Items()), 1);
  EXPECT_EQ(store.Changes(), changes) << "nor is it found as another program's";
}

}  // namespace
}  // namespace quill
