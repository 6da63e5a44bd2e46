// Requests of other programs, end to end: when they open and what they say.
#include <gtest/gtest.h>

#include "driver/DriverProcess.h"

using quill::test::ReadyDriver;

namespace {

class RequestScript : public testing::Test {
 protected:
  QStringList Arguments() const { return {QStringLiteral("--home"), m_home.path()}; }

  QTemporaryDir m_home;
};

void PutPeople(ReadyDriver& driver) {
  for (const char* name : {"Adams", "Gray", "박지성"})
    driver.Result(QByteArray(R"({"op":"put","quiet":true,"fields":{"FileAs":")") + name + "\"}}",
                  u"oid");
  driver.Do(R"({"op":"command","id":59413})");
}

void OpenConfiguration(ReadyDriver& driver) { driver.Do(R"({"op":"command","id":32830})"); }

// Longer than a request waits when nothing is in its way.
void Wait(ReadyDriver& driver) { driver.Do(R"({"op":"wait","ms":300})"); }

// Of whom the record sheet on top is, or what the message box there says; empty without either.
QString Message(ReadyDriver& driver) {
  const QJsonArray rows = driver.Ask(R"({"op":"rows"})")[u"rows"].toArray();
  if (!rows.isEmpty()) return rows.first()[u"value"].toString();
  const QJsonValue message = driver.Result(R"({"op":"message"})", u"message");
  return message.toObject()[u"text"].toString();
}

qsizetype CountWindows(ReadyDriver& driver) {
  return driver.Result(R"({"op":"windows"})", u"windows").toArray().size();
}

QJsonValue Ask(ReadyDriver& driver, const QByteArray& name) {
  return driver.Result(R"({"op":"copydata","kind":1,"text":")" + name + "\"}", u"copydata");
}

const QString kNotFound = QStringLiteral("Related name not found.");

}  // namespace

TEST_F(RequestScript, AnotherProgramsRequestShowsItsContact) {
  ReadyDriver driver(Arguments());
  PutPeople(driver);
  EXPECT_EQ(Ask(driver, "박지성"), true);
  Wait(driver);
  EXPECT_EQ(Message(driver), QStringLiteral("박지성"));
}

TEST_F(RequestScript, ARequestOfSoManyBytesNamesWhatTheyHold) {
  ReadyDriver driver(Arguments());
  PutPeople(driver);
  EXPECT_EQ(
      driver.Result(R"({"op":"copydata","kind":4,"text":"Gray wolf","bytes":8})", u"copydata"),
      true);
}

TEST_F(RequestScript, ARequestForNobodyIsSaid) {
  ReadyDriver driver(Arguments());
  EXPECT_EQ(Ask(driver, "Nobody"), false);
  const QJsonObject message = driver.Result(R"({"op":"message"})", u"message").toObject();
  EXPECT_EQ(message[u"text"], kNotFound);
  EXPECT_EQ(message[u"caption"], QStringLiteral("Quill (Quillbook)"));
}

TEST_F(RequestScript, ARequestWaitsUntilTheOpenDialogHasClosed) {
  ReadyDriver driver(Arguments());
  PutPeople(driver);
  OpenConfiguration(driver);
  Ask(driver, "Gray");
  Wait(driver);
  EXPECT_EQ(Message(driver), QString());
  driver.Do(R"({"op":"cancel"})");
  Wait(driver);
  EXPECT_EQ(Message(driver), QStringLiteral("Gray"));
}

TEST_F(RequestScript, RequestsForNobodyOpenOneBoxOnceTheDialogHasClosed) {
  ReadyDriver driver(Arguments());
  OpenConfiguration(driver);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Ask(driver, "Nobody"), false);
  Wait(driver);
  EXPECT_EQ(CountWindows(driver), 2);
  EXPECT_EQ(Message(driver), QString());
  driver.Do(R"({"op":"cancel"})");
  Wait(driver);
  EXPECT_EQ(Message(driver), kNotFound);
  driver.Do(R"({"op":"answer","button":"OK"})");
  Wait(driver);
  EXPECT_EQ(CountWindows(driver), 1);
}

TEST_F(RequestScript, OfContactsAskedForBehindABoxOnlyTheLatestIsShown) {
  ReadyDriver driver(Arguments());
  PutPeople(driver);
  for (const char* name : {"Nobody", "박지성", "Gray", "No one"}) Ask(driver, name);
  EXPECT_EQ(CountWindows(driver), 2);
  for (int box = 0; box < 2; ++box) {  // the second for who was asked for last
    EXPECT_EQ(Message(driver), kNotFound);
    driver.Do(R"({"op":"answer","button":"OK"})");
    Wait(driver);
  }
  EXPECT_EQ(Message(driver), QStringLiteral("Gray"));
}

TEST_F(RequestScript, ARequestWaitsForAnOpenMenu) {
  ReadyDriver driver(Arguments());
  PutPeople(driver);
  driver.Do(R"({"op":"tap","on":"view","x":190,"y":12})");
  Ask(driver, "Nobody");
  Wait(driver);
  EXPECT_NE(driver.Result(R"({"op":"popup"})", u"popup"), QJsonValue());
  EXPECT_EQ(Message(driver), QString());
  driver.Do(R"({"op":"dismiss"})");
  Wait(driver);
  EXPECT_EQ(Message(driver), kNotFound);
}

TEST_F(RequestScript, ARequestWaitsUntilThePenIsUp) {
  ReadyDriver driver(Arguments());
  PutPeople(driver);
  driver.Do(R"({"op":"press","on":"list","x":100,"y":8})");
  driver.Do(R"({"op":"move","on":"list","x":100,"y":24})");
  Ask(driver, "Gray");
  Wait(driver);
  EXPECT_EQ(Message(driver), QString());
  driver.Do(R"({"op":"release","on":"list","x":100,"y":24})");
  Wait(driver);
  EXPECT_EQ(Message(driver), QStringLiteral("Gray"));
  EXPECT_EQ(CountWindows(driver), 2);
}
