#include "app/MemoWatch.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quill {
namespace {

// Each test runs the event loop until it is told of what it did.
class MemoWatchTest : public testing::Test {
 protected:
  void MakeFolder() { ASSERT_TRUE(QDir(m_home.path()).mkpath(u"memos"_qs)); }
  QString Path(const QString& name) const { return m_home.filePath(u"memos/"_qs + name); }
  void Make(const QString& name) {
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  void WaitUntilTold() {
    while (m_told == 0) m_loop.processEvents(QEventLoop::WaitForMoreEvents);
    m_told = 0;
  }

  const QTemporaryDir m_home;
  QEventLoop m_loop;
  int m_told = 0;
  MemoWatch m_watch{(MakeFolder(), m_home.filePath(u"memos"_qs)), [this] { ++m_told; }};
};

TEST_F(MemoWatchTest, TellsOfFilesThatComeAreRenamedAndGo) {
  Make(u"a.pwi"_qs);
  WaitUntilTold();
  ASSERT_TRUE(QFile::rename(Path(u"a.pwi"_qs), Path(u"b.pwi"_qs)));
  WaitUntilTold();
  ASSERT_TRUE(QFile::remove(Path(u"b.pwi"_qs)));
  WaitUntilTold();
}

TEST_F(MemoWatchTest, FollowsAFolderInWhosePlaceAnotherIsMade) {
  ASSERT_TRUE(QDir().rename(Path({}), m_home.filePath(u"before"_qs)));
  WaitUntilTold();
  MakeFolder();
  WaitUntilTold();
  Make(u"a.pwi"_qs);
  WaitUntilTold();
}

TEST_F(MemoWatchTest, FollowsAFolderThatIsRemovedAndMadeAgain) {
  ASSERT_TRUE(QDir(Path({})).removeRecursively());
  WaitUntilTold();
  MakeFolder();
  WaitUntilTold();
  Make(u"a.pwi"_qs);
  WaitUntilTold();
}

}  // namespace
}  // namespace quill
