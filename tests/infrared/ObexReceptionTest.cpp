#include "infrared/ObexReception.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

#include "exchange/ObexPackets.h"
#include "exchange/RefusingStore.h"
#include "infrared/ObexPeers.h"
#include "platform/JsonRegistry.h"
#include "store/pim/PimStore.h"

namespace quill::test {
namespace {

// Keeps each question until the test answers it.
class KeptConsent : public ReceiveConsent {
 public:
  void Ask(const ObexOffer& offer, const std::function<void(ConsentAnswer)>& answer) override {
    Questions += offer.Label;
    Answer = answer;
  }
  void TakeBack() override { ++TakenBack; }

  QStringList Questions;
  std::function<void(ConsentAnswer)> Answer;
  int TakenBack = 0;
};

class RecordingPusher : public ObexPusher {
 public:
  RecordingPusher(const QString& peer, const QString& label) {
    m_offer.Peer = peer;
    m_offer.Label = label;
  }
  const ObexOffer& Offer() const override { return m_offer; }
  void Want() override { Heard += u'y'; }
  void Refuse() override { Heard += u'n'; }

  QString Heard;

 private:
  ObexOffer m_offer;
};

class Reception : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(m_store.Create(), 0);
    ASSERT_EQ(m_store.Logon(), 0);
    m_reception->Stored = [this](const ObexObject& object, const ImportSummary& summary) {
      m_told += u"%1: %2 new, %3 changed, %4 the same"_qs.arg(object.Label)
                    .arg(summary.New)
                    .arg(summary.Changed)
                    .arg(summary.Same);
    };
    m_reception->Answered = [this] { ++m_answered; };
  }
  void OpenFolder() { ASSERT_EQ(m_store.OpenFolder(FolderKind::Contacts), 0); }
  bool Store(const QByteArray& bytes) {
    const auto object = CardObject(u"a.vcf"_qs, bytes, kObexMostCards);
    return object && m_reception->Store(*object);
  }
  int Count() { return m_store.Contacts()->Count(m_store.Contacts()->Items()); }
  bool IsAsked(qsizetype questions) {
    return Until([&] { return m_consent.Questions.size() == questions; });
  }

  QTemporaryDir m_folder;
  JsonRegistry m_registry{m_folder.filePath(u"settings.json"_qs)};
  InfraredSettings m_settings;
  PimStore m_store{u":memory:"_qs};
  RefusingStore m_refusing{m_store};
  KeptConsent m_consent;
  std::unique_ptr<ObexReception> m_reception =
      std::make_unique<ObexReception>(m_refusing, m_consent, m_settings, m_registry);
  QStringList m_told;
  int m_answered = 0;
  RecordingPusher m_ann{u"10.0.0.1"_qs, u"Ann"_qs};
  RecordingPusher m_bob{u"10.0.0.2"_qs, u"Bob"_qs};
};

TEST_F(Reception, AsksLaterAndOneAtATime) {
  EXPECT_FALSE(m_reception->IsAsking());
  m_reception->Ask(m_ann);
  m_reception->Ask(m_bob);
  EXPECT_TRUE(m_consent.Questions.isEmpty()) << "not within the peer's call";
  ASSERT_TRUE(IsAsked(1));
  QCoreApplication::processEvents();
  EXPECT_EQ(m_consent.Questions, QStringList{u"Ann"_qs});
  m_consent.Answer(ConsentAnswer::Wanted);
  EXPECT_EQ(m_ann.Heard, u"y"_qs);
  EXPECT_TRUE(m_reception->IsAsking());
  EXPECT_EQ(m_answered, 0);
  ASSERT_TRUE(IsAsked(2));
  EXPECT_TRUE(m_reception->IsAsking());
  m_consent.Answer(ConsentAnswer::Refused);
  EXPECT_EQ(m_bob.Heard, u"n"_qs);
  EXPECT_FALSE(m_reception->IsAsking());
  EXPECT_EQ(m_answered, 1);
}

TEST_F(Reception, TakesFromATrustedPeerWithoutAQuestion) {
  m_settings.TrustedPeers = QStringList{u"10.0.0.2"_qs};
  m_reception->Ask(m_bob);
  EXPECT_EQ(m_bob.Heard, u"y"_qs);
  m_reception->Ask(m_ann);
  EXPECT_EQ(m_ann.Heard, QString());
  EXPECT_TRUE(m_reception->IsAsking());
}

TEST_F(Reception, NeverTrustsAPeerWithoutAnAddress) {
  m_settings.TrustedPeers = QStringList{QString()};
  RecordingPusher nobody(QString(), u"a"_qs);
  m_reception->Ask(nobody);
  EXPECT_EQ(nobody.Heard, QString());
  ASSERT_TRUE(IsAsked(1));
  m_consent.Answer(ConsentAnswer::AlwaysWanted);
  EXPECT_EQ(nobody.Heard, u"y"_qs);
  EXPECT_TRUE(ReadInfraredSettings(m_registry).TrustedPeers.isEmpty());
}

TEST_F(Reception, RemembersWhomToTrust) {
  m_reception->Ask(m_ann);
  ASSERT_TRUE(IsAsked(1));
  m_consent.Answer(ConsentAnswer::AlwaysWanted);
  EXPECT_EQ(m_ann.Heard, u"y"_qs);
  m_reception->Ask(m_ann);
  EXPECT_EQ(m_ann.Heard, u"yy"_qs);
  EXPECT_EQ(ReadInfraredSettings(m_registry).TrustedPeers, QStringList{u"10.0.0.1"_qs});
}

