#include "store/pim/PimStore.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QDir>
#include <QFile>

#include <csignal>

#include "store/pim/Database.h"
#include "store_pim/StoreFileFixture.h"
#include "store_pim/TemporaryStore.h"

namespace quill {
namespace {

using test::BytesOf;
using test::Write;

class PimStoreFile : public test::StoreFileFixture {};

TEST_F(PimStoreFile, AStoreIsMadeWithTheFoldersAboveIt) {
  const QString path = m_folder.filePath(QStringLiteral("a/b c/store.db"));
  PimStore store(path);
  EXPECT_EQ(test::OpenAll(store), 0);
  EXPECT_TRUE(QFile::exists(path));
  EXPECT_NE(store.Contacts(), nullptr);
  EXPECT_NE(store.Calendar(), nullptr);
  EXPECT_TRUE(store.LastError().isEmpty());
}

TEST_F(PimStoreFile, ClosingLeavesOneFile) {
  MakeStore();
  EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("store.db")));
}

TEST_F(PimStoreFile, AnEmptyFileBecomesAStore) {
  Write(Path(), {});
  PimStore store(Path());
  EXPECT_EQ(test::OpenAll(store), 0);
}

TEST_F(PimStoreFile, AStoreWithoutAFileWorks) {
  PimStore store(QStringLiteral(":memory:"));
  ASSERT_EQ(test::OpenAll(store), 0);
  EXPECT_EQ(store.Contacts()->Save(0, {}, {}), 1);
  EXPECT_FALSE(QFile::exists(QStringLiteral(":memory:")));
}

TEST_F(PimStoreFile, AFolderIsRefused) {
  ASSERT_TRUE(QDir().mkpath(Path()));
  ExpectRefused(SQLITE_CANTOPEN);
}

TEST_F(PimStoreFile, AFileInTheFoldersPlaceIsRefused) {
  Write(m_folder.filePath(QStringLiteral("a")), "text");
  PimStore store(m_folder.filePath(QStringLiteral("a/store.db")));
  EXPECT_EQ(store.Create(), SQLITE_CANTOPEN);
  EXPECT_EQ(BytesOf(m_folder.filePath(QStringLiteral("a"))), "text");
}

TEST_F(PimStoreFile, ATextIsRefused) {
  Write(Path(), "BEGIN:VCARD\r\nEND:VCARD\r\n");
  ExpectRefused(SQLITE_NOTADB);
}

TEST_F(PimStoreFile, AStoreCutShortIsRefused) {
  MakeStore();
  const QByteArray whole = BytesOf(Path());
  Write(Path(), whole.left(5000));
  ExpectRefused(SQLITE_CORRUPT);
}

TEST_F(PimStoreFile, AStoreWithGarbageInItsFirstPageIsRefused) {
  MakeStore();
  QByteArray bytes = BytesOf(Path());
  bytes.replace(100, 3900, QByteArray(3900, '\x5A'));
  Write(Path(), bytes);
  ExpectRefused(SQLITE_CORRUPT);
}

TEST_F(PimStoreFile, AStoreWithGarbageInItsContactsIsRefused) {
  MakeStore();
  QByteArray bytes = BytesOf(Path());
  for (qsizetype at = 4096; at < bytes.size(); ++at) bytes[at] = '\x5A';
  Write(Path(), bytes);
  ExpectRefused(SQLITE_CORRUPT);
}

TEST_F(PimStoreFile, GarbageAnywhereNeverCrashesAndNeverMakesContacts) {
  MakeStore();
  const QByteArray whole = BytesOf(Path());
  for (qsizetype page = 0; page * 4096 < whole.size(); ++page) {
    QByteArray bytes = whole;
    bytes.replace(page * 4096 + (page == 0 ? 100 : 0), 3000, QByteArray(3000, '\xC3'));
    Write(Path(), bytes);
    PimStore store(Path());
    if (test::OpenAll(store) != 0) continue;
    EXPECT_LE(test::Names(*store.Contacts(), store.Contacts()->Items()).size(), 200);
  }
}

TEST_F(PimStoreFile, ANewerStoreIsRefused) {
  MakeStore();
  RunOnFile("PRAGMA user_version = 99; PRAGMA wal_checkpoint(TRUNCATE)");
  ExpectRefused(SQLITE_SCHEMA);
}

