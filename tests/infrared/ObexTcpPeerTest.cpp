#include "infrared/ObexTcpPeer.h"

#include <gtest/gtest.h>

#include "exchange/ObexPackets.h"
#include "infrared/ObexPeers.h"
#include "infrared/ObexTcpInbox.h"
#include "support/SteppedTimers.h"

namespace quill::test {
namespace {

const QByteArray kCard = ObexCard(300);

// One peer that an inbox has let in.
class TcpPeer : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(m_inbox.Listen(ObexReach::ThisMachine, 0, m_host));
    m_peer = std::make_unique<PlainPeer>(m_inbox.Port());
    ASSERT_EQ(CodesOf(m_peer->Ask(ConnectRequest(), 7)), "a0");
  }
  QByteArray Put(const QByteArray& card = kCard) {
    return Request(ObexRequest::PutFinal, {Name(u"a.vcf"_qs), EndOfBody(card)});
  }
  bool IsAsked(std::size_t offers = 1) {
    return Until([&] { return m_host.Offers.size() == offers; });
  }
  std::string Hear(qsizetype bytes = 3) { return CodesOf(m_peer->Ask({}, bytes)); }

  SteppedTimers m_timers;
  RecordingHost m_host;
  ObexTcpInbox m_inbox{m_timers};
  std::unique_ptr<PlainPeer> m_peer;
};

TEST_F(TcpPeer, OffersWhatItPushes) {
  m_peer->Send(Put());
  ASSERT_TRUE(IsAsked());
  const ObexOffer& offer = m_host.Offers.front();
  EXPECT_EQ(offer.Peer, u"127.0.0.1"_qs);
  EXPECT_EQ(offer.Label, u"a.vcf"_qs);
  EXPECT_EQ(offer.Person, u"Abel Ann"_qs);
  EXPECT_EQ(offer.Cards, 1);
  EXPECT_TRUE(m_host.Stored.isEmpty());
}

TEST_F(TcpPeer, HearsOfSuccessOnceItsCardIsStored) {
  m_peer->Send(Put());
  ASSERT_TRUE(IsAsked());
  m_host.Want();
  EXPECT_EQ(m_host.Stored, QList<QByteArray>{kCard});
  EXPECT_EQ(Hear(), "a0");
  EXPECT_EQ(m_host.TakenBack, 0);
}

TEST_F(TcpPeer, HearsOfAStoreThatFails) {
  m_host.Stores = false;
  m_peer->Send(Put());
  ASSERT_TRUE(IsAsked());
  m_host.Want();
  EXPECT_EQ(Hear(), "d0");
}

TEST_F(TcpPeer, HearsOfARefusal) {
  m_peer->Send(Put());
  ASSERT_TRUE(IsAsked());
  m_host.Refuse();
  EXPECT_TRUE(m_host.Stored.isEmpty());
  EXPECT_EQ(Hear(), "c3");
}

TEST_F(TcpPeer, MayBeAnsweredAtOnce) {
  m_host.WhenAsked = [this](ObexPusher&) { m_host.Want(); };
  m_peer->Send(Put() + Put(ObexCard(301)) + Request(ObexRequest::Disconnect));
  EXPECT_EQ(Hear(9), "a0 a0 a0");
  EXPECT_EQ(m_host.Stored, (QList<QByteArray>{kCard, ObexCard(301)}));
  EXPECT_TRUE(m_peer->WaitForHangUp());
}

TEST_F(TcpPeer, TakesItsOfferBackByAnAbort) {
  m_peer->Send(Put());
  ASSERT_TRUE(IsAsked());
  EXPECT_EQ(CodesOf(m_peer->Ask(Request(ObexRequest::Abort), 3)), "a0");
  EXPECT_EQ(m_host.TakenBack, 1);
}

TEST_F(TcpPeer, CannotPutAnotherOfferInThePlaceOfTheOneThatIsAskedAbout) {
  m_peer->Send(Put());
  ASSERT_TRUE(IsAsked());
  m_peer->Send(Request(ObexRequest::Abort) + Put(ObexCard(301)));
  ASSERT_TRUE(IsAsked(2));
  EXPECT_EQ(m_host.TakenBack, 1);
  m_host.Want();
  EXPECT_EQ(m_host.Stored, QList<QByteArray>{ObexCard(301)});
}

