// What outlives the windows when the scale changes, and what does not.
#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

#include "driver/DriverProcess.h"

using quill::test::ReadyDriver;

namespace {

constexpr int kLarger = 60001;
constexpr int kSmaller = 60002;

class Probe : public ReadyDriver {
 public:
  explicit Probe(const QStringList& arguments = {})
      : ReadyDriver(arguments, QStringLiteral(QUILL_PROBE_PROGRAM)) {}
};

void Command(ReadyDriver& driver, int id) {
  driver.Do(R"({"op":"command","id":)" + QByteArray::number(id) + '}');
}

// Everything that must be the same in the next shell.
QJsonArray LookAt(Probe& driver) {
  return {driver.Result(R"({"op":"list"})", u"list"),
          driver.Result(R"({"op":"windows"})", u"windows"),
          driver.Result(R"({"op":"texts"})", u"texts"),
          driver.Result(R"({"op":"menus"})", u"menus"),
          driver.Result(R"({"op":"recall"})", u"recall"),
          driver.Result(R"({"op":"widgets"})", u"widgets"),
          driver.Result(R"({"op":"accessible"})", u"accessible")};
}

}  // namespace

TEST(ScaleChange, TwentyTimesLeavesListRegistryAccessibilityAndWidgetsAsBefore) {
  Probe driver;
  for (int i = 0; i < 40; ++i)
    driver.Result(
        R"({"op":"put","quiet":true,"fields":{"FileAs":"P )" + QByteArray::number(i) + R"("}})",
        u"oid");
  driver.Do(R"({"op":"remember","value":31})");
  driver.Do(R"({"op":"set","id":1028,"text":"P"})");
  driver.Do(R"({"op":"click","id":1035})");
  driver.Do(R"({"op":"scroll","on":"view","code":"pagedown"})");
  // The first change of all is where the keyboard's focus settles on the list.
  Command(driver, kLarger);
  Command(driver, kSmaller);
  const QJsonArray before = LookAt(driver);
  for (int change = 2; change < 20; ++change) Command(driver, change % 2 == 0 ? kLarger : kSmaller);
  const QJsonArray after = LookAt(driver);
  ASSERT_EQ(before.size(), after.size());
  for (int i = 0; i < before.size(); ++i) EXPECT_EQ(before[i], after[i]) << "look " << i;
  EXPECT_EQ(before[0].toObject().value(u"top"), 13);
  EXPECT_EQ(before[4], 31);

  driver.Do(R"({"op":"scroll","on":"view","code":"pageup"})");
  EXPECT_EQ(driver.Result(R"({"op":"list"})", u"list").toObject().value(u"top"), 0);
  Command(driver, 57664);
  EXPECT_EQ(driver.Result(R"({"op":"windows"})", u"windows").toArray().size(), 2);
  EXPECT_EQ(driver.Finish(), 0);
}

TEST(ScaleChange, IsSeenInTheNextPicture) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("picture.png"));
  ReadyDriver driver;
  Command(driver, kLarger);
  driver.Do(R"({"op":"screenshot","file":")" + file.toUtf8() + R"("})");
  EXPECT_EQ(QImage(file).size(), QSize(300, 400));
}

TEST(ScaleChange, IsRefusedWhileAWindowIsOpen) {
  ReadyDriver driver;
  Command(driver, 57664);
  driver.Do(R"({"op":"key","key":"Ctrl++"})");
  EXPECT_EQ(driver.Result(R"({"op":"windows"})", u"windows").toArray().size(), 2);
  driver.Do(R"({"op":"cancel"})");
  Command(driver, kLarger);
}

TEST(ScaleChange, ByKeysWorksAsWell) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("picture.png"));
  ReadyDriver driver;
  driver.Do(R"({"op":"key","key":"Ctrl++"})");
  driver.Do(R"({"op":"key","key":"Ctrl++"})");
  driver.Do(R"({"op":"key","key":"Ctrl+-"})");
  driver.Do(R"({"op":"screenshot","file":")" + file.toUtf8() + R"("})");
  EXPECT_EQ(QImage(file).size(), QSize(300, 400));
}

TEST(Clock, StandsWhereItIsSetAcrossAChangeOfScale) {
  Probe driver({QStringLiteral("--now"), QStringLiteral("2004-09-15T09:30:05")});
  EXPECT_EQ(driver.Result(R"({"op":"clock"})", u"clock"), QStringLiteral("2004-09-15T09:30:05"));
  driver.Do(R"({"op":"now","value":"2010-01-02T03:04:05"})");
  Command(driver, kLarger);
  EXPECT_EQ(driver.Result(R"({"op":"clock"})", u"clock"), QStringLiteral("2010-01-02T03:04:05"));
  EXPECT_EQ(driver.Error(R"({"op":"now","value":"noon"})"), QStringLiteral("malformed"));
}
