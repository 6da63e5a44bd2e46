#include "infrared/ObexTcpSender.h"

#include <QTcpServer>

#include <gtest/gtest.h>

#include <optional>

#include "exchange/ObexPackets.h"
#include "infrared/ObexPeers.h"
#include "infrared/ObexTcpInbox.h"
#include "support/SteppedTimers.h"

namespace quill::test {
namespace {

using Outcomes = std::vector<ObexOutcome>;
using enum ObexOutcome;

class TcpSender : public testing::Test {
 protected:
  void Send(quint16 port, std::vector<ObexSending> cards) {
    m_sender->Send(u"127.0.0.1"_qs, port, std::move(cards), [this](const Outcomes& outcomes) {
      ++m_calls;
      m_outcomes = outcomes;
    });
  }
  bool IsSent() {
    return Until([this] { return m_calls > 0; });
  }

  SteppedTimers m_timers;
  RecordingHost m_host;
  ObexTcpInbox m_inbox{m_timers};
  std::unique_ptr<ObexTcpSender> m_sender = std::make_unique<ObexTcpSender>(m_timers);
  Outcomes m_outcomes;
  int m_calls = 0;
};

TEST_F(TcpSender, HandsOverALargeCard) {
  ASSERT_TRUE(m_inbox.Listen(ObexReach::ThisMachine, 0, m_host));
  m_host.WhenAsked = [this](ObexPusher&) { m_host.Want(); };
  Send(m_inbox.Port(), {{u"Ann.vcf"_qs, ObexCard(46'688)}});
  ASSERT_TRUE(IsSent());
  EXPECT_EQ(m_outcomes, Outcomes{Done});
  EXPECT_EQ(m_host.Stored, QList<QByteArray>{ObexCard(46'688)});
  EXPECT_EQ(m_host.Offers.front().Label, u"Ann.vcf"_qs);
}

TEST_F(TcpSender, HandsOverSeveralInOneSession) {
  ASSERT_TRUE(m_inbox.Listen(ObexReach::ThisMachine, 0, m_host));
  m_host.WhenAsked = [this](ObexPusher&) {
    m_host.Offers.size() == 2 ? m_host.Refuse() : m_host.Want();
  };
  Send(m_inbox.Port(), {{{}, ObexCard(300)}, {{}, ObexCard(301)}, {{}, ObexCard(302)}});
  ASSERT_TRUE(IsSent());
  EXPECT_EQ(m_outcomes, (Outcomes{Done, Refused, Done}));
  EXPECT_EQ(m_host.Stored, (QList<QByteArray>{ObexCard(300), ObexCard(302)}));
}

TEST_F(TcpSender, SaysThatNobodyIsThere) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  const quint16 port = server.serverPort();
  server.close();
  Send(port, {{{}, ObexCard(300)}});
  ASSERT_TRUE(IsSent());
  EXPECT_EQ(m_outcomes, Outcomes{Broken});
}

TEST_F(TcpSender, SaysThatThePeerHungUp) {
  ASSERT_TRUE(m_inbox.Listen(ObexReach::ThisMachine, 0, m_host));
  Send(m_inbox.Port(), {{{}, ObexCard(300)}, {{}, ObexCard(301)}});
  ASSERT_TRUE(Until([this] { return m_host.Offers.size() == 1; }));
  m_inbox.Stop();
  ASSERT_TRUE(IsSent());
  EXPECT_EQ(m_outcomes, (Outcomes{Broken, Broken}));
}

TEST_F(TcpSender, GivesUpWhatDoesNotConnectInAQuarterOfAMinute) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  Send(server.serverPort(), {{{}, ObexCard(300)}});
  m_timers.Advance(ObexTcpSender::kConnectPatience - 1);
  EXPECT_EQ(m_calls, 0);
  m_timers.Advance(1);
  EXPECT_EQ(m_calls, 1);
  EXPECT_EQ(m_outcomes, Outcomes{Broken});
}

TEST_F(TcpSender, GivesAPeerTimeToAskItsUser) {
  ASSERT_TRUE(m_inbox.Listen(ObexReach::ThisMachine, 0, m_host));
  Send(m_inbox.Port(), {{{}, ObexCard(300)}});
  ASSERT_TRUE(Until([this] { return m_host.Offers.size() == 1; }));
  m_timers.Advance(ObexTcpSender::kAnswerPatience - 1);
  EXPECT_EQ(m_calls, 0);
  m_timers.Advance(1);
  EXPECT_EQ(m_calls, 1);
  EXPECT_EQ(m_outcomes, Outcomes{Broken});
  EXPECT_TRUE(Until([this] { return m_host.TakenBack == 1; }));
}

TEST_F(TcpSender, ForgetsWhatItWasSendingWhenItSendsAnew) {
  QTcpServer silent;
  ASSERT_TRUE(silent.listen(QHostAddress::LocalHost));
  bool isOldCalled = false;
  m_sender->Send(u"127.0.0.1"_qs, silent.serverPort(), {{{}, ObexCard(300)}},
                 [&isOldCalled](const Outcomes&) { isOldCalled = true; });
  ASSERT_TRUE(Until([&silent] { return silent.hasPendingConnections(); }));
  ASSERT_TRUE(m_inbox.Listen(ObexReach::ThisMachine, 0, m_host));
  m_host.WhenAsked = [this](ObexPusher&) { m_host.Want(); };
  Send(m_inbox.Port(), {{{}, ObexCard(301)}});
  ASSERT_TRUE(IsSent());
  EXPECT_EQ(m_outcomes, Outcomes{Done});
  EXPECT_FALSE(isOldCalled);
  EXPECT_EQ(m_calls, 1);
}

TEST_F(TcpSender, MayBeUsedAgainFromItsOwnCall) {
  ASSERT_TRUE(m_inbox.Listen(ObexReach::ThisMachine, 0, m_host));
  m_host.WhenAsked = [this](ObexPusher&) { m_host.Want(); };
  m_sender->Send(u"127.0.0.1"_qs, m_inbox.Port(), {{{}, ObexCard(300)}}, [this](const Outcomes&) {
    Send(m_inbox.Port(), {{{}, ObexCard(301)}});
  });
  ASSERT_TRUE(IsSent());
  EXPECT_EQ(m_outcomes, Outcomes{Done});
  EXPECT_EQ(m_host.Stored.size(), 2);
}

TEST_F(TcpSender, MayGoInTheMiddle) {
  ASSERT_TRUE(m_inbox.Listen(ObexReach::ThisMachine, 0, m_host));
  Send(m_inbox.Port(), {{{}, ObexCard(300)}});
  ASSERT_TRUE(Until([this] { return m_host.Offers.size() == 1; }));
  m_sender.reset();
  EXPECT_TRUE(Until([this] { return m_host.TakenBack == 1; }));
  EXPECT_EQ(m_calls, 0);
}

}  // namespace
}  // namespace quill::test
