#include "exchange/ObexInbox.h"

#include <QList>

#include <gtest/gtest.h>

#include "exchange/ObexPackets.h"

namespace quill::test {
namespace {

const QByteArray kCard = "BEGIN:VCARD\r\nVERSION:2.1\r\nN:Abel;Ann\r\nTEL:1\r\nEND:VCARD\r\n";
const QByteArray kFirstHalf = kCard.first(20);
const QByteArray kSecondHalf = kCard.sliced(20);
const QByteArray kService = QByteArray::fromHex("f9ec7bc4953c11d2984e525400dc9e09");

constexpr ObexInboxLimits kSmall{.Packet = 300, .Object = 200, .Cards = 3};

QByteArray Put(const std::vector<ObexHeader>& headers) {
  return Request(ObexRequest::Put, headers);
}
QByteArray PutFinal(const std::vector<ObexHeader>& headers) {
  return Request(ObexRequest::PutFinal, headers);
}
ObexHeader Length(quint32 length) { return ObexNumber(ObexHeaderId::Length, length); }
ObexHeader Target(const QByteArray& service) { return ObexBytes(ObexHeaderId::Target, service); }
QByteArray Hex(const char* text) { return QByteArray::fromHex(text); }

// What went out and what was offered, with each offer answered alike at once.
struct Course {
  QByteArray Output;
  QList<QByteArray> Offered;
  bool IsOver = false;

  bool operator==(const Course&) const = default;
};

class Peer {
 public:
  explicit Peer(ObexVerdict verdict, const ObexInboxLimits& limits = kSmall)
      : m_inbox(limits), m_verdict(verdict) {}

  void Send(QByteArrayView bytes) {
    m_inbox.Take(bytes);
    while (const ObexObject* object = m_inbox.Offered()) {
      m_course.Offered += object->Bytes;
      m_inbox.Answer(m_verdict);
    }
    m_course.Output += m_inbox.TakeOutput();
    m_course.IsOver = m_inbox.IsOver();
  }
  const Course& Seen() const { return m_course; }

