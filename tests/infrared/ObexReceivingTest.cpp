#include "infrared/ObexReceiving.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "infrared/ObexPeers.h"
#include "infrared/RecordingTransport.h"
#include "platform/JsonRegistry.h"
#include "store/pim/PimStore.h"
#include "support/SteppedTimers.h"

namespace quill::test {
namespace {

class SilentConsent : public ReceiveConsent {
 public:
  void Ask(const ObexOffer&, const std::function<void(ConsentAnswer)>& answer) override {
    Answer = answer;
  }
  void TakeBack() override { Answer(ConsentAnswer::Refused); }
  std::function<void(ConsentAnswer)> Answer;
};

class WaitingPusher : public ObexPusher {
 public:
  const ObexOffer& Offer() const override { return m_offer; }
  void Want() override {}
  void Refuse() override {}

 private:
  ObexOffer m_offer;
};

class Receiving : public testing::Test {
 protected:
  Receiving() {
    for (int i = 0; i < 2; ++i) {
      auto transport = std::make_unique<RecordingTransport>();
      (i == 0 ? m_first : m_second) = transport.get();
      m_transports.push_back(std::move(transport));
    }
    m_receiving.emplace(m_transports, m_reception, m_timers);
    m_receiving->Changed = [this] { m_changes += m_receiving->IsOn() ? u'+' : u'-'; };
  }
  void BeginAsking() {
    ASSERT_TRUE(m_receiving->Begin());
    m_reception.Ask(m_pusher);
    ASSERT_TRUE(Until([this] { return m_consent.Answer != nullptr; }));
    m_timers.Advance(ObexReceiving::kDuration);
    m_first->Take();
  }

