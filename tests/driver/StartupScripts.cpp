// Start-ups that fail, by the code of the step.
#include <gtest/gtest.h>

#include "driver/DriverProcess.h"

using quill::test::ReadyDriver;

namespace {

QStringList FaultOption(const QString& fault) { return {QStringLiteral("--fault"), fault}; }

QJsonObject List(ReadyDriver& driver) {
  return driver.Result(R"({"op":"list"})", u"list").toObject();
}

void ExpectEmptyList(ReadyDriver& driver) {
  const QJsonObject list = List(driver);
  EXPECT_EQ(list.value(u"total"), 0);
  EXPECT_EQ(list.value(u"rowsShown"), 0);
  EXPECT_EQ(list.value(u"rows").toArray().size(), 0);
}

}  // namespace

TEST(Startup, StoreThatCannotBeMadeIsShownWithItsCodeAndLeavesTheListEmpty) {
  ReadyDriver driver(FaultOption(QStringLiteral("store-create:5")));
  const QJsonObject message = driver.Result(R"({"op":"message"})", u"message").toObject();
  EXPECT_EQ(message.value(u"text"), QStringLiteral("Error occurred [001:5]"));
  EXPECT_EQ(message.value(u"caption"), QStringLiteral("Quill (Quillbook)"));
  EXPECT_EQ(message.value(u"buttons"), QJsonArray{QStringLiteral("OK")});
  EXPECT_EQ(driver.Error(R"({"op":"answer","button":"Yes"})"), QStringLiteral("unknown"));
  driver.Do(R"({"op":"answer","button":"OK"})");
  EXPECT_EQ(driver.Result(R"({"op":"message"})", u"message"), QJsonValue());
  ExpectEmptyList(driver);
}

TEST(Startup, MessageOfAFailureIsSeenAndAnsweredByTheKeyboard) {
  ReadyDriver driver(FaultOption(QStringLiteral("store-create")));
  const QJsonObject button = driver.Result(R"({"op":"get","id":1})", u"control").toObject();
  EXPECT_EQ(button.value(u"visible"), true);
  driver.Do(R"({"op":"key","key":"Return"})");
  EXPECT_EQ(driver.Result(R"({"op":"message"})", u"message"), QJsonValue());
}

TEST(Startup, CodeOfTheFaultStandsInTheMessage) {
  ReadyDriver driver(FaultOption(QStringLiteral("store-create:14")));
  EXPECT_EQ(driver.Result(R"({"op":"message"})", u"message").toObject().value(u"text"),
            QStringLiteral("Error occurred [001:14]"));
}

TEST(Startup, EndOfInputEndsItsMessageToo) {
  ReadyDriver driver(FaultOption(QStringLiteral("store-create")));
  EXPECT_EQ(driver.Finish(), 0);
}

class SilentStartup : public testing::TestWithParam<const char*> {};

TEST_P(SilentStartup, ShowsNoBoxAndLeavesTheListEmptyAndCommandsHarmless) {
  ReadyDriver driver(FaultOption(QString::fromLatin1(GetParam())));
  EXPECT_EQ(driver.Result(R"({"op":"message"})", u"message"), QJsonValue());
  EXPECT_EQ(driver.Result(R"({"op":"windows"})", u"windows").toArray().size(), 1);
  driver.Do(R"({"op":"set","id":1028,"text":"A"})");
  driver.Do(R"({"op":"click","id":1035})");
  driver.Do(R"({"op":"command","id":59413})");
  driver.Do(R"({"op":"scroll","on":"view","code":"pagedown"})");
  ExpectEmptyList(driver);
  EXPECT_EQ(driver.Error(R"({"op":"contacts"})"), QStringLiteral("no store"));
  EXPECT_EQ(driver.Finish(), 0);
}

INSTANTIATE_TEST_SUITE_P(Startup, SilentStartup,
                         testing::Values("store-logon", "contacts-folder", "calendar-folder"));