 private:
  ObexInbox m_inbox;
  ObexVerdict m_verdict;
  Course m_course;
};

Course CourseOf(const QByteArray& bytes, ObexVerdict verdict) {
  Peer peer(verdict);
  peer.Send(bytes);
  return peer.Seen();
}

enum class End { Open, Over };

struct Rule {
  const char* Name;
  QByteArray Sent;
  const char* Codes;
  QList<QByteArray> Offered = {};
  End Then = End::Open;
  ObexVerdict Verdict = ObexVerdict::Taken;
};

const std::vector<Rule> kRules{
    {"AConnectIsTaken", ConnectRequest(), "a0"},
    {"AConnectToAnyServiceIsTaken", ConnectRequest(255, {Target(kService)}), "a0"},
    {"AConnectToAnEndlessServiceIsTaken", ConnectRequest(255, {Target(QByteArray(200, 'a'))}),
     "a0"},
    {"AConnectWithoutItsFieldsIsBad", Request(ObexRequest::Connect), "c0"},
    {"AConnectForgetsWhatWasIncoming",
     Put({Body(kFirstHalf)}) + ConnectRequest() + PutFinal({EndOfBody(kSecondHalf)}), "90 a0 cf"},
    {"ADisconnectEndsIt", Request(ObexRequest::Disconnect), "a0", {}, End::Over},
    {"NothingIsHeardAfterADisconnect",
     Request(ObexRequest::Disconnect) + Request(ObexRequest::Get),
     "a0",
     {},
     End::Over},
    {"AChangeOfFolderIsForbidden",
     WriteObexPacket({static_cast<quint8>(ObexRequest::SetPath), Hex("0200"), {Name(u"a"_qs)}}),
     "c3"},
    {"NothingIsFound", Request(ObexRequest::GetFinal, {Name(u"a"_qs)}), "c4"},
    {"NothingIsFoundInPieces", Request(ObexRequest::Get, {Name(u"a"_qs)}), "c4"},
    {"ASessionIsNotKnown", Hex("87 0003"), "d1"},
    {"AnActionIsNotKnown", Hex("06 0003 86 0003"), "d1 d1"},
    {"AnAnswerIsNotKnown", Hex("a0 0003"), "d1"},
    {"ACardInOnePacketIsOffered",
     PutFinal({Name(u"Ann.vcf"_qs), Length(58), EndOfBody(kCard)}),
     "a0",
     {kCard}},
    {"ACardInPiecesIsOffered",
     Put({Name(u"Ann.vcf"_qs)}) + Put({Body(kFirstHalf)}) + PutFinal({EndOfBody(kSecondHalf)}),
     "90 90 a0",
     {kCard}},
    {"ACardWithoutAnEndOfBodyIsOffered",
     Put({Body(kFirstHalf)}) + PutFinal({Body(kSecondHalf)}),
     "90 a0",
     {kCard}},
    {"ACardWhoseLastPacketIsEmptyIsOffered", Put({Body(kCard)}) + PutFinal({}), "90 a0", {kCard}},
    {"ACardInTwoHeadersOfAPacketIsOffered",
     PutFinal({Body(kFirstHalf), EndOfBody(kSecondHalf)}),
     "a0",
     {kCard}},
    {"ACardWithAnEmptyTypeIsOffered",
     PutFinal({ObexBytes(ObexHeaderId::Type, {}), EndOfBody(kCard)}),
     "a0",
     {kCard}},
    {"ACardOfAnotherTypeIsOffered",
     PutFinal({ObexBytes(ObexHeaderId::Type, "image/jpeg"), EndOfBody(kCard)}),
     "a0",
     {kCard}},
    {"ACardByItsNameIsOffered",
     PutFinal({Name(u"a.vcf"_qs), EndOfBody("X:1\r\n" + kCard)}),
     "a0",
     {"X:1\r\n" + kCard}},
    {"TheLastNameCounts",
     Put({Name(u"a.vcf"_qs)}) + PutFinal({Name(u"a.txt"_qs), EndOfBody("X:1\r\n" + kCard)}),
     "90 cf"},
    {"ANameIsOfOneObject",
     PutFinal({Name(u"a.vcf"_qs), EndOfBody(kCard)}) + PutFinal({EndOfBody("X:1\r\n" + kCard)}),
     "a0 cf",
     {kCard}},
    {"WhatIsNoCardIsRefused", PutFinal({Name(u"a.jpg"_qs), EndOfBody("GIF89a")}), "cf"},
    {"AnEmptyObjectIsRefused", PutFinal({Name(u"a.vcf"_qs), EndOfBody({})}), "cf"},
    {"ADeletionIsForbidden", PutFinal({Name(u"a.vcf"_qs)}), "c3"},
    {"ADeletionInTwoPacketsIsForbidden", Put({Name(u"a.vcf"_qs)}) + PutFinal({}), "90 c3"},
    {"ABodyIsOfOneObject", PutFinal({EndOfBody(kCard)}) + PutFinal({}), "a0 c3", {kCard}},
    {"APutThatCannotBeReadIsBad", Hex("82 0006 48 0009"), "c0"},
    {"APutThatCannotBeReadForgetsTheOthers",
     Put({Body(kFirstHalf)}) + Hex("02 0006 48 0009") + PutFinal({EndOfBody(kSecondHalf)}),
     "90 c0 cf"},
    {"AnAbortForgetsWhatWasIncoming",
     Put({Name(u"a.vcf"_qs), Body(kFirstHalf)}) + Request(ObexRequest::Abort) +
         PutFinal({EndOfBody(kSecondHalf)}),
     "90 a0 cf"},
    {"AnAbortOfNothingIsTaken", Request(ObexRequest::Abort), "a0"},
    {"ACardAsLargeAsTheLimitIsOffered",
     Put({Length(200), Body(ObexCard(200).first(120))}) +
         PutFinal({EndOfBody(ObexCard(200).sliced(120))}),
     "90 a0",
     {ObexCard(200)}},
    {"ACardThatSaysItIsTooLargeIsRefusedAtOnce", Put({Length(201)}), "cd"},
    {"ACardThatGrowsTooLargeIsRefused",
     Put({Body(ObexCard(201).first(120))}) + PutFinal({EndOfBody(ObexCard(201).sliced(120))}),
     "90 cd"},
    {"WhatWasTooLargeIsForgotten",
     Put({Body(kFirstHalf)}) + Put({Length(201)}) + PutFinal({EndOfBody(kSecondHalf)}), "90 cd cf"},
    {"AsManyCardsAsTheLimitAreOffered",
     PutFinal({EndOfBody(kCard.repeated(3))}),
     "a0",
     {kCard.repeated(3)}},
    {"MoreCardsThanTheLimitAreRefused",
     PutFinal({EndOfBody(QByteArray("BEGIN:VCARD\nFN:a\nEND:VCARD\n").repeated(4))}), "cd"},
    {"TheLimitIsOfAllCardsThatWereTaken",
     PutFinal({EndOfBody(kCard.repeated(2))}) + PutFinal({EndOfBody(kCard.repeated(2))}) +
         PutFinal({EndOfBody(kCard)}),
     "a0 cd a0",
     {kCard.repeated(2), kCard}},
    {"RefusedCardsDoNotCount",
     PutFinal({EndOfBody(kCard.repeated(3))}) + PutFinal({EndOfBody(kCard.repeated(3))}),
     "c3 c3",
     {kCard.repeated(3), kCard.repeated(3)},
     End::Open,
     ObexVerdict::Refused},
    {"ACardThatTheUserRefusesIsForbidden",
     PutFinal({EndOfBody(kCard)}),
     "c3",
     {kCard},
     End::Open,
     ObexVerdict::Refused},
    {"ACardThatCannotBeStoredFails",
     PutFinal({EndOfBody(kCard)}),
     "d0",
     {kCard},
     End::Open,
     ObexVerdict::Failed},
    {"APacketShorterThanItselfEndsIt", Hex("82 0002"), "c0", {}, End::Over},
    {"APacketLongerThanAgreedEndsIt", Hex("82 012d"), "c0", {}, End::Over},
    {"APacketAsLongAsAgreedIsTaken",
     Put({Body(QByteArray(200, 'a')), {0x7F, 0, QByteArray(91, 'a')}}), "90"},
    {"ASessionIsHeardToItsEnd",
     ConnectRequest(255, {Target(kService)}) +
         PutFinal({ObexNumber(ObexHeaderId::ConnectionId, 1), EndOfBody(kCard)}) +
         Request(ObexRequest::Disconnect, {ObexNumber(ObexHeaderId::ConnectionId, 1)}),
     "a0 a0 a0",
     {kCard},
     End::Over},
};

class ObexInboxRule : public testing::TestWithParam<Rule> {};

TEST_P(ObexInboxRule, Holds) {
  const Course course = CourseOf(GetParam().Sent, GetParam().Verdict);
  EXPECT_EQ(CodesOf(course.Output), GetParam().Codes);
  EXPECT_EQ(course.Offered, GetParam().Offered);
  EXPECT_EQ(course.IsOver, GetParam().Then == End::Over);
}

TEST_P(ObexInboxRule, HoldsHoweverTheBytesAreCut) {
  const QByteArray& sent = GetParam().Sent;
  const Course whole = CourseOf(sent, GetParam().Verdict);
  for (qsizetype at = 0; at <= sent.size(); ++at) {
    Peer peer(GetParam().Verdict);
    peer.Send(sent.first(at));
    peer.Send(sent.sliced(at));
    EXPECT_EQ(peer.Seen(), whole) << at;
  }
}

TEST_P(ObexInboxRule, HoldsByteByByte) {
  Peer peer(GetParam().Verdict);
  for (const char& byte : GetParam().Sent) peer.Send(QByteArrayView(&byte, 1));
  EXPECT_EQ(peer.Seen(), CourseOf(GetParam().Sent, GetParam().Verdict));
}

TEST_P(ObexInboxRule, AnswersEveryPeerInItsShortestPacket) {
  ObexPacketStream answers(kObexShortestLimit);
  answers.Add(CourseOf(GetParam().Sent, GetParam().Verdict).Output);
  while (answers.Next()) {
  }
  EXPECT_EQ(answers.Waiting(), 0);
}

INSTANTIATE_TEST_SUITE_P(Obex, ObexInboxRule, testing::ValuesIn(kRules),
                         [](const auto& rule) { return rule.param.Name; });

QByteArray AnswerOf(ObexInbox& inbox, const QByteArray& bytes) {
  inbox.Take(bytes);
  return inbox.TakeOutput();
}

TEST(ObexInbox, SaysItsLongestPacket) {
  ObexInbox inbox({.Packet = 0x1234});
  EXPECT_EQ(AnswerOf(inbox, ConnectRequest()).toHex(' '), "a0 00 07 10 00 12 34");
}

TEST(ObexInbox, SaysThatItIsTheServiceThatWasAskedFor) {
  ObexInbox inbox({.Packet = 0x1234});
  EXPECT_EQ(AnswerOf(inbox, ConnectRequest(255, {Target(kService)})).toHex(' '),
            "a0 00 1f 10 00 12 34 cb 00 00 00 01 4a 00 13 "
            "f9 ec 7b c4 95 3c 11 d2 98 4e 52 54 00 dc 9e 09");
}

TEST(ObexInbox, TakesEightMebibytesAndAThousandCards) {
  const ObexInboxLimits limits;
  EXPECT_EQ(limits.Object, 8 * 1024 * 1024);
  EXPECT_EQ(limits.Cards, 1000);
  EXPECT_EQ(limits.Packet, 65535);
}

TEST(ObexInbox, SendsNothingBeforeTheAnswer) {
  ObexInbox inbox;
  const QByteArray put = PutFinal({Name(u"A\u202Enn.vcf"_qs), EndOfBody(kCard)});
  EXPECT_EQ(AnswerOf(inbox, put.first(40)), "");
  EXPECT_EQ(inbox.Offered(), nullptr);
  EXPECT_EQ(AnswerOf(inbox, put.sliced(40)), "");
  ASSERT_TRUE(inbox.Offered());
  EXPECT_EQ(inbox.Offered()->Label, u"Ann.vcf"_qs);
  EXPECT_EQ(inbox.Offered()->Person, u"Abel Ann"_qs);
  EXPECT_EQ(inbox.Offered()->Bytes, kCard);
  EXPECT_EQ(inbox.Offered()->Cards, 1);
  inbox.Answer(ObexVerdict::Taken);
  EXPECT_EQ(inbox.Offered(), nullptr);
  EXPECT_EQ(CodesOf(inbox.TakeOutput()), "a0");
  EXPECT_EQ(inbox.TakeOutput(), "");
}

TEST(ObexInbox, OffersTheNextOnceTheFirstIsAnswered) {
  ObexInbox inbox;
  const QByteArray second = "BEGIN:VCARD\nFN:Bob\nEND:VCARD\n";
  EXPECT_EQ(AnswerOf(inbox, PutFinal({EndOfBody(kCard)}) + PutFinal({EndOfBody(second)}) +
                                Request(ObexRequest::Disconnect)),
            "");
  inbox.Answer(ObexVerdict::Refused);
  EXPECT_EQ(CodesOf(inbox.TakeOutput()), "c3");
  ASSERT_TRUE(inbox.Offered());
  EXPECT_EQ(inbox.Offered()->Bytes, second);
  EXPECT_FALSE(inbox.IsOver());
  inbox.Answer(ObexVerdict::Taken);
  EXPECT_EQ(CodesOf(inbox.TakeOutput()), "a0 a0");
  EXPECT_TRUE(inbox.IsOver());
}

TEST(ObexInbox, GivesUpAnOfferThatThePeerTakesBack) {
  ObexInbox inbox;
  AnswerOf(inbox, PutFinal({EndOfBody(kCard)}));
  const QByteArray abort = Request(ObexRequest::Abort);
  EXPECT_EQ(AnswerOf(inbox, abort.first(2)), "");
  EXPECT_TRUE(inbox.Offered());
  EXPECT_EQ(CodesOf(AnswerOf(inbox, abort.sliced(2) + Request(ObexRequest::Get))), "a0 c4");
  EXPECT_EQ(inbox.Offered(), nullptr);
  inbox.Answer(ObexVerdict::Taken);
  EXPECT_EQ(inbox.TakeOutput(), "") << "there is nothing to answer";
}

TEST(ObexInbox, CountsItsOffersSoThatNoneIsTakenForAnother) {
  ObexInbox inbox;
  const QByteArray second = "BEGIN:VCARD\nFN:Bob\nEND:VCARD\n";
  EXPECT_EQ(inbox.Offers(), 0);
  AnswerOf(inbox, PutFinal({EndOfBody(kCard)}));
  EXPECT_EQ(inbox.Offers(), 1);
  AnswerOf(inbox, Request(ObexRequest::Abort) + PutFinal({EndOfBody(second)}));
  ASSERT_TRUE(inbox.Offered());
  EXPECT_EQ(inbox.Offered()->Bytes, second);
  EXPECT_EQ(inbox.Offers(), 2);
}

TEST(ObexInbox, EndsWhenMoreThanAPacketComesDuringAnOffer) {
  ObexInbox inbox({.Packet = 255});
  const QByteArray gets = Request(ObexRequest::Get).repeated(65535 / 3);
  AnswerOf(inbox, PutFinal({EndOfBody(kCard)}));
  EXPECT_EQ(AnswerOf(inbox, gets), "");
  EXPECT_TRUE(inbox.Offered());
  EXPECT_EQ(CodesOf(AnswerOf(inbox, "a")), "c0");
  EXPECT_EQ(inbox.Offered(), nullptr);
  EXPECT_TRUE(inbox.IsOver());
  EXPECT_EQ(AnswerOf(inbox, gets), "");
}

TEST(ObexInbox, ForgetsWhatItTook) {
  // Every card is as large as the limit: each would be too large if the one before still counted.
  Peer peer(ObexVerdict::Taken);
  for (int i = 0; i < 3; ++i) {
    const QByteArray card = ObexCard(200);
    peer.Send(Put({Body(card.first(100))}) + PutFinal({EndOfBody(card.sliced(100))}));
  }
  EXPECT_EQ(CodesOf(peer.Seen().Output), "90 a0 90 a0 90 a0");
}

}  // namespace
}  // namespace quill::test
