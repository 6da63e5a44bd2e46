#include "store/pim/Savepoint.h"

#include <gtest/gtest.h>

#include "store/pim/Database.h"

namespace quill {
namespace {

class Savepoints : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(m_database.Open(QStringLiteral(":memory:")), 0);
    ASSERT_EQ(m_database.Execute("CREATE TABLE t (x)"), 0);
  }

  void Insert() { ASSERT_EQ(m_database.Execute("INSERT INTO t VALUES (1)"), 0); }
  std::optional<qint64> Rows() { return m_database.Number("SELECT count(*) FROM t"); }

  Database m_database;
};

TEST_F(Savepoints, AReleaseKeepsAndCommits) {
  {
    Savepoint savepoint(m_database);
    ASSERT_TRUE(savepoint.IsOpen());
    Insert();
    EXPECT_TRUE(m_database.InTransaction());
    EXPECT_TRUE(savepoint.Release());
    EXPECT_FALSE(savepoint.Release());
  }
  EXPECT_FALSE(m_database.InTransaction());
  EXPECT_EQ(Rows(), 1);
}

TEST_F(Savepoints, WithoutAReleaseNothingIsKept) {
  {
    const Savepoint savepoint(m_database);
    Insert();
  }
  EXPECT_FALSE(m_database.InTransaction());
  EXPECT_EQ(Rows(), 0);
}

TEST_F(Savepoints, InATransactionOnlyThePartIsUndone) {
  ASSERT_TRUE(m_database.Begin());
  Insert();
  {
    const Savepoint savepoint(m_database);
    Insert();
  }
  EXPECT_TRUE(m_database.InTransaction());
  EXPECT_TRUE(m_database.Commit());
  EXPECT_EQ(Rows(), 1);
}

TEST_F(Savepoints, InALostTransactionNothingIsWritten) {
  ASSERT_TRUE(m_database.Begin());
  ASSERT_EQ(m_database.Execute("ROLLBACK"), 0);
  Savepoint savepoint(m_database);
  EXPECT_FALSE(savepoint.IsOpen());
  EXPECT_FALSE(savepoint.Release());
}

TEST_F(Savepoints, ATransactionEndedInsideIsNotTouchedAgain) {
  Savepoint savepoint(m_database);
  Insert();
  ASSERT_EQ(m_database.Execute("ROLLBACK"), 0);
  EXPECT_FALSE(savepoint.Release());
  EXPECT_EQ(Rows(), 0);
}

}  // namespace
}  // namespace quill