TEST_F(Reception, AsksNoMoreAboutWhatWasTakenBackBefore) {
  m_reception->Ask(m_ann);
  m_reception->Ask(m_bob);
  m_reception->TakeBack(m_ann);
  ASSERT_TRUE(IsAsked(1));
  EXPECT_EQ(m_consent.Questions, QStringList{u"Bob"_qs});
  EXPECT_EQ(m_consent.TakenBack, 0);
}

TEST_F(Reception, ClosesAQuestionThatIsTakenBackAndAsksTheNextOnceItIsClosed) {
  m_reception->Ask(m_ann);
  ASSERT_TRUE(IsAsked(1));
  m_reception->TakeBack(m_ann);
  EXPECT_EQ(m_consent.TakenBack, 1);
  EXPECT_FALSE(m_reception->IsAsking());
  m_reception->Ask(m_bob);
  QCoreApplication::processEvents();
  EXPECT_EQ(m_consent.Questions.size(), 1);
  m_consent.Answer(ConsentAnswer::AlwaysWanted);
  EXPECT_EQ(m_ann.Heard, QString()) << "nobody is there to hear it";
  EXPECT_TRUE(m_settings.TrustedPeers.isEmpty());
  ASSERT_TRUE(IsAsked(2));
  m_consent.Answer(ConsentAnswer::Wanted);
  EXPECT_EQ(m_bob.Heard, u"y"_qs);
}

TEST_F(Reception, MayGoBeforeItsQuestionIsAnswered) {
  m_reception->Ask(m_ann);
  ASSERT_TRUE(IsAsked(1));
  m_reception.reset();
  m_consent.Answer(ConsentAnswer::Wanted);
  EXPECT_EQ(m_ann.Heard, QString());
}

TEST_F(Reception, StoresAllThatACardHolds) {
  OpenFolder();
  EXPECT_TRUE(Store("BEGIN:VCARD\nVERSION:2.1\nN:Abel;Ann\nX-MINE:kept\nUID:7\nEND:VCARD\n"));
  const auto found = m_store.Contacts()->FindByUid(u"7"_qs);
  ASSERT_EQ(found.size(), 1U);
  ContactItem item;
  ASSERT_TRUE(m_store.Contacts()->Read(found.front(), item));
  EXPECT_EQ(item.Record[ContactField::FileAs], u"Abel, Ann"_qs);
  EXPECT_EQ(item.CarriedLines, u"X-MINE:kept\n"_qs);
  EXPECT_EQ(m_told, QStringList{u"a.vcf: 1 new, 0 changed, 0 the same"_qs});
}

TEST_F(Reception, MergesAKnownPersonLikeAnImport) {
  OpenFolder();
  EXPECT_TRUE(Store("BEGIN:VCARD\nFN:Ann\nTEL:1\nEND:VCARD\n"));
  EXPECT_TRUE(Store("BEGIN:VCARD\nFN:Ann\nTEL:1\nTITLE:Cook\nEND:VCARD\n"));
  EXPECT_TRUE(Store("BEGIN:VCARD\nFN:Ann\nTEL:1\nTITLE:Cook\nEND:VCARD\n"));
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(m_told, (QStringList{u"a.vcf: 1 new, 0 changed, 0 the same"_qs,
                                 u"a.vcf: 0 new, 1 changed, 0 the same"_qs,
                                 u"a.vcf: 0 new, 0 changed, 1 the same"_qs}));
}

TEST_F(Reception, StoresTheCardsOfAnObjectInOneTransaction) {
  OpenFolder();
  QByteArray cards;
  for (int i = 1; i < kObexMostCards; ++i)
    cards += "BEGIN:VCARD\nFN:P" + QByteArray::number(i) + "\nEND:VCARD\n";
  EXPECT_TRUE(Store(cards));
  EXPECT_EQ(Count(), kObexMostCards - 1);
  EXPECT_EQ(m_refusing.Begun(), 1);
}

TEST_F(Reception, StoresNothingWhenTheStoreFails) {
  OpenFolder();
  m_refusing.FailCommit(1);
  EXPECT_FALSE(Store(ObexCard(200)));
  EXPECT_EQ(Count(), 0);
  EXPECT_TRUE(m_told.isEmpty());
  EXPECT_EQ(m_reception->Room(), kObexMostCards);
}

TEST_F(Reception, StoresNothingWithoutAnOpenFolder) {
  ObexReception reception(m_store, m_consent, m_settings, m_registry);
  EXPECT_FALSE(reception.Store(*CardObject({}, ObexCard(200), 1)));
}

TEST_F(Reception, DoesNotTakeWhatHoldsNobody) {
  OpenFolder();
  EXPECT_FALSE(Store("BEGIN:VCARD\nVERSION:2.1\nEND:VCARD\n"));
  EXPECT_TRUE(m_told.isEmpty());
}

TEST_F(Reception, TakesAThousandCardsInOneReceive) {
  OpenFolder();
  const QByteArray most = QByteArray("BEGIN:VCARD\nFN:a\nEND:VCARD\n").repeated(kObexMostCards - 1);
  EXPECT_TRUE(Store(most));
  EXPECT_EQ(m_reception->Room(), 1);
  EXPECT_FALSE(Store(ObexCard(200) + ObexCard(201)));
  EXPECT_TRUE(Store(ObexCard(200)));
  EXPECT_EQ(m_reception->Room(), 0);
  EXPECT_FALSE(Store(ObexCard(200)));
  m_reception->Begin();
  EXPECT_EQ(m_reception->Room(), kObexMostCards);
  EXPECT_TRUE(Store(ObexCard(200)));
}

}  // namespace
}  // namespace quill::test
