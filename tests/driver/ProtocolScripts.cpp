// The line protocol itself: start, answers, errors, end.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <fcntl.h>
#include <unistd.h>

#include "driver/DriverProcess.h"

using quill::test::DriverProcess;
using quill::test::ReadyDriver;

namespace {

// Its output is a pipe that refuses what it cannot hold just now.
class SlowlyReadDriver : public DriverProcess {
 public:
  SlowlyReadDriver() : DriverProcess([] { fcntl(STDOUT_FILENO, F_SETFL, O_WRONLY | O_NONBLOCK); }) {
    ReadLine();
  }
};

}  // namespace

TEST(Protocol, ReadyLineComesFirst) {
  DriverProcess driver;
  EXPECT_EQ(driver.ReadLine(), R"({"ready":true,"protocol":1})");
}

TEST(Protocol, UnknownOperationIsRefusedInTheseVeryWords) {
  ReadyDriver driver;
  EXPECT_EQ(driver.AskForLine(R"({"op":"fly"})"), R"({"ok":false,"error":"unknown operation"})");
}

class MalformedLine : public testing::TestWithParam<const char*> {};

TEST_P(MalformedLine, IsAnsweredWithAnErrorAndChangesNothing) {
  ReadyDriver driver;
  EXPECT_EQ(driver.AskForLine(GetParam()), R"({"ok":false,"error":"malformed"})");
  EXPECT_EQ(driver.Result(R"({"op":"windows"})", u"windows").toArray().size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Protocol, MalformedLine,
                         testing::Values("", "{", "7", "[]", "{\"op\":7}", "{}",
                                         "{\"op\":\"tap\",\"x\":1}", "{\"op\":\"tap\"} x",
                                         "{\"op\":\"command\",\"id\":1.5}",
                                         "{\"op\":\"wait\",\"ms\":-1}", "{\"op\":\"\xff\"}"));

TEST(Protocol, LineBeyondTheLimitIsMalformedAndTheNextOneIsReadAgain) {
  ReadyDriver driver;
  const QByteArray endless(5 * 1024 * 1024, 'x');
  EXPECT_EQ(driver.Error(endless), QStringLiteral("malformed"));
  EXPECT_EQ(driver.Result(R"({"op":"popup"})", u"popup"), QJsonValue());
}

TEST(Protocol, LinesThatComeTogetherAreAnsweredInOrder) {
  ReadyDriver driver;
  driver.WriteLine("{\"op\":\"wait\",\"ms\":50}\n{\"op\":\"fly\"}\n{\"op\":\"popup\"}");
  EXPECT_EQ(driver.ReadLine(), R"({"ok":true})");
  EXPECT_EQ(driver.ReadLine(), R"({"ok":false,"error":"unknown operation"})");
  EXPECT_EQ(driver.ReadLine(), R"({"ok":true,"popup":null})");
}

TEST(Protocol, SlowReaderOfAPipeThatDoesNotBlockGetsWholeAnswers) {
  SlowlyReadDriver driver;
  const QByteArray ink(3 * 1024 * 1024, 'n');
  driver.Result(R"({"op":"put","fields":{"FileAs":"Adams","BodyInk":")" + ink + R"("}})", u"oid");
  const QJsonArray contacts = driver.Result(R"({"op":"contacts"})", u"contacts").toArray();
  const QJsonObject fields = contacts.at(0).toObject().value(u"fields").toObject();
  EXPECT_EQ(fields.value(u"BodyInk").toString().size(), ink.size());
  EXPECT_EQ(driver.Finish(), 0);
}

TEST(Protocol, QuitIsAnsweredAndEndsTheProgram) {
  ReadyDriver driver;
  driver.Do(R"({"op":"quit"})");
  EXPECT_EQ(driver.Finish(), 0);
}

TEST(Protocol, EndOfInputEndsTheProgram) {
  ReadyDriver driver;
  EXPECT_EQ(driver.Finish(), 0);
}

TEST(Protocol, EndOfInputEndsAnOpenDialogAndAnOpenPopup) {
  ReadyDriver driver;
  driver.Do(R"({"op":"command","id":57664})");
  driver.Do(R"({"op":"hold","x":80,"y":12})");
  EXPECT_EQ(driver.Finish(), 0);
}

TEST(Protocol, ClosingTheFrameIsAnsweredBeforeTheEnd) {
  ReadyDriver driver;
  driver.Do(R"({"op":"cancel"})");
  EXPECT_EQ(driver.Finish(), 0);
}

TEST(Protocol, HelpIsPrintedWithoutAStart) {
  DriverProcess driver({QStringLiteral("--help")});
  EXPECT_EQ(driver.ReadLine(), "quill-driver [OPTION VALUE]...");
  EXPECT_EQ(driver.Finish(), 0);
}

class WrongOption : public testing::TestWithParam<QStringList> {};

TEST_P(WrongOption, EndsWithTwoAndAReason) {
  DriverProcess driver(GetParam());
  EXPECT_EQ(driver.Finish(), 2);
  EXPECT_TRUE(driver.StandardError().contains("wrong option"));
}

INSTANTIATE_TEST_SUITE_P(
    Protocol, WrongOption,
    testing::Values(QStringList{QStringLiteral("--wings"), QStringLiteral("2")},
                    QStringList{QStringLiteral("--home")},
                    QStringList{QStringLiteral("--scale"), QStringLiteral("0.3")},
                    QStringList{QStringLiteral("--now"), QStringLiteral("noon")},
                    QStringList{QStringLiteral("--fault"), QStringLiteral("rain")},
                    QStringList{QStringLiteral("--fault"), QStringLiteral("read:x")}));

TEST(Home, IsKeptFromOneRunToTheNext) {
  const QTemporaryDir home;
  const QStringList arguments{QStringLiteral("--home"), home.path()};
  {
    ReadyDriver driver(arguments);
    driver.Result(R"({"op":"put","fields":{"FileAs":"Adams"}})", u"oid");
    EXPECT_EQ(driver.Finish(), 0);
  }
  ReadyDriver driver(arguments);
  const QJsonObject list = driver.Result(R"({"op":"list"})", u"list").toObject();
  EXPECT_EQ(list.value(u"rows").toArray().at(0).toObject().value(u"name"), QStringLiteral("Adams"));
}

TEST(Home, IsFreshWithoutTheOption) {
  {
    ReadyDriver driver;
    driver.Result(R"({"op":"put","fields":{"FileAs":"Adams"}})", u"oid");
  }
  ReadyDriver driver;
  EXPECT_EQ(driver.Result(R"({"op":"contacts"})", u"contacts").toArray().size(), 0);
}
