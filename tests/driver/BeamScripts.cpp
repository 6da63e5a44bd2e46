// Beam and receive, end to end: with a device that a script plays, and between programs.
#include <QTcpServer>

#include <gtest/gtest.h>

#include "driver/WindowWalk.h"

using quill::test::DriverProcess;
using quill::test::ReadyDriver;

namespace {

constexpr const char* kBeam = R"({"op":"command","id":40015})";
constexpr const char* kForceBeam = R"({"op":"command","id":40015,"force":true})";
constexpr const char* kReceive = R"({"op":"command","id":32831})";
constexpr const char* kForceReceive = R"({"op":"command","id":32831,"force":true})";
constexpr const char* kByMemo = R"({"op":"command","id":32825})";

void PutPeople(ReadyDriver& driver) {
  for (const char* name : {"Adams", "Gray", "박지성", "Zed"})
    driver.Result(QByteArray(R"({"op":"put","quiet":true,"fields":{"FileAs":")") + name + "\"}}",
                  u"oid");
  driver.Do(R"({"op":"command","id":59413})");
}

// The first rows of the list, two at least: with one alone it would be a tap.
void SelectRows(ReadyDriver& driver, int count) {
  driver.Do(R"({"op":"press","on":"list","x":60,"y":8})");
  for (int row = 1; row < count; ++row)
    driver.Do(R"({"op":"move","on":"list","x":60,"y":)" + QByteArray::number(16 * row + 8) + '}');
  driver.Do(R"({"op":"release","on":"list","x":60,"y":)" +
            QByteArray::number(16 * (count - 1) + 8) + '}');
}

QJsonArray Selected(ReadyDriver& driver) {
  return driver.Result(R"({"op":"list"})", u"list")[u"selected"].toArray();
}

QJsonObject Infrared(ReadyDriver& driver) {
  return driver.Result(R"({"op":"infrared"})", u"infrared").toObject();
}

QJsonArray Sends(ReadyDriver& driver) { return Infrared(driver)[u"sends"].toArray(); }

QStringList ListedNames(ReadyDriver& driver) {
  QStringList names;
  const QJsonArray rows = driver.Result(R"({"op":"list"})", u"list")[u"rows"].toArray();
  for (const auto& row : rows) names.append(row.toObject()[u"name"].toString());
  return names;
}

// Answers the boxes that stand one after the other; returns how many there were.
int AnswerBoxes(ReadyDriver& driver) {
  int count = 0;
  for (;; ++count) {
    const QJsonObject message = driver.Result(R"({"op":"message"})", u"message").toObject();
    if (message.isEmpty()) return count;
    EXPECT_EQ(message[u"text"], QStringLiteral("Failed to open Infrared."));
    EXPECT_EQ(message[u"caption"], QStringLiteral("Quill (Quillbook)"));
    EXPECT_EQ(message[u"icon"], QStringLiteral("none"));
    driver.Do(R"({"op":"answer","button":"OK"})");
  }
}

void Fault(ReadyDriver& driver, const QByteArray& name, const QByteArray& more = {}) {
  driver.Do(R"({"op":"fault","on":true,"name":")" + name + '"' + more + '}');
}

// Lets the list take up what was told.
void Wait(ReadyDriver& driver) { driver.Do(R"({"op":"wait","ms":700})"); }

}  // namespace

TEST(BeamScript, ThreeSelectedContactsAreQueuedInTheirOrderAndSentOnce) {
  ReadyDriver driver;
  PutPeople(driver);
  SelectRows(driver, 3);
  const QJsonArray selected = Selected(driver);
  ASSERT_EQ(selected.size(), 3);
  driver.Do(kBeam);
  EXPECT_EQ(Sends(driver), QJsonArray{selected});
  EXPECT_EQ(AnswerBoxes(driver), 0);
  EXPECT_EQ(Selected(driver), selected);
}

TEST(BeamScript, TheRowsPopupBeamsItsContact) {
  ReadyDriver driver;
  PutPeople(driver);
  driver.Do(R"({"op":"hold","on":"list","x":60,"y":24})");
  driver.Do(R"({"op":"choose","id":40015})");
  EXPECT_EQ(Sends(driver), QJsonArray{QJsonArray{2}});
}

TEST(BeamScript, WithoutASelectionTheCommandIsDisabledAndASendCarriesNothing) {
  ReadyDriver driver;
  PutPeople(driver);
  EXPECT_EQ(driver.Error(kBeam), QStringLiteral("disabled"));
  EXPECT_EQ(Sends(driver), QJsonArray());
  driver.Do(kForceBeam);
  EXPECT_EQ(Sends(driver), QJsonArray{QJsonArray()});
}

TEST(BeamScript, ByMemoNeitherCommandDoesAnything) {
  ReadyDriver driver;
  driver.Do(kByMemo);
  for (const char* const command : {kBeam, kReceive})
    EXPECT_EQ(driver.Error(command), QStringLiteral("disabled"));
  for (const char* const command : {kForceBeam, kForceReceive}) driver.Do(command);
  EXPECT_EQ(Sends(driver), QJsonArray());
  EXPECT_EQ(Infrared(driver)[u"receives"], 0);
}

