#include "infrared/ObexTcpInbox.h"

#include <gtest/gtest.h>

#include "exchange/ObexPackets.h"
#include "infrared/ObexPeers.h"
#include "support/SteppedTimers.h"

namespace quill::test {
namespace {

const QByteArray kPut = Request(ObexRequest::PutFinal, {EndOfBody(ObexCard(300))});

class TcpInbox : public testing::Test {
 protected:
  bool Listen(ObexReach reach = ObexReach::ThisMachine) { return m_inbox.Listen(reach, 0, m_host); }
  // A peer that was let in.
  std::unique_ptr<PlainPeer> Peer() {
    auto peer = std::make_unique<PlainPeer>(m_inbox.Port());
    EXPECT_EQ(CodesOf(peer->Ask(ConnectRequest(), 7)), "a0");
    return peer;
  }
  std::unique_ptr<PlainPeer> AskingPeer() {
    auto peer = Peer();
    const std::size_t before = m_host.Offers.size();
    peer->Send(kPut);
    EXPECT_TRUE(Until([&] { return m_host.Offers.size() > before; }));
    return peer;
  }
  bool IsLetIn(const QString& address) {
    PlainPeer peer(m_inbox.Port(), address);
    return CodesOf(peer.Ask(ConnectRequest(), 7)) == "a0";
  }

  SteppedTimers m_timers;
  RecordingHost m_host;
  ObexTcpInbox m_inbox{m_timers};
};

TEST_F(TcpInbox, ListensToThisMachineAlone) {
  ASSERT_TRUE(Listen());
  EXPECT_NE(m_inbox.Port(), 0);
  EXPECT_TRUE(IsLetIn(u"127.0.0.1"_qs));
  // Another address of this machine stands for those that the network sees.
  EXPECT_FALSE(IsLetIn(u"127.0.0.2"_qs));
}

TEST_F(TcpInbox, ListensToTheNetworkWhenItIsTold) {
  ASSERT_TRUE(Listen(ObexReach::LocalNetwork));
  EXPECT_TRUE(IsLetIn(u"127.0.0.1"_qs));
  EXPECT_TRUE(IsLetIn(u"127.0.0.2"_qs));
}

TEST_F(TcpInbox, SaysWhenItCannotListen) {
  ASSERT_TRUE(Listen());
  ObexTcpInbox second(m_timers);
  EXPECT_FALSE(second.Listen(ObexReach::ThisMachine, m_inbox.Port(), m_host));
}

TEST_F(TcpInbox, DoesNotListenBeforeAndAfter) {
  EXPECT_EQ(m_inbox.Port(), 0);
  ASSERT_TRUE(Listen());
  const quint16 port = m_inbox.Port();
  m_inbox.Stop();
  EXPECT_EQ(m_inbox.Port(), 0);
  PlainPeer peer(port);
  EXPECT_EQ(peer.Ask(ConnectRequest(), 7), "");
}

TEST_F(TcpInbox, LetsFourInAtOnce) {
  ASSERT_TRUE(Listen());
  std::vector<std::unique_ptr<PlainPeer>> peers;
  for (std::size_t i = 0; i < ObexTcpInbox::kMostPeers; ++i) peers.push_back(Peer());
  EXPECT_FALSE(IsLetIn(u"127.0.0.1"_qs));
  peers.front()->Send(Request(ObexRequest::Disconnect));
  EXPECT_TRUE(peers.front()->WaitForHangUp());
  EXPECT_TRUE(IsLetIn(u"127.0.0.1"_qs));
}

TEST_F(TcpInbox, HangsUpOnAllWhenItStops) {
  ASSERT_TRUE(Listen());
  const auto idle = Peer();
  const auto asking = AskingPeer();
  m_inbox.Stop();
  EXPECT_EQ(m_host.TakenBack, 1);
  EXPECT_TRUE(idle->WaitForHangUp());
  EXPECT_TRUE(asking->WaitForHangUp());
}

TEST_F(TcpInbox, LetsNobodyElseInAndAnswersTheAsking) {
  ASSERT_TRUE(Listen());
  const quint16 port = m_inbox.Port();
  const auto idle = Peer();
  const auto asking = AskingPeer();
  m_inbox.StopLettingIn();
  EXPECT_TRUE(idle->WaitForHangUp());
  EXPECT_EQ(PlainPeer(port).Ask(ConnectRequest(), 7), "");
  EXPECT_EQ(m_host.TakenBack, 0);
  m_host.Want();
  m_inbox.Stop();
  EXPECT_EQ(CodesOf(asking->Ask({}, 3)), "a0") << "the answer goes out before the end";
  EXPECT_TRUE(asking->WaitForHangUp());
}

TEST_F(TcpInbox, MayBeStoppedInTheMiddleOfAQuestion) {
  ASSERT_TRUE(Listen());
  m_host.WhenAsked = [this](ObexPusher&) { m_inbox.Stop(); };
  const auto asking = AskingPeer();
  EXPECT_TRUE(asking->WaitForHangUp());
  EXPECT_EQ(m_host.TakenBack, 1);
  m_host.WhenAsked = nullptr;
  ASSERT_TRUE(Listen());
  EXPECT_TRUE(IsLetIn(u"127.0.0.1"_qs));
}

struct NearbyCase {
  const char* Address;
  bool IsNear;
};

class Nearby : public testing::TestWithParam<NearbyCase> {};

TEST_P(Nearby, IsWhereTheInternetDoesNotLead) {
  EXPECT_EQ(IsNearby(QHostAddress(QString::fromLatin1(GetParam().Address))), GetParam().IsNear);
}

INSTANTIATE_TEST_SUITE_P(
    Obex, Nearby,
    testing::Values(NearbyCase{"127.0.0.1", true}, NearbyCase{"127.255.0.1", true},
                    NearbyCase{"10.1.2.3", true}, NearbyCase{"172.16.0.1", true},
                    NearbyCase{"172.31.255.255", true}, NearbyCase{"172.32.0.1", false},
                    NearbyCase{"172.15.0.1", false}, NearbyCase{"192.168.1.1", true},
                    NearbyCase{"192.169.1.1", false}, NearbyCase{"169.254.3.4", true},
                    NearbyCase{"11.0.0.1", false}, NearbyCase{"8.8.8.8", false},
                    NearbyCase{"::1", true}, NearbyCase{"::2", false}, NearbyCase{"fe80::7", true},
                    NearbyCase{"fd12::1", true}, NearbyCase{"2001:db8::1", false},
                    NearbyCase{"::ffff:192.168.1.1", true}, NearbyCase{"::ffff:8.8.8.8", false},
                    NearbyCase{"", false}));

}  // namespace
}  // namespace quill::test