TEST_F(PimStoreFile, ANewerVersionStillInTheLogIsRefused) {
  MakeStore();
  Database newer;
  ASSERT_EQ(newer.Open(Path()), 0);
  ASSERT_EQ(newer.Execute("PRAGMA user_version = 99"), 0);
  PimStore store(Path());
  EXPECT_EQ(test::OpenAll(store), SQLITE_SCHEMA);
  EXPECT_TRUE(store.LastError().contains(QStringLiteral("version 99")));
}

TEST_F(PimStoreFile, AnotherProgramsFileIsRefused) {
  RunOnFile("CREATE TABLE notes (text); INSERT INTO notes VALUES ('x')");
  ExpectRefused(SQLITE_NOTADB);
}

TEST_F(PimStoreFile, AnotherProgramsFileWithItsIdIsRefused) {
  RunOnFile("PRAGMA application_id = 1234; PRAGMA journal_mode = WAL; CREATE TABLE contact (Oid)");
  ExpectRefused(SQLITE_NOTADB);
}

TEST_F(PimStoreFile, AStoreThatLacksAColumnIsRefused) {
  MakeStore();
  RunOnFile("ALTER TABLE contact RENAME COLUMN Spouse TO Partner");
  ExpectRefused(SQLITE_ERROR);
}

TEST_F(PimStoreFile, StepsOutOfOrderFail) {
  PimStore store(Path());
  EXPECT_EQ(store.Logon(), SQLITE_MISUSE);
  EXPECT_EQ(store.OpenFolder(FolderKind::Contacts), SQLITE_MISUSE);
  EXPECT_EQ(store.Begin(), nullptr);
  EXPECT_EQ(store.Changes(), 0);
  EXPECT_EQ(store.Create(), 0);
  EXPECT_EQ(store.OpenFolder(FolderKind::Contacts), SQLITE_ERROR);
  EXPECT_EQ(store.Contacts(), nullptr);
}

TEST_F(PimStoreFile, WhoAtLeastReadsMayWriteWhereHeCan) {
  PimStore store(Path(), {.Access = StoreAccess::AtLeastReading});
  ASSERT_EQ(test::OpenAll(store), 0);
  EXPECT_EQ(store.Contacts()->Save(0, {}, {}), 1);
}

// No file grows beyond a size, as on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit limit{bytes, m_before.rlim_max};
    m_handler = std::signal(SIGXFSZ, SIG_IGN);
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &m_before);
    std::signal(SIGXFSZ, m_handler);
  }
  Q_DISABLE_COPY_MOVE(FullDisk)

 private:
  rlimit m_before{};
  void (*m_handler)(int) = SIG_DFL;
};

TEST_F(PimStoreFile, AStoreIsNotMadeOnAFullDisk) {
  PimStore store(Path());
  const FullDisk disk(1000);
  EXPECT_EQ(store.Create(), 0);
  const int code = store.Logon();
  EXPECT_TRUE(code == SQLITE_IOERR || code == SQLITE_FULL) << code;
}

TEST_F(PimStoreFile, AWriteOnAFullDiskFailsAndLeavesTheRest) {
  MakeStore();
  PimStore store(Path());
  ASSERT_EQ(test::OpenAll(store), 0);
  {
    const FullDisk disk(static_cast<rlim_t>(QFile(Path()).size()));
    EXPECT_EQ(store.Contacts()->Save(0, {}, QByteArray(1'000'000, 'x')), 0);
    EXPECT_FALSE(store.LastError().isEmpty());
    EXPECT_EQ(store.Contacts()->Count(store.Contacts()->Items()), 200);
  }
  EXPECT_EQ(store.Contacts()->Save(0, {}, {}), 201);
}

TEST_F(PimStoreFile, ATransactionThatTheDiskEndedWritesNothingMore) {
  MakeStore();
  PimStore store(Path());
  ASSERT_EQ(test::OpenAll(store), 0);
  const auto transaction = store.Begin();
  ASSERT_NE(store.Contacts()->Save(0, {}, {}), 0);
  {
    const FullDisk disk(static_cast<rlim_t>(QFile(Path()).size()));
    // More than the page cache holds, so that it must be written before the commit.
    store.Contacts()->Save(0, {}, QByteArray(20'000'000, 'x'));
  }
  store.Contacts()->Save(0, {}, {});
  EXPECT_FALSE(transaction->Commit());
  PimStore other(Path());
  ASSERT_EQ(test::OpenAll(other), 0);
  EXPECT_EQ(other.Contacts()->Count(other.Contacts()->Items()), 200);
}

