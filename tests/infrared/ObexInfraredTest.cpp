#include "infrared/ObexInfrared.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "exchange/CardWriter.h"
#include "exchange/ObexPackets.h"
#include "infrared/ObexPeers.h"
#include "infrared/ObexTcpInbox.h"
#include "infrared/ObexTcpSender.h"
#include "infrared/RecordingTransport.h"
#include "platform/JsonRegistry.h"
#include "store/pim/PimStore.h"
#include "support/SteppedTimers.h"

namespace quill::test {
namespace {

class KeptChooser : public ReceiverChooser {
 public:
  void Choose(const ReceiverQuestion& question) override {
    ++Questions;
    Question = question;
  }
  int Questions = 0;
  ReceiverQuestion Question;
};

class WillingConsent : public ReceiveConsent {
 public:
  void Ask(const ObexOffer& offer, const std::function<void(ConsentAnswer)>& answer) override {
    Offers += offer.Person;
    answer(Answer);
  }
  void TakeBack() override {}
  ConsentAnswer Answer = ConsentAnswer::Wanted;
  QStringList Offers;
};

// A device's folder, with its store.
class Infrared : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(m_store.Create(), 0);
    ASSERT_EQ(m_store.Logon(), 0);
    ASSERT_EQ(m_store.OpenFolder(FolderKind::Contacts), 0);
    ASSERT_TRUE(WriteInfraredSettings(m_registry, {.Port = FreePort()}));
    m_folder.emplace(InfraredParts{m_store, m_registry, m_timers, m_chooser, m_consent});
    auto transport = std::make_unique<RecordingTransport>();
    m_other = transport.get();
    m_folder->AddTransport(std::move(transport));
    m_folder->ContactsReceived = [this] { ++m_received; };
    m_folder->ReceivingChanged = [this] { m_marker += m_folder->IsReceiving() ? u'+' : u'-'; };
  }
  static quint16 FreePort() {
    QTcpServer server;
    EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
    return server.serverPort();
  }
  Oid Add(const QString& name) {
    ContactItem item;
    item.Record[ContactField::FileAs] = name;
    item.Record[ContactField::LastName] = name;
    item.CarriedLines = u"X-MINE:kept\n"_qs;
    return m_store.Contacts()->SaveWhole(0, item);
  }
  QByteArray CardOf(Oid oid) {
    ContactItem item;
    EXPECT_TRUE(m_store.Contacts()->Read(oid, item));
    return WriteCard(item, CardVersion::V21);
  }
  bool IsAsked() {
    return Until([this] { return m_chooser.Questions > 0; });
  }
  int Count() { return m_store.Contacts()->Count(m_store.Contacts()->Items()); }
  quint16 Port() const { return m_folder->Settings().Port; }

  QTemporaryDir m_home;
  JsonRegistry m_registry{m_home.filePath(u"settings.json"_qs)};
  PimStore m_store{u":memory:"_qs};
  SteppedTimers m_timers;
  KeptChooser m_chooser;
  WillingConsent m_consent;
  std::optional<ObexInfrared> m_folder;
  RecordingTransport* m_other = nullptr;
  int m_received = 0;
  QString m_marker;
  const ObexReceiver m_phone{ObexCarrier::Bluetooth, u"00:11:22:33:44:55"_qs, 0, u"Phone"_qs};
};

TEST_F(Infrared, SendsThreeContactsInOneSessionInTheirOrder) {
  ASSERT_TRUE(m_folder->Open());
  const QList<Oid> oids{Add(u"Cox"_qs), Add(u"Abel"_qs), Add(u"Bell"_qs)};
  for (const Oid oid : oids) EXPECT_TRUE(m_folder->AddItem(oid));
  EXPECT_TRUE(m_folder->Send());
  EXPECT_EQ(m_chooser.Questions, 0) << "the command opens no window";
  ASSERT_TRUE(IsAsked());
  m_chooser.Question.Answer(m_phone);
  EXPECT_EQ(m_other->Take().last(), u"send 3 to 00:11:22:33:44:55"_qs);
  ASSERT_EQ(m_other->Cards.size(), 3U);
  EXPECT_EQ(m_other->Cards[0].Name, u"Cox.vcf"_qs);
  for (std::size_t i = 0; i < 3; ++i)
    EXPECT_EQ(m_other->Cards[i].Card, CardOf(oids[static_cast<qsizetype>(i)]));
}

TEST_F(Infrared, QueuesAContactAsItIsThen) {
  ASSERT_TRUE(m_folder->Open());
  const Oid oid = Add(u"Cox"_qs);
  const QByteArray card = CardOf(oid);
  EXPECT_TRUE(m_folder->AddItem(oid));
  ASSERT_TRUE(m_store.Contacts()->Remove(oid));
  EXPECT_TRUE(m_folder->Send());
  ASSERT_TRUE(IsAsked());
  m_chooser.Question.Answer(m_phone);
  EXPECT_EQ(m_other->Cards.front().Card, card);
}

