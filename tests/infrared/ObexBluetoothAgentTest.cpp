#include "infrared/ObexBluetoothAgent.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "exchange/ObexPackets.h"
#include "infrared/FakeObexService.h"
#include "infrared/ObexPeers.h"
#include "support/PrivateBus.h"

namespace quill::test {
namespace {

const QString kTransfer = u"/org/bluez/obex/server/session1/transfer1"_qs;
const QString kSession = u"/org/bluez/obex/server/session1"_qs;
const QString kRejected = u"org.bluez.obex.Error.Rejected"_qs;

class BluetoothAgent : public testing::Test {
 protected:
  void SetUp() override {
    m_service.Objects.insert(
        kSession, {{u"Root"_qs, m_root.path()}, {u"Destination"_qs, u"00:11:22:33:44:55"_qs}});
    ASSERT_TRUE(m_agent->Listen(m_host));
    ASSERT_TRUE(Until([this] { return !m_service.Agent.isEmpty(); }));
  }
  void Push(const QVariantMap& more = {}) {
    QVariantMap properties{{u"Session"_qs, QVariant::fromValue(QDBusObjectPath(kSession))},
                           {u"Name"_qs, u"../../Ann.vcf"_qs}};
    properties.insert(more);
    m_service.Push(kTransfer, properties);
  }
  bool IsAsked(std::size_t offers = 1) {
    return Until([&] { return m_host.Offers.size() == offers; });
  }
  bool IsAnswered() {
    return Until([this] { return !m_service.Answers.isEmpty(); });
  }
  // The host wants it, and so many bytes come. Returns the file.
  QString Come(const QByteArray& bytes) {
    EXPECT_TRUE(IsAsked());
    m_host.Want();
    EXPECT_TRUE(IsAnswered());
    QFile file(m_service.Answers.value(0));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return file.fileName();
  }
  bool IsGone(const QString& file) {
    return Until([&] { return !QFileInfo::exists(file); });
  }