TEST_F(TcpPeer, TakesItsOfferBackByHangingUp) {
  m_peer->Send(Put());
  ASSERT_TRUE(IsAsked());
  m_peer.reset();
  EXPECT_TRUE(Until([this] { return m_host.TakenBack == 1; }));
}

TEST_F(TcpPeer, IsHungUpOnWhenItSaysNothingForHalfAMinute) {
  m_timers.Advance(ObexTcpPeer::kPatience - 1);
  EXPECT_EQ(CodesOf(m_peer->Ask(Request(ObexRequest::Get), 3)), "c4");
  m_timers.Advance(ObexTcpPeer::kPatience - 1);
  EXPECT_EQ(CodesOf(m_peer->Ask(Request(ObexRequest::Get), 3)), "c4");
  m_timers.Advance(ObexTcpPeer::kPatience);
  EXPECT_TRUE(m_peer->WaitForHangUp());
}

TEST_F(TcpPeer, IsNotHungUpOnWhileTheUserThinks) {
  m_peer->Send(Put());
  ASSERT_TRUE(IsAsked());
  m_timers.Advance(10 * ObexTcpPeer::kPatience);
  m_peer->Send(Put());
  m_timers.Advance(10 * ObexTcpPeer::kPatience);
  EXPECT_EQ(m_host.TakenBack, 0);
  m_host.Refuse();
  EXPECT_EQ(Hear(), "c3");
  ASSERT_TRUE(IsAsked(2));
  m_host.Refuse();
  EXPECT_EQ(Hear(), "c3");
  m_timers.Advance(ObexTcpPeer::kPatience);
  EXPECT_TRUE(m_peer->WaitForHangUp());
}

TEST_F(TcpPeer, IsHungUpOnWhenItMakesNoSense) {
  EXPECT_EQ(CodesOf(m_peer->Ask(QByteArray::fromHex("820000"), 3)), "c0");
  EXPECT_TRUE(m_peer->WaitForHangUp());
}

TEST_F(TcpPeer, IsHungUpOnWhenItDoesNotReadTheAnswers) {
  m_peer->Socket().setReadBufferSize(1);
  const QByteArray request =
      ConnectRequest(255, {ObexBytes(ObexHeaderId::Target, QByteArray(128, 't'))});
  const QByteArray flood = request.repeated(500);
  for (int i = 0; i < 1000 && !m_peer->IsHungUp(); ++i) {
    m_peer->Send(flood);
    Until([this] { return m_peer->IsHungUp() || m_peer->Socket().bytesToWrite() == 0; });
  }
  EXPECT_TRUE(m_peer->IsHungUp());
}

TEST_F(TcpPeer, MayPushNoMoreCardsThanThereIsRoomFor) {
  m_host.Cards = 1;
  PlainPeer second(m_inbox.Port());
  EXPECT_EQ(CodesOf(second.Ask(ConnectRequest(), 7)), "a0");
  EXPECT_EQ(CodesOf(second.Ask(Put(kCard + kCard), 3)), "cd");
}

TEST(TcpPeers, WhoCameAndWentAlreadyAreDoneWithAtOnce) {
  SteppedTimers timers;
  RecordingHost host;
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  PlainPeer plain(server.serverPort());
  ASSERT_TRUE(Until([&server] { return server.hasPendingConnections(); }));
  std::unique_ptr<QTcpSocket> socket(server.nextPendingConnection());
  socket->setParent(nullptr);
  plain.Send(Request(ObexRequest::Get));
  plain.Socket().disconnectFromHost();
  ASSERT_TRUE(Until([&socket] { return socket->state() == QTcpSocket::UnconnectedState; }));
  int ended = 0;
  ObexTcpPeer peer(std::move(socket), host, timers);
  peer.Ended = [&ended] { ++ended; };
  peer.Begin();
  EXPECT_EQ(ended, 1);
}

}  // namespace
}  // namespace quill::test