TEST(BeamScript, AFolderThatCannotBeOpenedIsSaidAndOnceMoreForEachContact) {
  ReadyDriver driver;
  PutPeople(driver);
  SelectRows(driver, 3);
  Fault(driver, "infrared-folder");
  driver.Do(kBeam);
  EXPECT_EQ(AnswerBoxes(driver), 4);
  EXPECT_EQ(Sends(driver), QJsonArray());
}

TEST(BeamScript, AContactThatCannotBeAddedIsSaidAndTheOthersAreSent) {
  ReadyDriver driver;
  PutPeople(driver);
  SelectRows(driver, 3);
  Fault(driver, "infrared-add", R"(,"oid":2)");
  driver.Do(kBeam);
  EXPECT_EQ(AnswerBoxes(driver), 1);
  const QJsonArray sends = Sends(driver);
  ASSERT_EQ(sends.size(), 1);
  EXPECT_EQ(sends[0].toArray().size(), 2);
  EXPECT_FALSE(sends[0].toArray().contains(2));
}

TEST(BeamScript, NothingIsSaidWhenSendingOrReceivingFails) {
  ReadyDriver driver;
  PutPeople(driver);
  SelectRows(driver, 2);
  Fault(driver, "infrared-send");
  Fault(driver, "infrared-receive");
  driver.Do(kBeam);
  driver.Do(kReceive);
  EXPECT_EQ(AnswerBoxes(driver), 0);
  EXPECT_EQ(Infrared(driver), (QJsonObject{{QStringLiteral("sends"), QJsonArray()},
                                           {QStringLiteral("receives"), 0}}));
}

TEST(BeamScript, AnOfferedContactIsStoredWholeAndListedHalfASecondLater) {
  ReadyDriver driver;
  PutPeople(driver);
  driver.Do(
      R"({"op":"infrared-offer","fields":{"FileAs":"Baker","Email3Address":"b@c","BodyInk":"aW5r"}})");
  driver.Do(R"({"op":"infrared-offer","fields":{"FileAs":"Clark"}})");
  EXPECT_EQ(ListedNames(driver).size(), 4) << "not received yet";
  driver.Do(kReceive);
  EXPECT_EQ(ListedNames(driver).size(), 4);
  EXPECT_EQ(driver.Result(R"({"op":"windows"})", u"windows").toArray().size(), 1);
  const QJsonObject baker = driver.Result(R"({"op":"contact","oid":5})", u"fields").toObject();
  EXPECT_EQ(baker, (QJsonObject{{QStringLiteral("FileAs"), QStringLiteral("Baker")},
                                {QStringLiteral("Email3Address"), QStringLiteral("b@c")},
                                {QStringLiteral("BodyInk"), QStringLiteral("aW5r")}}));
  Wait(driver);
  EXPECT_EQ(ListedNames(driver).mid(0, 4),
            QStringList({QStringLiteral("Adams"), QStringLiteral("Baker"), QStringLiteral("Clark"),
                         QStringLiteral("Gray")}));
  driver.Do(kReceive);
  EXPECT_EQ(Infrared(driver)[u"receives"], 2);
  Wait(driver);
  EXPECT_EQ(ListedNames(driver).size(), 6);
}

TEST(BeamScript, TheConfigurationsButtonReceives) {
  ReadyDriver driver;
  driver.Do(R"({"op":"infrared-offer","fields":{"FileAs":"Baker"}})");
  driver.Do(R"({"op":"command","id":32830})");
  driver.Do(R"({"op":"click","id":1001})");
  EXPECT_EQ(Infrared(driver)[u"receives"], 1);
  driver.Do(R"({"op":"cancel"})");
  Wait(driver);
  EXPECT_EQ(ListedNames(driver), QStringList{QStringLiteral("Baker")});
}

TEST(BeamScript, AnOfferThatIsNoContactIsRefused) {
  ReadyDriver driver;
  for (const char* const line :
       {R"({"op":"infrared-offer"})", R"({"op":"infrared-offer","fields":{"Nonsense":"x"}})"})
    EXPECT_EQ(driver.Error(line), QStringLiteral("malformed")) << line;
}

// Two programs, each with a home of its own, over the loopback.
class TwoPrograms : public testing::Test {
 protected:
  static constexpr int kPatience = 300;  // looks, a tenth of a second apart

