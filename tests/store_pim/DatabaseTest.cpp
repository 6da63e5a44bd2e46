#include "store/pim/Database.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QTemporaryDir>

namespace quill {
namespace {

class DatabaseFile : public testing::Test {
 protected:
  DatabaseFile() : m_path(m_folder.filePath(QStringLiteral("a database.db"))) {
    m_database.Open(m_path);
    m_database.Execute("CREATE TABLE t (n INTEGER)");
  }

  QTemporaryDir m_folder;
  QString m_path;
  Database m_database;
};

TEST_F(DatabaseFile, RunsStatements) {
  EXPECT_EQ(m_database.Execute("INSERT INTO t VALUES (1); INSERT INTO t VALUES (2)"), SQLITE_OK);
  EXPECT_EQ(m_database.Number("SELECT sum(n) FROM t"), 3);
  EXPECT_EQ(m_database.LastRowId(), 2);
  m_database.Execute("UPDATE t SET n = 5");
  EXPECT_EQ(m_database.ChangedRows(), 2);
}

TEST_F(DatabaseFile, AFailureIsKeptWithItsTextAndPrimaryCode) {
  EXPECT_EQ(m_database.Execute("no such thing"), SQLITE_ERROR);
  EXPECT_EQ(m_database.FailureCode(), SQLITE_ERROR);
  EXPECT_TRUE(m_database.FailureText().contains(QStringLiteral("syntax error")));
  EXPECT_EQ(m_database.Fail(SQLITE_IOERR_WRITE, QStringLiteral("why")), SQLITE_IOERR);
  EXPECT_EQ(m_database.FailureText(), QStringLiteral("why"));
}

TEST_F(DatabaseFile, ANumberThatIsNotThereIsNothing) {
  EXPECT_FALSE(m_database.Number("SELECT n FROM t"));
  EXPECT_EQ(m_database.FailureCode(), 0);
  EXPECT_FALSE(m_database.Number("SELECT x FROM t"));
  EXPECT_EQ(m_database.FailureCode(), SQLITE_ERROR);
}

TEST_F(DatabaseFile, AStatementIsPreparedOnceAndFinalisedAtClose) {
  for (int i = 0; i < 3; ++i) m_database.Number("SELECT count(*) FROM t");
  int statements = 0;
  for (auto* s = sqlite3_next_stmt(m_database.Handle(), nullptr); s;
       s = sqlite3_next_stmt(m_database.Handle(), s)) {
    ++statements;
  }
  EXPECT_EQ(statements, 1);
  m_database.Close();
  EXPECT_EQ(m_database.Handle(), nullptr);
}

TEST_F(DatabaseFile, MoreTextsThanAreKeptStillRun) {
  for (int i = 0; i < 300; ++i) {
    ASSERT_EQ(m_database.Number("SELECT " + QByteArray::number(i)), i);
  }
  int statements = 0;
  for (auto* s = sqlite3_next_stmt(m_database.Handle(), nullptr); s;
       s = sqlite3_next_stmt(m_database.Handle(), s)) {
    ++statements;
  }
  EXPECT_EQ(statements, 100);
}

TEST_F(DatabaseFile, ATransactionIsCommittedOrRolledBack) {
  ASSERT_TRUE(m_database.Begin());
  EXPECT_FALSE(m_database.Begin());
  m_database.Execute("INSERT INTO t VALUES (1)");
  EXPECT_TRUE(m_database.Commit());
  EXPECT_FALSE(m_database.Commit());
  ASSERT_TRUE(m_database.Begin());
  m_database.Execute("INSERT INTO t VALUES (2)");
  m_database.Rollback();
  EXPECT_EQ(m_database.Number("SELECT sum(n) FROM t"), 1);
}

TEST_F(DatabaseFile, ATransactionThatEndedEarlyIsLost) {
  ASSERT_TRUE(m_database.Begin());
  EXPECT_FALSE(m_database.TransactionLost());
  m_database.Execute("ROLLBACK");
  EXPECT_TRUE(m_database.TransactionLost());
  EXPECT_FALSE(m_database.Commit());
  m_database.Rollback();
  EXPECT_FALSE(m_database.TransactionLost());
}

TEST_F(DatabaseFile, TheStampMovesWithOwnWritesOthersWritesAndRollbacks) {
  const DataStamp start = m_database.Stamp();
  EXPECT_EQ(m_database.Stamp(), start);

  m_database.Execute("INSERT INTO t VALUES (1)");
  const DataStamp own = m_database.Stamp();
  EXPECT_NE(own, start);

  Database other;
  ASSERT_EQ(other.Open(m_path), SQLITE_OK);
  other.Execute("INSERT INTO t VALUES (2)");
  const DataStamp others = m_database.Stamp();
  EXPECT_NE(others, own);

  m_database.Begin();
  m_database.Execute("DELETE FROM t");
  const DataStamp deleted = m_database.Stamp();
  m_database.Rollback();
  EXPECT_NE(m_database.Stamp(), deleted);
}

TEST_F(DatabaseFile, TheFirstBytesAreTheFiles) {
  EXPECT_EQ(m_database.FirstBytes(15), "SQLite format 3");
  EXPECT_EQ(m_database.FirstBytes(100'000).size(), 8192);
}

TEST(Database, WithoutAFileThereAreNoFirstBytes) {
  const QTemporaryDir folder;
  for (const QString& path :
       {QStringLiteral(":memory:"), folder.filePath(QStringLiteral("new.db"))}) {
    Database database;
    ASSERT_EQ(database.Open(path), SQLITE_OK);
    EXPECT_EQ(database.FirstBytes(100), QByteArray());
  }
}

TEST(Database, AFolderIsNoDatabase) {
  const QTemporaryDir folder;
  Database database;
  EXPECT_EQ(database.Open(folder.path()), SQLITE_CANTOPEN);
  EXPECT_EQ(database.Handle(), nullptr);
  EXPECT_FALSE(database.FailureText().isEmpty());
}

TEST(Database, LivesInMemoryWithoutAFile) {
  Database database;
  ASSERT_EQ(database.Open(QStringLiteral(":memory:")), SQLITE_OK);
  database.Execute("CREATE TABLE t (n); INSERT INTO t VALUES (7)");
  EXPECT_EQ(database.Number("SELECT n FROM t"), 7);
}

}  // namespace
}  // namespace quill
