#include "exchange/ObexClient.h"

#include <gtest/gtest.h>

#include "exchange/ObexPackets.h"

namespace quill::test {
namespace {

using Outcomes = std::vector<ObexOutcome>;
using enum ObexOutcome;

std::vector<ObexSending> TwoCards() { return {{u"A"_qs, ObexCard(300)}, {u"B"_qs, "b"}}; }

struct AnswersCase {
  const char* Name;
  QByteArray Answers;
  const char* Codes;  // of what is sent
  Outcomes Expected;
  bool IsOver = true;
};

QByteArray Answer(ObexResponse response) { return Response(response); }
const QByteArray kConnected = ConnectResponse(255);
const QByteArray kContinue = Answer(ObexResponse::Continue);
const QByteArray kSuccess = Answer(ObexResponse::Success);

const std::vector<AnswersCase> kAnswers{
    {"Nothing", "", "80", {Broken, Broken}, false},
    {"AConnection", kConnected, "80 02", {Broken, Broken}, false},
    {"ConsentToBoth",
     kConnected + kContinue + kSuccess + kSuccess + kSuccess,
     "80 02 82 82 81",
     {Done, Done}},
    {"NoAnswerToTheGoodbye",
     kConnected + kContinue + kSuccess + kSuccess,
     "80 02 82 82 81",
     {Done, Done},
     false},
    {"ARefusalOfTheConnection", Answer(ObexResponse::Forbidden), "80", {Refused, Refused}},
    {"AConnectionThatIsNoPacket", kSuccess, "80", {Broken, Broken}},
    {"ARefusalOfTheFirstAtItsEnd",
     kConnected + kContinue + Answer(ObexResponse::Forbidden) + kSuccess + kSuccess,
     "80 02 82 82 81",
     {Refused, Done}},
    {"ARefusalOfTheFirstInTheMiddle",
     kConnected + Answer(ObexResponse::TooLarge) + kSuccess + kSuccess,
     "80 02 82 81",
     {Refused, Done}},
    {"ARefusalOfTheLast",
     kConnected + kContinue + kSuccess + Answer(ObexResponse::UnsupportedType) + kSuccess,
     "80 02 82 82 81",
     {Done, Refused}},
    {"SuccessBeforeAllIsSent",
     kConnected + kSuccess + kSuccess + kSuccess,
     "80 02 82 81",
     {Refused, Done}},
    {"AWishForMoreThanThereIs", kConnected + kContinue + kContinue, "80 02 82", {Broken, Broken}},
    {"ARequest", kConnected + QByteArray::fromHex("82 0003"), "80 02", {Broken, Broken}},
    {"APacketShorterThanItself",
     kConnected + QByteArray::fromHex("90 0002"),
     "80 02",
     {Broken, Broken}},
    {"APacketLongerThanAgreed",
     kConnected + QByteArray::fromHex("90 012d"),
     "80 02",
     {Broken, Broken}},
    {"SomethingBehindTheEnd",
     kConnected + kContinue + kSuccess + kSuccess + kSuccess + kContinue,
     "80 02 82 82 81",
     {Done, Done}},
};

class ObexAnswers : public testing::TestWithParam<AnswersCase> {};

TEST_P(ObexAnswers, DecideWhatIsSentAndWhatIsKnown) {
  ObexClient client(TwoCards(), 300);
  client.Start();
  client.Take(GetParam().Answers);
  EXPECT_EQ(CodesOf(client.TakeOutput()), GetParam().Codes);
  EXPECT_EQ(client.Outcomes(), GetParam().Expected);
  EXPECT_EQ(client.IsOver(), GetParam().IsOver);
  EXPECT_EQ(client.TakeOutput(), "");
}

TEST_P(ObexAnswers, DoTheSameByteByByte) {
  ObexClient whole(TwoCards(), 300);
  ObexClient bytewise(TwoCards(), 300);
  whole.Start();
  bytewise.Start();
  whole.Take(GetParam().Answers);
  for (const char& byte : GetParam().Answers) bytewise.Take(QByteArrayView(&byte, 1));
  EXPECT_EQ(bytewise.TakeOutput(), whole.TakeOutput());
  EXPECT_EQ(bytewise.Outcomes(), whole.Outcomes());
  EXPECT_EQ(bytewise.IsOver(), whole.IsOver());
}

INSTANTIATE_TEST_SUITE_P(Obex, ObexAnswers, testing::ValuesIn(kAnswers),
                         [](const auto& answers) { return answers.param.Name; });

QByteArray Sent(ObexClient& client, const QByteArray& answer) {
  client.Take(answer);
  return client.TakeOutput();
}

TEST(ObexClient, SaysHelloAndGoodbyeWithoutObjects) {
  ObexClient client({}, 0x1234);
  client.Start();
  EXPECT_EQ(client.TakeOutput().toHex(' '), "80 00 07 10 00 12 34");
  EXPECT_EQ(Sent(client, kConnected).toHex(' '), "81 00 03");
  EXPECT_FALSE(client.IsOver());
  EXPECT_EQ(Sent(client, kSuccess), "");
  EXPECT_TRUE(client.IsOver());
  EXPECT_TRUE(client.Outcomes().empty());
}

TEST(ObexClient, SendsNameTypeAndLengthWithTheFirstPiece) {
  ObexClient client({{u"A김"_qs, "abc"}});
  client.Start();
  client.TakeOutput();
  EXPECT_EQ(Sent(client, kConnected).toHex(' '),
            "82 00 27 01 00 09 00 41 ae 40 00 00 "
            "42 00 10 74 65 78 74 2f 78 2d 76 63 61 72 64 00 "
            "c3 00 00 00 03 49 00 06 61 62 63");
}

TEST(ObexClient, SendsAnEmptyObject) {
  ObexClient client({{u"A"_qs, {}}});
  client.Start();
  client.TakeOutput();
  const QByteArray put = Sent(client, kConnected);
  EXPECT_EQ(CodesOf(put), "82");
  EXPECT_TRUE(put.endsWith(QByteArray::fromHex("490003")));
}

TEST(ObexClient, BeginsEveryRequestWithTheConnectionsNumber) {
  ObexClient client({{u"A"_qs, ObexCard(300)}});
  client.Start();
  client.TakeOutput();
  const ObexHeader id = ObexNumber(ObexHeaderId::ConnectionId, 7);
  QByteArray sent = Sent(client, ConnectResponse(255, {id}));
  for (const char* code : {"02", "82", "81"}) {
    EXPECT_EQ(CodesOf(sent), code);
    const auto packet = ReadObexPacket(sent, 0);
    ASSERT_TRUE(packet);
    ASSERT_FALSE(packet->Headers.empty());
    EXPECT_EQ(packet->Headers.front(), id);
    sent = Sent(client, CodesOf(sent) == "02" ? kContinue : kSuccess);
  }
}

TEST(ObexClient, FillsThePacketsThatThePeerTakes) {
  for (const int limit : {255, 256, 1000, 65535}) {
    ObexClient client({{QString(200, u'n'), ObexCard(200'000)}});
    client.Start();
    client.TakeOutput();
    const ObexHeader id = ObexNumber(ObexHeaderId::ConnectionId, 7);
    QByteArray sent = Sent(client, ConnectResponse(static_cast<quint16>(limit), {id}));
    while (CodesOf(sent) == "02") {
      ASSERT_EQ(sent.size(), limit);
      sent = Sent(client, kContinue);
    }
    EXPECT_EQ(CodesOf(sent), "82");
    EXPECT_LE(sent.size(), limit);
  }
}

TEST(ObexClient, SendsNoMoreThanEveryPeerTakesWhateverItSays) {
  ObexClient client({{u"A"_qs, ObexCard(300)}});
  client.Start();
  client.TakeOutput();
  EXPECT_EQ(Sent(client, ConnectResponse(3)).size(), 255);
}

TEST(ObexClient, CutsLongNamesBetweenCharacters) {
  for (const auto& [name, length] :
       {std::pair(QString(50, u'a'), 50), std::pair(QString(51, u'a'), 50),
        std::pair(QString(49, u'a') + u"\U0001F600"_qs, 49),
        std::pair(QString(48, u'a') + u"\U0001F600"_qs, 50)}) {
    ObexClient client({{name, "abc"}});
    client.Start();
    client.TakeOutput();
    const auto packet = ReadObexPacket(Sent(client, kConnected), 0);
    ASSERT_TRUE(packet);
    EXPECT_EQ(ObexTextOf(packet->Headers.front()), name.left(length));
  }
}

}  // namespace
}  // namespace quill::test