  void SetUp() override {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    m_port = QByteArray::number(server.serverPort());
  }
  static QStringList Real(const QTemporaryDir& home) {
    return {QStringLiteral("--home"), home.path(), QStringLiteral("--infrared"),
            QStringLiteral("obex")};
  }
  void KeepPort(const QTemporaryDir& home) const {
    QFile file(home.filePath(QStringLiteral("settings.json")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"({"\\Software\\Fennick\\Quill\\Infrared":{"Port":)" + m_port + "}}");
  }
  // Beams the first rows to the port, as a user does.
  void BeamTo(ReadyDriver& sender, int rows) const {
    PutPeople(sender);
    SelectRows(sender, rows);
    sender.Do(kBeam);
    sender.Do(R"({"op":"set","id":1001,"text":"127.0.0.1:)" + m_port + "\"}");
    sender.Do(R"({"op":"ok"})");
  }
  static QString TopClass(ReadyDriver& driver) {
    const QJsonArray windows = driver.Result(R"({"op":"windows"})", u"windows").toArray();
    return windows.last().toObject()[u"class"].toString();
  }
  template <class Condition>
  static bool Await(ReadyDriver& driver, Condition condition) {
    for (int look = 0; look < kPatience && !condition(); ++look)
      driver.Do(R"({"op":"wait","ms":100})");
    return condition();
  }

  QTemporaryDir m_here;
  QTemporaryDir m_there;
  QByteArray m_port;
};

TEST_F(TwoPrograms, HandEachOtherContactsOnceTheReceiverIsAsked) {
  KeepPort(m_there);
  ReadyDriver receiver(Real(m_there));
  receiver.Do(kReceive);
  ReadyDriver sender(Real(m_here));
  BeamTo(sender, 2);
  for (const char* name : {"Adams", "Gray"}) {
    ASSERT_TRUE(
        Await(receiver, [&] { return TopClass(receiver) == QStringLiteral("ConsentDlg"); }));
    EXPECT_EQ(receiver.Result(R"({"op":"get","id":1001})", u"control")[u"text"],
              QStringLiteral("127.0.0.1"));
    EXPECT_EQ(receiver.Result(R"({"op":"get","id":1003})", u"control")[u"text"],
              QLatin1String(name));
    quill::test::ExpectSpoken(
        receiver.Result(R"({"op":"accessible","on":"top"})", u"accessible").toObject());
    receiver.Do(R"({"op":"click","id":6})");
  }
  EXPECT_TRUE(Await(receiver, [&] {
    return ListedNames(receiver) == QStringList({QStringLiteral("Adams"), QStringLiteral("Gray")});
  }));
}

TEST_F(TwoPrograms, ARefusedContactIsNotTaken) {
  KeepPort(m_there);
  ReadyDriver receiver(Real(m_there));
  receiver.Do(kReceive);
  ReadyDriver sender(Real(m_here));
  BeamTo(sender, 2);
  for (int contact = 0; contact < 2; ++contact) {
    ASSERT_TRUE(
        Await(receiver, [&] { return TopClass(receiver) == QStringLiteral("ConsentDlg"); }));
    receiver.Do(R"({"op":"click","id":7})");
  }
  Wait(receiver);
  EXPECT_EQ(ListedNames(receiver), QStringList());
}

TEST_F(TwoPrograms, TheQuestionGoesWhenTheSenderDoes) {
  KeepPort(m_there);
  ReadyDriver receiver(Real(m_there));
  receiver.Do(kReceive);
  {
    ReadyDriver sender(Real(m_here));
    BeamTo(sender, 2);
    ASSERT_TRUE(
        Await(receiver, [&] { return TopClass(receiver) == QStringLiteral("ConsentDlg"); }));
  }
  EXPECT_TRUE(Await(receiver, [&] { return TopClass(receiver) == QStringLiteral("MainFrame"); }));
}

TEST_F(TwoPrograms, TheCommandLineReceivesWhatTheWindowSends) {
  QProcess receiver;
  receiver.start(QStringLiteral(QUILL_PROGRAM),
                 {QStringLiteral("receive"), QStringLiteral("--home"), m_there.path(),
                  QStringLiteral("--port"), QString::fromLatin1(m_port), QStringLiteral("--trust"),
                  QStringLiteral("127.0.0.1"), QStringLiteral("--count"), QStringLiteral("4")});
  ASSERT_TRUE(receiver.waitForStarted());
  receiver.setReadChannel(QProcess::StandardError);
  ASSERT_TRUE(receiver.waitForReadyRead()) << "it says that it listens";
  ReadyDriver sender(Real(m_here));
  BeamTo(sender, 4);
  ASSERT_TRUE(receiver.waitForFinished(60'000));
  EXPECT_EQ(receiver.exitCode(), 0);
  const QString told = QString::fromUtf8(receiver.readAllStandardOutput());
  for (const char* name : {"Adams", "Gray", "박지성", "Zed"})
    EXPECT_TRUE(told.contains(QString::fromUtf8(name))) << told.toStdString();
}

TEST_F(TwoPrograms, TheLastReceiverIsOfferedAgain) {
  ReadyDriver sender(Real(m_here));
  BeamTo(sender, 2);
  EXPECT_TRUE(Await(sender, [&] {
    if (TopClass(sender) == QStringLiteral("MainFrame")) sender.Do(kBeam);
    return TopClass(sender) == QStringLiteral("ReceiverDlg");
  })) << "as soon as the first sending has failed";
  EXPECT_EQ(sender.Result(R"({"op":"get","id":1001})", u"control")[u"text"],
            QString::fromLatin1("127.0.0.1:" + m_port));
}