class Transactions : public test::TemporaryStore {
 protected:
  int Size() { return Contacts().Count(Contacts().Items()); }
};

TEST_F(Transactions, ACommitKeepsAllAndNothingIsKeptWithoutOne) {
  {
    const auto transaction = m_store.Begin();
    Add(QStringLiteral("a"));
    Add(QStringLiteral("b"));
    EXPECT_TRUE(transaction->Commit());
    EXPECT_FALSE(transaction->Commit());
  }
  EXPECT_EQ(Size(), 2);
  {
    const auto transaction = m_store.Begin();
    Add(QStringLiteral("c"));
    EXPECT_EQ(Size(), 3);
  }
  EXPECT_EQ(Size(), 2);
}

TEST_F(Transactions, ReadingSeesOneMomentAndLetsOthersWrite) {
  Add(QStringLiteral("a"));
  {
    const auto reading = m_store.BeginReading();
    ASSERT_TRUE(reading);
    EXPECT_EQ(m_store.Begin(), nullptr);
    EXPECT_EQ(Size(), 1);
    PimStore other(Path());
    ASSERT_EQ(test::OpenAll(other), 0);
    EXPECT_NE(other.Contacts()->Save(0, {}, {}), 0);
    EXPECT_EQ(Size(), 1);
  }
  EXPECT_EQ(Size(), 2);
  m_store.Close();
  EXPECT_EQ(m_store.BeginReading(), nullptr);
}

TEST_F(Transactions, ThereIsOneAtATime) {
  auto transaction = m_store.Begin();
  ASSERT_TRUE(transaction);
  EXPECT_EQ(m_store.Begin(), nullptr);
  Add(QStringLiteral("a"));
  EXPECT_TRUE(transaction->Commit());
  const auto next = m_store.Begin();
  EXPECT_TRUE(next);
  Add(QStringLiteral("b"));
  transaction.reset();  // committed long ago, so the next one stays open
  EXPECT_TRUE(next->Commit());
  EXPECT_EQ(Size(), 2);
}

TEST_F(Transactions, OneThatOutlivesTheSessionDoesNothing) {
  const auto transaction = m_store.Begin();
  Add(QStringLiteral("a"));
  m_store.Close();
  EXPECT_FALSE(transaction->Commit());
  ASSERT_EQ(test::OpenAll(m_store), 0);
  EXPECT_EQ(Size(), 0);
}

TEST_F(Transactions, OthersDoNotSeeWhatIsNotCommitted) {
  PimStore other(Path());
  ASSERT_EQ(test::OpenAll(other), 0);
  const auto transaction = m_store.Begin();
  Add(QStringLiteral("a"));
  EXPECT_EQ(other.Contacts()->Count(other.Contacts()->Items()), 0);
  EXPECT_TRUE(transaction->Commit());
  EXPECT_EQ(other.Contacts()->Count(other.Contacts()->Items()), 1);
}

TEST_F(Transactions, ChangesTellsOfOthersWritesOnly) {
  PimStore other(Path());
  ASSERT_EQ(test::OpenAll(other), 0);
  const qint64 before = m_store.Changes();
  Add(QStringLiteral("own"));
  EXPECT_EQ(m_store.Changes(), before);
  const qint64 othersBefore = other.Changes();
  ContactRecord record;
  record[ContactField::FileAs] = QStringLiteral("other's");
  ASSERT_NE(other.Contacts()->Save(0, record, {}), 0);
  EXPECT_NE(m_store.Changes(), before);
  EXPECT_EQ(m_store.Changes(), m_store.Changes());
  EXPECT_EQ(other.Changes(), othersBefore);
  EXPECT_EQ(test::Names(Contacts(), Contacts().Items()),
            QStringList({QStringLiteral("other's"), QStringLiteral("own")}));
}

TEST_F(Transactions, TwoStoresNeverGiveTheSameOid) {
  PimStore other(Path());
  ASSERT_EQ(test::OpenAll(other), 0);
  for (int i = 0; i < 10; ++i) {
    EXPECT_EQ(Add(QStringLiteral("a")), 2 * i + 1);
    EXPECT_EQ(other.Contacts()->Save(0, {}, {}), 2 * i + 2);
  }
}

}  // namespace
}  // namespace quill