  QTemporaryDir m_root;
  PrivateBus m_bus;
  FakeObexService m_service{m_bus.Connect(u"service"_qs)};
  RecordingHost m_host;
  std::unique_ptr<ObexBluetoothAgent> m_agent =
      std::make_unique<ObexBluetoothAgent>(m_bus.Connect(u"program"_qs));
};

TEST_F(BluetoothAgent, AsksBeforeTheBytesCome) {
  Push();
  ASSERT_TRUE(IsAsked());
  EXPECT_TRUE(m_service.Answers.isEmpty());
  const ObexOffer& offer = m_host.Offers.front();
  EXPECT_EQ(offer.Peer, u"00:11:22:33:44:55"_qs);
  EXPECT_EQ(offer.Label, u"../../Ann.vcf"_qs);
  EXPECT_EQ(offer.Cards, 0);
  EXPECT_FALSE(m_agent->IsBusy());
}

TEST_F(BluetoothAgent, StoresWhatCameAndKeepsNoFile) {
  Push();
  const QString file = Come(ObexCard(300));
  EXPECT_EQ(QFileInfo(file).path(), m_root.path()) << "in the service's folder";
  EXPECT_FALSE(file.contains(u"Ann"));
  EXPECT_TRUE(m_agent->IsBusy());
  EXPECT_TRUE(m_host.Stored.isEmpty());
  m_service.SetStatus(kTransfer, u"complete"_qs);
  EXPECT_TRUE(IsGone(file));
  EXPECT_EQ(m_host.Stored, QList<QByteArray>{ObexCard(300)});
  EXPECT_FALSE(m_agent->IsBusy());
  EXPECT_EQ(m_host.TakenBack, 0);
}

TEST_F(BluetoothAgent, StoresNothingOfATransferThatFails) {
  Push();
  const QString file = Come(ObexCard(300));
  m_service.SetStatus(kTransfer, u"error"_qs);
  EXPECT_TRUE(IsGone(file));
  EXPECT_TRUE(m_host.Stored.isEmpty());
}

TEST_F(BluetoothAgent, StoresNothingThatIsNoCard) {
  Push();
  const QString file = Come("GIF89a");
  m_service.SetStatus(kTransfer, u"complete"_qs);
  EXPECT_TRUE(IsGone(file));
  EXPECT_TRUE(m_host.Stored.isEmpty());
}

TEST_F(BluetoothAgent, StoresNothingBeyondTheLimit) {
  Push();
  const QString file = Come(ObexCard(kObexLargestObject + 1));
  m_service.SetStatus(kTransfer, u"complete"_qs);
  EXPECT_TRUE(IsGone(file));
  EXPECT_TRUE(m_host.Stored.isEmpty());
}

TEST_F(BluetoothAgent, FollowsNoLink) {
  Push();
  ASSERT_TRUE(IsAsked());
  m_host.Want();
  ASSERT_TRUE(IsAnswered());
  QFile elsewhere(m_root.filePath(u"elsewhere"_qs));
  ASSERT_TRUE(elsewhere.open(QIODevice::WriteOnly));
  elsewhere.write(ObexCard(300));
  elsewhere.close();
  ASSERT_TRUE(QFile::link(elsewhere.fileName(), m_service.Answers.front()));
  m_service.SetStatus(kTransfer, u"complete"_qs);
  ASSERT_TRUE(Until([this] { return !m_agent->IsBusy(); }));
  EXPECT_TRUE(m_host.Stored.isEmpty());
  EXPECT_TRUE(elsewhere.exists());
}

TEST_F(BluetoothAgent, RejectsWhatTheUserRefuses) {
  Push();
  ASSERT_TRUE(IsAsked());
  m_host.Refuse();
  ASSERT_TRUE(IsAnswered());
  EXPECT_EQ(m_service.Answers, QStringList{kRejected});
  EXPECT_EQ(m_host.TakenBack, 0);
}

struct RejectCase {
  const char* Name;
  const char* Property;
  QVariant Value;
};

class UnaskedPush : public BluetoothAgent, public testing::WithParamInterface<RejectCase> {};

TEST_P(UnaskedPush, IsRejected) {
  Push({{QString::fromLatin1(GetParam().Property), GetParam().Value}});
  ASSERT_TRUE(IsAnswered());
  EXPECT_EQ(m_service.Answers, QStringList{kRejected});
  EXPECT_TRUE(m_host.Offers.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Obex, UnaskedPush,
    testing::Values(RejectCase{"TooLarge", "Size", quint64{8'388'609}},
                    RejectCase{"WithoutASession", "Session", u"none"_qs},
                    RejectCase{"OfAnUnknownSession", "Session",
                               QVariant::fromValue(QDBusObjectPath(u"/org/bluez/obex/none"_qs))}),
    [](const auto& push) { return push.param.Name; });

TEST_F(BluetoothAgent, AsksAboutWhatIsAsLargeAsTheLimit) {
  Push({{u"Size"_qs, quint64{8'388'608}}});
  EXPECT_TRUE(IsAsked());
}

TEST_F(BluetoothAgent, RejectsWhenThereIsNoRoomForMoreCards) {
  m_host.Cards = 0;
  Push();
  ASSERT_TRUE(IsAnswered());
  EXPECT_EQ(m_service.Answers, QStringList{kRejected});
}

TEST_F(BluetoothAgent, TakesTheQuestionBackWhenTheDeviceDoesNotWait) {
  Push();
  ASSERT_TRUE(IsAsked());
  m_service.CallAgent(u"Cancel"_qs);
  EXPECT_TRUE(Until([this] { return m_host.TakenBack == 1; }));
}

TEST_F(BluetoothAgent, LetsWhatIsComingComeWhenAnotherIsCancelled) {
  Push();
  const QString file = Come(ObexCard(300));
  m_service.CallAgent(u"Cancel"_qs);
  m_service.SetStatus(kTransfer, u"complete"_qs);
  EXPECT_TRUE(IsGone(file));
  EXPECT_EQ(m_host.Stored.size(), 1);
}

TEST_F(BluetoothAgent, LetsNobodyElseInAndFinishesWhatItBegan) {
  Push();
  ASSERT_TRUE(IsAsked());
  const QString agent = m_service.Agent;
  m_agent->StopLettingIn();
  ASSERT_TRUE(Until([this] { return m_service.Agent.isEmpty(); }));
  EXPECT_EQ(m_host.TakenBack, 0);
  m_service.Agent = agent;
  Push();
  ASSERT_TRUE(IsAnswered());
  EXPECT_EQ(m_service.Answers, QStringList{kRejected});
  EXPECT_EQ(m_host.Offers.size(), 1U);
  m_host.Refuse();
  EXPECT_TRUE(Until([this] { return m_service.Answers.size() == 2; }));
}

TEST_F(BluetoothAgent, RejectsAndThrowsAwayWhenItStops) {
  Push();
  ASSERT_TRUE(IsAsked());
  m_agent->Stop();
  EXPECT_EQ(m_host.TakenBack, 1);
  ASSERT_TRUE(IsAnswered());
  EXPECT_EQ(m_service.Answers, QStringList{kRejected});
  ASSERT_TRUE(m_agent->Listen(m_host));
  ASSERT_TRUE(Until([this] {
    return m_service.Calls.count(u"RegisterAgent %1"_qs.arg(u"/org/fennick/Quill/ObexAgent"_qs)) ==
           2;
  }));
}

TEST_F(BluetoothAgent, ThrowsAwayWhatIsComingWhenItStops) {
  Push();
  const QString file = Come(ObexCard(300));
  m_agent.reset();
  EXPECT_FALSE(QFileInfo::exists(file));
  m_service.SetStatus(kTransfer, u"complete"_qs);
  QCoreApplication::processEvents();
  EXPECT_TRUE(m_host.Stored.isEmpty());
}

TEST_F(BluetoothAgent, RejectsOnceTheServiceHasReleasedIt) {
  m_service.CallAgent(u"Release"_qs);
  Push();
  ASSERT_TRUE(IsAnswered());
  EXPECT_EQ(m_service.Answers, QStringList{kRejected});
}

TEST_F(BluetoothAgent, GoesOnWhereAnotherProgramHasTheDevices) {
  m_agent->Stop();
  m_service.Refuses = u"RegisterAgent"_qs;
  EXPECT_TRUE(m_agent->Listen(m_host));
  EXPECT_TRUE(Until([this] { return m_service.Calls.last().startsWith(u"RegisterAgent"_qs); }));
  QCoreApplication::processEvents();
}

TEST(BluetoothAgents, WithoutABusDoNotListen) {
  RecordingHost host;
  ObexBluetoothAgent agent{QDBusConnection(u"no such connection"_qs)};
  EXPECT_FALSE(agent.Listen(host));
}

}  // namespace
}  // namespace quill::test
