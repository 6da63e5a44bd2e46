// The two sides of OBEX against each other, in memory.
#include <QList>
#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>

#include "exchange/ObexClient.h"
#include "exchange/ObexInbox.h"
#include "exchange/ObexPackets.h"

namespace quill::test {
namespace {

struct Session {
  std::vector<ObexOutcome> Outcomes;
  QList<QByteArray> Taken;
  QStringList Labels;
  qsizetype LongestPacket = 0;  // of the client
};

ObexVerdict Decide(const ObexObject& object, Session& session) {
  session.Taken += object.Bytes;
  session.Labels += object.Label;
  return object.Label == u"unwanted"_qs ? ObexVerdict::Refused : ObexVerdict::Taken;
}

Session Push(ObexClient& client, ObexInbox& inbox) {
  Session session;
  client.Start();
  while (!client.IsOver()) {
    const QByteArray request = client.TakeOutput();
    session.LongestPacket = std::max(session.LongestPacket, request.size());
    inbox.Take(request);
    if (inbox.Offered()) inbox.Answer(Decide(*inbox.Offered(), session));
    const QByteArray answer = inbox.TakeOutput();
    if (answer.isEmpty()) break;
    client.Take(answer);
  }
  session.Outcomes = client.Outcomes();
  return session;
}

class ObexSessionOf : public testing::TestWithParam<int> {};

TEST_P(ObexSessionOf, PacketsThisLongCarriesALargeCard) {
  const auto longest = static_cast<quint16>(GetParam());
  const QByteArray card = ObexCard(46'688);
  ObexClient client({{u"Ann.vcf"_qs, card}}, kObexShortestLimit);
  ObexInbox inbox({.Packet = longest});
  const Session session = Push(client, inbox);
  EXPECT_EQ(session.Outcomes, std::vector{ObexOutcome::Done});
  EXPECT_EQ(session.Taken, QList<QByteArray>{card});
  EXPECT_EQ(session.Labels, QStringList{u"Ann.vcf"_qs});
  EXPECT_EQ(session.LongestPacket, std::min<qsizetype>(longest, card.size() + 46));
  EXPECT_TRUE(inbox.IsOver());
}

INSTANTIATE_TEST_SUITE_P(Obex, ObexSessionOf,
                         testing::Values(255, 256, 257, 300, 1000, 1024, 4096, 8192, 32767, 46688,
                                         46733, 46734, 46735, 65534, 65535));

TEST(ObexSession, CarriesSeveralCardsOneOfThemUnwanted) {
  ObexClient client(
      {{u"a"_qs, ObexCard(300)}, {u"unwanted"_qs, ObexCard(301)}, {u"c"_qs, ObexCard(302)}});
  ObexInbox inbox({.Packet = 255});
  const Session session = Push(client, inbox);
  EXPECT_EQ(session.Outcomes,
            (std::vector{ObexOutcome::Done, ObexOutcome::Refused, ObexOutcome::Done}));
  EXPECT_EQ(session.Taken, (QList<QByteArray>{ObexCard(300), ObexCard(301), ObexCard(302)}));
}

TEST(ObexSession, CarriesNothing) {
  ObexClient client({});
  ObexInbox inbox;
  EXPECT_TRUE(Push(client, inbox).Taken.isEmpty());
  EXPECT_TRUE(client.IsOver());
  EXPECT_TRUE(inbox.IsOver());
}

TEST(ObexSession, RefusesACardBeyondTheLimitAndTakesTheNext) {
  const QByteArray tooLarge = ObexCard(8 * 1024 * 1024 + 1);
  const QByteArray largest = ObexCard(8 * 1024 * 1024);
  ObexClient client({{u"a"_qs, tooLarge}, {u"b"_qs, largest}});
  ObexInbox inbox;
  const Session session = Push(client, inbox);
  EXPECT_EQ(session.Outcomes, (std::vector{ObexOutcome::Refused, ObexOutcome::Done}));
  EXPECT_EQ(session.Taken, QList<QByteArray>{largest});
}

TEST(ObexSession, TakesAThousandCardsAndNoMore) {
  const std::vector<ObexSending> cards(1002, {u"a"_qs, ObexCard(200)});
  ObexClient client(cards);
  ObexInbox inbox;
  const Session session = Push(client, inbox);
  EXPECT_EQ(session.Taken.size(), 1000);
  EXPECT_EQ(std::count(session.Outcomes.begin(), session.Outcomes.end(), ObexOutcome::Done), 1000);
  EXPECT_EQ(session.Outcomes.back(), ObexOutcome::Refused);
}

}  // namespace
}  // namespace quill::test
