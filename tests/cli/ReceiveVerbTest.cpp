#include "cli/ReceiveVerb.h"

#include <QTcpServer>
#include <QTimer>

#include <gmock/gmock.h>

#include "cli/ConsoleFixture.h"
#include "cli/InputFrom.h"
#include "infrared/InfraredSettings.h"
#include "infrared/ObexPeers.h"
#include "infrared/ObexTcpSender.h"
#include "platform/JsonRegistry.h"
#include "platform/QtTimers.h"

namespace quill {
namespace {

using testing::HasSubstr;

const QByteArray kCard =
    "BEGIN:VCARD\r\nVERSION:2.1\r\nN:Abel;Ann\r\nTEL;CELL:010-0000-0001\r\nEND:VCARD\r\n";

class ReceiveVerb : public test::ConsoleFixture {
 protected:
  static quint16 FreePort() {
    QTcpServer server;
    EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
    return server.serverPort();
  }
  // Receives on a port to which cards are pushed meanwhile.
  int Receive(const QStringList& options, std::vector<ObexSending> cards,
              const QString& host = u"127.0.0.1"_qs) {
    QtTimers timers;
    ObexTcpSender sender(timers);
    QTimer::singleShot(0, &timers, [&] {
      sender.Send(host, m_port, std::move(cards),
                  [this](const std::vector<ObexOutcome>& outcomes) { m_outcomes = outcomes; });
    });
    const int exitCode =
        Run(QStringList{u"receive"_qs, u"--port"_qs, QString::number(m_port)} + options);
    if (exitCode == kExitDone) test::Until([this] { return !m_outcomes.empty(); });
    return exitCode;
  }
  InfraredSettings Kept() const {
    return ReadInfraredSettings(JsonRegistry(Home() + u"/settings.json"_qs));
  }

  quint16 m_port = FreePort();
  std::vector<ObexOutcome> m_outcomes;
};

TEST_F(ReceiveVerb, StoresWhatATrustedPeerPushesAndPrintsIt) {
  EXPECT_EQ(Receive({u"--trust"_qs, u"127.0.0.1"_qs, u"--count"_qs, u"2"_qs},
                    {{{}, kCard}, {{}, "BEGIN:VCARD\nFN:Bob\nEND:VCARD\n"}}),
            kExitDone);
  EXPECT_EQ(TakeOut(),
            "Abel Ann: 1 new, 0 changed, 0 the same, 0 unreadable\n"
            "Bob: 1 new, 0 changed, 0 the same, 0 unreadable\n");
  EXPECT_EQ(TakeErr(), "listening on port " + std::to_string(m_port) + ", for this machine\n");
  EXPECT_EQ(m_outcomes, (std::vector{ObexOutcome::Done, ObexOutcome::Done}));
  EXPECT_EQ(Run({u"list"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(), "Abel, Ann\nBob\n");
}

TEST_F(ReceiveVerb, AsksOnTheTerminal) {
  QFile answers(MakeFile(u"answers"_qs, "n\ny\n"));
  const test::InputFrom input(answers);
  EXPECT_EQ(Receive({u"--count"_qs, u"1"_qs},
                    {{u"a.vcf"_qs, kCard}, {{}, "BEGIN:VCARD\nFN:Bob\nEND:VCARD\n"}}),
            kExitDone);
  EXPECT_EQ(TakeOut(), "Bob: 1 new, 0 changed, 0 the same, 0 unreadable\n");
  EXPECT_THAT(TakeErr(), HasSubstr("127.0.0.1 pushes \"Abel Ann\". Take it?"));
  EXPECT_EQ(m_outcomes, (std::vector{ObexOutcome::Refused, ObexOutcome::Done}));
}

TEST_F(ReceiveVerb, LetsTheNetworkInForThisTimeAlone) {
  EXPECT_EQ(Receive({u"--lan"_qs, u"--trust"_qs, u"127.0.0.1"_qs, u"--count"_qs, u"1"_qs},
                    {{{}, kCard}}, u"127.0.0.2"_qs),
            kExitDone);
  EXPECT_THAT(TakeErr(), HasSubstr("for this machine and its local network\n"));
  EXPECT_EQ(Kept(), InfraredSettings());
}

TEST_F(ReceiveVerb, KeepsItsOptionsWhenItIsTold) {
  EXPECT_EQ(
      Receive({u"--save"_qs, u"--lan"_qs, u"--trust"_qs, u"127.0.0.1"_qs, u"--count"_qs, u"1"_qs},
              {{{}, kCard}}),
      kExitDone);
  EXPECT_EQ(Kept(), (InfraredSettings{m_port, true, {u"127.0.0.1"_qs}, {}}));
  TakeErr();
  EXPECT_EQ(Receive({u"--count"_qs, u"1"_qs}, {{{}, kCard}}), kExitDone);
  EXPECT_THAT(TakeErr(), HasSubstr("for this machine and its local network\n"));
  EXPECT_EQ(Receive({u"--save"_qs, u"--count"_qs, u"1"_qs}, {{{}, kCard}}), kExitDone);
  EXPECT_EQ(Kept(), (InfraredSettings{m_port, false, {u"127.0.0.1"_qs}, {}}));
}

TEST_F(ReceiveVerb, SaysWhenItCannotListen) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost, m_port));
  EXPECT_EQ(Receive({}, {}), kExitFailed);
  EXPECT_EQ(TakeErr(), "quill: cannot listen on port " + std::to_string(m_port) + "\n");
}

TEST_F(ReceiveVerb, FailsWithoutAStore) {
  ASSERT_TRUE(QDir().mkpath(Home() + u"/store.db"_qs));
  EXPECT_EQ(Run({u"receive"_qs}), kExitFailed);
  EXPECT_THAT(TakeErr(), testing::StartsWith("quill: "));
}

TEST_F(ReceiveVerb, FailsWhenItCannotKeepItsOptions) {
  ASSERT_TRUE(QDir().mkpath(Home() + u"/settings.json"_qs));
  EXPECT_EQ(Run({u"receive"_qs, u"--save"_qs}), kExitFailed);
  EXPECT_EQ(TakeErr(), "quill: cannot keep the settings\n");
}

struct WrongCase {
  const char* Option;
  const char* Value;
  const char* Complaint;
};

class WrongReceiveOption : public ReceiveVerb, public testing::WithParamInterface<WrongCase> {};

TEST_P(WrongReceiveOption, IsToldBeforeAnythingIsDone) {
  EXPECT_EQ(Run({u"receive"_qs, QString::fromLatin1(GetParam().Option),
                 QString::fromLatin1(GetParam().Value), u"--save"_qs}),
            kExitFailed);
  EXPECT_EQ(TakeErr(), std::string("quill: ") + GetParam().Complaint + "\n");
  EXPECT_EQ(Kept(), InfraredSettings());
}

INSTANTIATE_TEST_SUITE_P(
    Obex, WrongReceiveOption,
    testing::Values(WrongCase{"--port", "65536", "65536 is no port"},
                    WrongCase{"--port", "-1", "-1 is no port"},
                    WrongCase{"--port", "x", "x is no port"},
                    WrongCase{"--trust", "not an address", "\"not an address\" is no address"},
                    WrongCase{"--trust", "", "\"\" is no address"},
                    WrongCase{"--count", "0", "--count goes from 1 to 1000"},
                    WrongCase{"--count", "1001", "--count goes from 1 to 1000"}));

}  // namespace
}  // namespace quill