  QTemporaryDir m_folder;
  JsonRegistry m_registry{m_folder.filePath(u"settings.json"_qs)};
  InfraredSettings m_settings;
  PimStore m_store{u":memory:"_qs};
  SilentConsent m_consent;
  WaitingPusher m_pusher;
  ObexReception m_reception{m_store, m_consent, m_settings, m_registry};
  SteppedTimers m_timers;
  ObexTransports m_transports;
  RecordingTransport* m_first = nullptr;
  RecordingTransport* m_second = nullptr;
  std::optional<ObexReceiving> m_receiving;
  QString m_changes;
};

TEST_F(Receiving, ListensByEveryTransportForTwoMinutes) {
  EXPECT_FALSE(m_receiving->IsOn());
  EXPECT_TRUE(m_receiving->Begin());
  EXPECT_EQ(m_first->Take(), QStringList{u"listen"_qs});
  EXPECT_EQ(m_second->Take(), QStringList{u"listen"_qs});
  EXPECT_EQ(m_first->Host, &m_reception);
  m_timers.Advance(119'999);
  EXPECT_TRUE(m_receiving->IsOn());
  m_timers.Advance(1);
  EXPECT_FALSE(m_receiving->IsOn());
  EXPECT_EQ(m_first->Take(), QStringList{u"stop"_qs});
  EXPECT_EQ(m_second->Take(), QStringList{u"stop"_qs});
  EXPECT_EQ(m_changes, u"+-"_qs);
}

TEST_F(Receiving, BegunAgainLastsTwoMinutesMoreAndListensOnce) {
  EXPECT_TRUE(m_receiving->Begin());
  m_timers.Advance(119'999);
  EXPECT_TRUE(m_receiving->Begin());
  m_timers.Advance(119'999);
  EXPECT_TRUE(m_receiving->IsOn());
  EXPECT_EQ(m_first->Take(), QStringList{u"listen"_qs});
  EXPECT_EQ(m_changes, u"+"_qs);
}

TEST_F(Receiving, StopsWhenItIsTold) {
  EXPECT_TRUE(m_receiving->Begin());
  m_first->Take();
  m_receiving->Stop();
  EXPECT_FALSE(m_receiving->IsOn());
  EXPECT_EQ(m_first->Take(), QStringList{u"stop"_qs});
  m_timers.Advance(ObexReceiving::kDuration);
  EXPECT_EQ(m_first->Take(), QStringList());
  EXPECT_EQ(m_changes, u"+-"_qs);
}

TEST_F(Receiving, IsOnWhenOneTransportListens) {
  m_first->Listens = false;
  EXPECT_TRUE(m_receiving->Begin());
  EXPECT_TRUE(m_receiving->IsOn());
}

TEST_F(Receiving, IsNotOnWhenNobodyListens) {
  m_first->Listens = false;
  m_second->Present = false;
  EXPECT_FALSE(m_receiving->Begin());
  EXPECT_FALSE(m_receiving->IsOn());
  EXPECT_EQ(m_first->Take(), (QStringList{u"listen"_qs, u"stop"_qs}));
  EXPECT_FALSE(m_second->Take().contains(u"listen"_qs));
  EXPECT_EQ(m_changes, QString());
}

TEST_F(Receiving, LetsNobodyInWhileTheLastQuestionIsAnswered) {
  ASSERT_TRUE(m_receiving->Begin());
  m_reception.Ask(m_pusher);
  ASSERT_TRUE(Until([this] { return m_consent.Answer != nullptr; }));
  m_first->Take();
  m_timers.Advance(ObexReceiving::kDuration);
  EXPECT_EQ(m_first->Take(), QStringList{u"let nobody in"_qs});
  EXPECT_TRUE(m_receiving->IsOn());
  m_consent.Answer(ConsentAnswer::Wanted);
  EXPECT_EQ(m_first->Take(), QStringList{u"stop"_qs});
  EXPECT_FALSE(m_receiving->IsOn());
}

TEST_F(Receiving, WaitsForWhatIsStillComing) {
  ASSERT_TRUE(m_receiving->Begin());
  m_first->Take();
  m_second->Busy = true;
  m_timers.Advance(ObexReceiving::kDuration);
  EXPECT_EQ(m_first->Take(), QStringList{u"let nobody in"_qs});
  m_timers.Advance(ObexReceiving::kDuration);
  EXPECT_EQ(m_first->Take(), QStringList{u"stop"_qs});
}

TEST_F(Receiving, WaitsForWhatComesAfterTheLastAnswer) {
  BeginAsking();
  m_second->Busy = true;
  m_consent.Answer(ConsentAnswer::Wanted);
  EXPECT_TRUE(m_receiving->IsOn());
  m_timers.Advance(ObexReceiving::kDuration);
  EXPECT_FALSE(m_receiving->IsOn());
}

TEST_F(Receiving, GoesOnAfterAQuestionWithinTheTwoMinutes) {
  ASSERT_TRUE(m_receiving->Begin());
  m_reception.Ask(m_pusher);
  ASSERT_TRUE(Until([this] { return m_consent.Answer != nullptr; }));
  m_consent.Answer(ConsentAnswer::Wanted);
  EXPECT_TRUE(m_receiving->IsOn());
}

TEST_F(Receiving, WaitsTwoMoreMinutesForTheLastAnswer) {
  BeginAsking();
  m_timers.Advance(ObexReceiving::kDuration - 1);
  EXPECT_TRUE(m_receiving->IsOn());
  m_timers.Advance(1);
  EXPECT_FALSE(m_receiving->IsOn());
  EXPECT_EQ(m_first->Take(), QStringList{u"stop"_qs});
}

TEST_F(Receiving, LetsPeersInAgainWhenItIsBegunDuringTheLastQuestion) {
  BeginAsking();
  EXPECT_TRUE(m_receiving->Begin());
  EXPECT_EQ(m_first->Take(), QStringList{u"listen"_qs});
  m_consent.Answer(ConsentAnswer::Wanted);
  EXPECT_TRUE(m_receiving->IsOn());
  EXPECT_EQ(m_changes, u"+"_qs);
}

TEST_F(Receiving, HasRoomForAllCardsOnceItIsBegunAnew) {
  ASSERT_TRUE(m_receiving->Begin());
  ASSERT_EQ(m_store.Create(), 0);
  ASSERT_EQ(m_store.Logon(), 0);
  ASSERT_EQ(m_store.OpenFolder(FolderKind::Contacts), 0);
  EXPECT_TRUE(m_reception.Store(*CardObject({}, "BEGIN:VCARD\nFN:a\nEND:VCARD\n", 1)));
  EXPECT_TRUE(m_receiving->Begin());
  EXPECT_EQ(m_reception.Room(), kObexMostCards - 1) << "the same receive";
  m_receiving->Stop();
  EXPECT_TRUE(m_receiving->Begin());
  EXPECT_EQ(m_reception.Room(), kObexMostCards);
}

TEST_F(Receiving, StopsWhenItGoes) {
  ASSERT_TRUE(m_receiving->Begin());
  m_first->Take();
  m_receiving.reset();
  EXPECT_EQ(m_first->Take(), QStringList{u"stop"_qs});
  EXPECT_EQ(m_changes, u"+"_qs) << "nobody is told";
  m_timers.Advance(ObexReceiving::kDuration);
}

}  // namespace
}  // namespace quill::test
