#include "infrared/ObexTcpTransport.h"

#include <gtest/gtest.h>

#include "exchange/ObexPackets.h"
#include "infrared/ObexPeers.h"
#include "support/SteppedTimers.h"

namespace quill::test {
namespace {

class TcpTransport : public testing::Test {
 protected:
  std::string Hello(const QString& address) {
    return CodesOf(PlainPeer(m_transport.Port(), address).Ask(ConnectRequest(), 7));
  }

  SteppedTimers m_timers;
  RecordingHost m_host;
  InfraredSettings m_settings{.Port = 0};
  ObexTcpTransport m_transport{m_settings, m_timers};
};

TEST_F(TcpTransport, IsThereForTheNetwork) {
  EXPECT_TRUE(m_transport.IsPresent());
  EXPECT_EQ(m_transport.Carrier(), ObexCarrier::Network);
}

TEST_F(TcpTransport, ListensAsTheSettingsSayAtThatTime) {
  ASSERT_TRUE(m_transport.Listen(m_host));
  EXPECT_EQ(Hello(u"127.0.0.1"_qs), "a0");
  EXPECT_EQ(Hello(u"127.0.0.2"_qs), "");
  m_settings.LocalNetwork = true;
  ASSERT_TRUE(m_transport.Listen(m_host));
  EXPECT_EQ(Hello(u"127.0.0.2"_qs), "a0");
  const quint16 port = m_transport.Port();
  m_transport.StopListening();
  EXPECT_EQ(m_transport.Port(), 0);
  m_settings.Port = port;
  ASSERT_TRUE(m_transport.Listen(m_host));
  EXPECT_EQ(m_transport.Port(), port);
}

TEST_F(TcpTransport, StopsLettingIn) {
  ASSERT_TRUE(m_transport.Listen(m_host));
  m_transport.StopLettingIn();
  EXPECT_EQ(m_transport.Port(), 0);
}

TEST_F(TcpTransport, SendsToItsReceiver) {
  ASSERT_TRUE(m_transport.Listen(m_host));
  m_host.WhenAsked = [this](ObexPusher&) { m_host.Want(); };
  std::vector<ObexOutcome> outcomes;
  m_transport.Send({ObexCarrier::Network, u"127.0.0.1"_qs, m_transport.Port()},
                   {{{}, ObexCard(300)}},
                   [&outcomes](const std::vector<ObexOutcome>& all) { outcomes = all; });
  ASSERT_TRUE(Until([&outcomes] { return !outcomes.empty(); }));
  EXPECT_EQ(outcomes, std::vector{ObexOutcome::Done});
  EXPECT_EQ(m_host.Stored, QList<QByteArray>{ObexCard(300)});
}

}  // namespace
}  // namespace quill::test
