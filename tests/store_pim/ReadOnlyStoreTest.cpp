// Stores that can only be read, or that lie where nothing can be made.
#include <QFileInfo>

#include <sqlite3.h>

#include "store/pim/StoreFile.h"
#include "store_pim/StoreFileFixture.h"
#include "support/OrdinaryUser.h"

namespace quill {
namespace {

using test::OrdinaryUser;
using test::Write;

class ReadOnlyPlace : public test::StoreFileFixture {
 protected:
  // The folder, and the files in it.
  void Protect() {
    ProtectFiles();
    QFile::setPermissions(m_folder.path(), kReading | kEntering);
  }
  void ProtectFiles() {
    for (const QString& name : Files()) QFile::setPermissions(m_folder.filePath(name), kReading);
    QFile::setPermissions(m_folder.path(), kReading | kEntering | kWriting);
  }
  QStringList Files() const { return QDir(m_folder.path()).entryList(QDir::Files); }
  // As a program leaves it that is killed: what it wrote last stands in the log.
  void MakeStoreThatWasKilled() {
    MakeStore();
    const QTemporaryDir copies;
    {
      PimStore store(Path());
      ASSERT_EQ(test::OpenAll(store), 0);
      ASSERT_EQ(store.Contacts()->Save(0, {}, {}), 201);
      for (const QString& name : Files())
        ASSERT_TRUE(QFile::copy(m_folder.filePath(name), copies.filePath(name)));
    }
    for (const QString& name : QDir(copies.path()).entryList(QDir::Files)) {
      QFile::remove(m_folder.filePath(name));
      ASSERT_TRUE(QFile::copy(copies.filePath(name), m_folder.filePath(name)));
    }
    ASSERT_GT(QFileInfo(StoreLogPath(Path())).size(), 0);
  }
  void ExpectRead(int contacts) {
    const QStringList before = Files();
    {
      PimStore store(Path(), {.Access = StoreAccess::AtLeastReading});
      ASSERT_EQ(test::OpenAll(store), 0) << store.LastError().toStdString();
      EXPECT_EQ(store.Contacts()->Count(store.Contacts()->Items()), contacts);
      EXPECT_EQ(store.Check().Index, IndexCondition::Right);
      EXPECT_EQ(store.Contacts()->Save(0, {}, {}), 0);
    }
    EXPECT_EQ(Files(), before);
  }
  void ExpectUnread(int code, const char* reason) {
    PimStore store(Path(), {.Access = StoreAccess::AtLeastReading});
    EXPECT_EQ(test::OpenAll(store), code);
    EXPECT_EQ(store.LastError().toStdString(), reason);
  }

  static constexpr QFileDevice::Permissions kReading{
      QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther};
  static constexpr QFileDevice::Permissions kEntering{
      QFileDevice::ExeOwner | QFileDevice::ExeGroup | QFileDevice::ExeOther};
  static constexpr QFileDevice::Permissions kWriting{
      QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther};

  ~ReadOnlyPlace() override {
    using enum QFileDevice::Permission;
    QFile::setPermissions(m_folder.path(), ReadOwner | WriteOwner | ExeOwner);
  }
};

TEST_F(ReadOnlyPlace, AStoreThereIsRefused) {
  MakeStore();
  Protect();
  const OrdinaryUser user;
  ExpectRefused(SQLITE_READONLY);
}

TEST_F(ReadOnlyPlace, AStoreInAFolderThatIsIsRefusedToo) {
  MakeStore();
  Protect();
  QFile::setPermissions(Path(), kReading | kWriting);
  const OrdinaryUser user;
  ExpectRefused(SQLITE_READONLY);
}

TEST_F(ReadOnlyPlace, AStoreThereIsReadByWhoDoesNotWrite) {
  MakeStore();
  Protect();
  const OrdinaryUser user;
  ExpectRead(200);
}

TEST_F(ReadOnlyPlace, AStoreInAFolderThatIsIsReadToo) {
  MakeStore();
  Protect();
  QFile::setPermissions(Path(), kReading | kWriting);
  const OrdinaryUser user;
  ExpectRead(200);
}

TEST_F(ReadOnlyPlace, ReadingLeavesNothingBesideAFileThatIs) {
  MakeStore();
  ProtectFiles();
  const OrdinaryUser user;
  ExpectRead(200);
}

TEST_F(ReadOnlyPlace, AStoreIsReadWithItsLog) {
  MakeStoreThatWasKilled();
  Protect();
  const OrdinaryUser user;
  ExpectRead(201);
}

TEST_F(ReadOnlyPlace, AStoreIsNotReadWithoutItsLog) {
  MakeStoreThatWasKilled();
  ASSERT_TRUE(QFile::remove(StoreLogIndexPath(Path())));
  Protect();
  const OrdinaryUser user;
  ExpectUnread(
      SQLITE_CANTOPEN,
      "the file can only be read, and not without writing while store.db-wal is beside it");
}

TEST_F(ReadOnlyPlace, AStoreBesideAnEmptyLogIsRead) {
  MakeStore();
  Write(StoreLogPath(Path()), {});
  Protect();
  const OrdinaryUser user;
  ExpectRead(200);
}

TEST_F(ReadOnlyPlace, AnOlderStoreIsNotRead) {
  MakeStore();
  RunOnFile("PRAGMA user_version = 1; PRAGMA wal_checkpoint(TRUNCATE)");
  Protect();
  const OrdinaryUser user;
  ExpectUnread(SQLITE_READONLY, "the file has to be written before it can be read");
}

TEST_F(ReadOnlyPlace, AnIndexThatIsWrongThereStaysSo) {
  MakeStore();
  RunOnFile("DELETE FROM entry WHERE oid = 1");
  Protect();
  const OrdinaryUser user;
  PimStore store(Path(), {.Access = StoreAccess::AtLeastReading});
  ASSERT_EQ(store.Create(), 0);
  ASSERT_EQ(store.Logon(), 0);
  EXPECT_EQ(store.Check().Index, IndexCondition::Different);
}

TEST_F(ReadOnlyPlace, AStoreIsNotMadeThere) {
  Protect();
  const OrdinaryUser user;
  PimStore store(Path());
  EXPECT_EQ(store.Create(), SQLITE_CANTOPEN);
  EXPECT_FALSE(QFile::exists(Path()));
}

}  // namespace
}  // namespace quill
