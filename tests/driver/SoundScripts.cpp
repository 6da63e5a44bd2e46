// What was asked to sound, and the sounds that a home is given at its first start.
#include <QDir>
#include <QProcess>

#include <gtest/gtest.h>

#include "driver/DriverProcess.h"

using quill::test::ReadyDriver;

namespace {

class SoundScript : public testing::Test {
 protected:
  QStringList AtHome() const { return {QStringLiteral("--home"), m_home.path()}; }
  QDir Windows() const { return QDir(m_home.filePath(QStringLiteral("Windows"))); }

  QTemporaryDir m_home;
};

}  // namespace

TEST_F(SoundScript, SoundsAreToldInTheOrderInWhichTheyWereAskedFor) {
  ReadyDriver driver(AtHome(), QStringLiteral(QUILL_PROBE_PROGRAM));
  EXPECT_EQ(driver.Result(R"({"op":"sounds"})", u"sounds"), QJsonArray());
  driver.Do(R"({"op":"play","file":"\\Windows\\Bell.wav"})");
  driver.Do(R"({"op":"stop-sound"})");
  driver.Do(R"({"op":"play","file":"\\Windows\\없다.wav"})");
  EXPECT_EQ(driver.AskForLine(R"({"op":"sounds"})"),
            R"({"ok":true,"sounds":[{"file":"\\Windows\\Bell.wav","what":"play"},)"
            R"({"what":"stop"},{"file":"\\Windows\\없다.wav","what":"play"}]})");
}

TEST_F(SoundScript, AHomeHasSoundsAfterItsFirstStart) {
  ReadyDriver driver(AtHome());
  EXPECT_EQ(driver.Finish(), 0);
  EXPECT_EQ(Windows().entryList({QStringLiteral("*.wav")}).size(), 4);
}

TEST_F(SoundScript, SoundsThatTheUserRemovedStayAway) {
  ASSERT_TRUE(QDir(m_home.path()).mkdir(QStringLiteral("Windows")));
  ReadyDriver driver(AtHome());
  EXPECT_EQ(driver.Finish(), 0);
  EXPECT_TRUE(Windows().isEmpty());
}

TEST_F(SoundScript, ACommandWithoutAWindowMakesNoSounds) {
  QProcess quill;
  quill.start(QStringLiteral(QUILL_PROGRAM), AtHome() << QStringLiteral("list"));
  ASSERT_TRUE(quill.waitForFinished());
  EXPECT_EQ(quill.exitStatus(), QProcess::NormalExit);
  EXPECT_TRUE(QFile::exists(m_home.filePath(QStringLiteral("store.db")))) << "it was there";
  EXPECT_FALSE(Windows().exists());
}