TEST_F(Infrared, SendsTheOthersWhenOneCannotBeQueued) {
  ASSERT_TRUE(m_folder->Open());
  EXPECT_TRUE(m_folder->AddItem(Add(u"Cox"_qs)));
  EXPECT_FALSE(m_folder->AddItem(4711));
  EXPECT_TRUE(m_folder->AddItem(Add(u"Abel"_qs)));
  EXPECT_TRUE(m_folder->Send());
  ASSERT_TRUE(IsAsked());
  m_chooser.Question.Answer(m_phone);
  EXPECT_EQ(m_other->Cards.size(), 2U);
}

TEST_F(Infrared, SendsNothingToNobody) {
  ASSERT_TRUE(m_folder->Open());
  EXPECT_TRUE(m_folder->Send());
  QCoreApplication::processEvents();
  EXPECT_EQ(m_chooser.Questions, 0);
}

TEST_F(Infrared, BeginsWithAnEmptyQueue) {
  ASSERT_TRUE(m_folder->Open());
  EXPECT_TRUE(m_folder->AddItem(Add(u"Cox"_qs)));
  ASSERT_TRUE(m_folder->Open());
  EXPECT_TRUE(m_folder->AddItem(Add(u"Abel"_qs)));
  EXPECT_TRUE(m_folder->Send());
  ASSERT_TRUE(IsAsked());
  m_chooser.Question.Answer(m_phone);
  EXPECT_EQ(m_other->Cards.size(), 1U);
}

TEST_F(Infrared, SendsOneThingAfterTheOther) {
  const Oid oid = Add(u"Cox"_qs);
  const auto send = [&] { return m_folder->Open() && m_folder->AddItem(oid) && m_folder->Send(); };
  EXPECT_TRUE(send());
  EXPECT_FALSE(send()) << "the receiver is being chosen";
  ASSERT_TRUE(IsAsked());
  m_chooser.Question.Answer(m_phone);
  EXPECT_FALSE(send()) << "it is being sent";
  m_other->Sent({ObexOutcome::Done});
  EXPECT_TRUE(send());
}

TEST_F(Infrared, SendsNothingWithoutAReceiver) {
  const Oid oid = Add(u"Cox"_qs);
  ASSERT_TRUE(m_folder->Open() && m_folder->AddItem(oid) && m_folder->Send());
  ASSERT_TRUE(IsAsked());
  m_chooser.Question.Answer(std::nullopt);
  EXPECT_EQ(m_other->Take(), QStringList{u"stop finding"_qs});
  EXPECT_EQ(ReadInfraredSettings(m_registry).LastReceiver, QString());
  EXPECT_TRUE(m_folder->AddItem(oid) && m_folder->Send()) << "the next may be sent";
}

TEST_F(Infrared, SendsNothingWhereNothingLeads) {
  const Oid oid = Add(u"Cox"_qs);
  ASSERT_TRUE(m_folder->Open() && m_folder->AddItem(oid) && m_folder->Send());
  ASSERT_TRUE(IsAsked());
  m_other->Present = false;
  m_chooser.Question.Answer(m_phone);
  EXPECT_EQ(m_other->Take(), QStringList{u"stop finding"_qs});
  EXPECT_TRUE(m_folder->AddItem(oid) && m_folder->Send()) << "the next may be sent";
}

TEST_F(Infrared, FindsReceiversUntilOneIsChosenAndRemembersIt) {
  const Oid oid = Add(u"Cox"_qs);
  ASSERT_TRUE(m_folder->Open() && m_folder->AddItem(oid) && m_folder->Send());
  ASSERT_TRUE(IsAsked());
  EXPECT_EQ(m_chooser.Question.Last, QString());
  std::vector<ObexReceiver> found;
  m_chooser.Question.Find([&found](const ObexReceiver& receiver) { found.push_back(receiver); });
  m_other->Found(m_phone);
  EXPECT_EQ(found, std::vector{m_phone});
  m_chooser.Question.Answer(m_phone);
  EXPECT_EQ(m_other->Take(),
            (QStringList{u"find"_qs, u"stop finding"_qs, u"send 1 to 00:11:22:33:44:55"_qs}));
  m_other->Sent({ObexOutcome::Refused});
  ASSERT_TRUE(m_folder->AddItem(oid) && m_folder->Send());
  ASSERT_TRUE(Until([this] { return m_chooser.Questions == 2; }));
  EXPECT_EQ(m_chooser.Question.Last, u"00:11:22:33:44:55"_qs);
}

TEST_F(Infrared, MayGoWhileTheReceiverIsChosen) {
  ASSERT_TRUE(m_folder->Open() && m_folder->AddItem(Add(u"Cox"_qs)) && m_folder->Send());
  ASSERT_TRUE(IsAsked());
  m_folder.reset();
  m_chooser.Question.Find([](const ObexReceiver&) {});
  m_chooser.Question.Answer(m_phone);
}

TEST_F(Infrared, MayGoBeforeTheReceiverIsAskedFor) {
  ASSERT_TRUE(m_folder->Open() && m_folder->AddItem(Add(u"Cox"_qs)) && m_folder->Send());
  m_folder.reset();
  QCoreApplication::processEvents();
  EXPECT_EQ(m_chooser.Questions, 0);
}

TEST_F(Infrared, CanBeOpenedWhereATransportIs) {
  m_other->Present = false;
  EXPECT_TRUE(m_folder->Open()) << "TCP is always there";
}

TEST_F(Infrared, HandsACardFromStoreToStore) {
  SteppedTimers timers;
  RecordingHost host;
  ObexTcpInbox inbox(timers);
  ASSERT_TRUE(inbox.Listen(ObexReach::ThisMachine, 0, host));
  host.WhenAsked = [&host](ObexPusher&) { host.Want(); };
  const Oid oid = Add(u"Cox"_qs);
  const QByteArray card = CardOf(oid);
  ASSERT_TRUE(m_folder->Open() && m_folder->AddItem(oid) && m_folder->Send());
  ASSERT_TRUE(IsAsked());
  m_chooser.Question.Answer(ParseReceiver(u"127.0.0.1:%1"_qs.arg(inbox.Port())));
  ASSERT_TRUE(Until([&host] { return !host.Stored.isEmpty(); }));
  ASSERT_EQ(host.Stored, QList<QByteArray>{card});
  ASSERT_TRUE(m_store.Contacts()->Remove(oid));

  ASSERT_TRUE(m_folder->Receive());
  EXPECT_EQ(m_marker, u"+"_qs);
  ObexTcpSender back(timers);
  std::vector<ObexOutcome> outcomes;
  back.Send(u"127.0.0.1"_qs, Port(), {{u"Cox.vcf"_qs, card}},
            [&outcomes](const std::vector<ObexOutcome>& all) { outcomes = all; });
  ASSERT_TRUE(Until([&outcomes] { return !outcomes.empty(); }));
  EXPECT_EQ(outcomes, std::vector{ObexOutcome::Done});
  EXPECT_EQ(m_consent.Offers, QStringList{u"Cox"_qs});
  EXPECT_EQ(m_received, 1);
  const auto again = m_store.Contacts()->FindByFileAs(u"Cox"_qs);
  ASSERT_EQ(again.size(), 1U);
  EXPECT_EQ(CardOf(again.front()), card) << "with all that it held";
  m_folder->StopReceiving();
  EXPECT_EQ(m_marker, u"+-"_qs);
}

TEST_F(Infrared, TellsOfNoChangeWhenACardBringsNothingNew) {
  const Oid oid = Add(u"Cox"_qs);
  const QByteArray card = CardOf(oid);
  ASSERT_TRUE(m_folder->Receive());
  SteppedTimers timers;
  ObexTcpSender sender(timers);
  std::vector<ObexOutcome> outcomes;
  sender.Send(u"127.0.0.1"_qs, Port(), {{{}, card}},
              [&outcomes](const std::vector<ObexOutcome>& all) { outcomes = all; });
  ASSERT_TRUE(Until([&outcomes] { return !outcomes.empty(); }));
  EXPECT_EQ(outcomes, std::vector{ObexOutcome::Done});
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(m_received, 0);
}

TEST_F(Infrared, StoresNothingThatTheUserRefuses) {
  m_consent.Answer = ConsentAnswer::Refused;
  ASSERT_TRUE(m_folder->Receive());
  PlainPeer peer(Port());
  EXPECT_EQ(CodesOf(peer.Ask(Request(ObexRequest::PutFinal, {EndOfBody(ObexCard(300))}), 3)), "c3");
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(m_received, 0);
}

TEST_F(Infrared, ReceivesForTwoMinutesByEveryTransport) {
  m_other->Take();
  ASSERT_TRUE(m_folder->Receive());
  EXPECT_EQ(m_other->Take(), QStringList{u"listen"_qs});
  m_timers.Advance(60'000);
  ASSERT_TRUE(m_folder->Receive());
  m_timers.Advance(119'999);
  EXPECT_TRUE(m_folder->IsReceiving());
  m_timers.Advance(1);
  EXPECT_FALSE(m_folder->IsReceiving());
  EXPECT_EQ(m_marker, u"+-"_qs);
}

TEST_F(Infrared, ReceivesAsTheSettingsSayNow) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  m_other->Present = false;
  ASSERT_TRUE(WriteInfraredSettings(m_registry, {.Port = server.serverPort()}));
  EXPECT_FALSE(m_folder->Receive()) << "the port is taken";
  EXPECT_EQ(m_marker, QString());
  server.close();
  EXPECT_TRUE(m_folder->Receive());
}

}  // namespace
}  // namespace quill::test
