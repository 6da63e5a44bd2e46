#include "store/pim/Query.h"

#include <gtest/gtest.h>

#include "store/pim/Database.h"

namespace quill {
namespace {

class QueryIn : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    ASSERT_EQ(m_database.Open(QStringLiteral(":memory:")), 0);
    m_database.Execute(QByteArray("PRAGMA encoding = '") + GetParam() + "'");
    m_database.Execute("CREATE TABLE t (value)");
  }

  QString TextBack(const QString& text) {
    Query write = m_database.Prepare("INSERT INTO t VALUES (?1)");
    write.BindText(1, text);
    EXPECT_TRUE(write.Run());
    return LastText();
  }

  QString LastText() {
    Query read = m_database.Prepare("SELECT value FROM t ORDER BY rowid DESC LIMIT 1");
    EXPECT_TRUE(read.Next());
    return read.Text(0);
  }

  Database m_database;
};

TEST_P(QueryIn, TextsComeBackAsTheyWere) {
  for (const QString& text :
       {QString(), QStringLiteral("Kim"), QStringLiteral("O'Neil \"x\" %s ?1"),
        QStringLiteral("김철수 \U0001F600"),
        QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b"), QString(QChar(u'\0')),
        QString(100'000, u'가')}) {
    EXPECT_EQ(TextBack(text), text);
  }
}

TEST_P(QueryIn, ByteOrderMarksAtTheBeginningAreDropped) {
  const QString kim = QStringLiteral("Kim");
  EXPECT_EQ(TextBack(QChar(0xFEFF) + kim), kim);
  EXPECT_EQ(TextBack(QChar(0xFFFE) + kim), kim);
  EXPECT_EQ(TextBack(QString(3, QChar(0xFEFF))), QString());
}

INSTANTIATE_TEST_SUITE_P(Encodings, QueryIn, testing::Values("UTF-16le", "UTF-8"));

class QueryAsStored : public QueryIn {};

TEST_P(QueryAsStored, HalvesOfSurrogatePairsComeBack) {
  const QString half = QStringLiteral("Kim ") + QChar(0xD83D);
  EXPECT_EQ(TextBack(half), half);
  EXPECT_EQ(TextBack(QChar(0xDE00) + half), QChar(0xDE00) + half);
}

TEST_P(QueryAsStored, TheEmptyTextIsNotNull) {
  Query write = m_database.Prepare("INSERT INTO t VALUES (?1)");
  write.BindText(1, QStringView());
  ASSERT_TRUE(write.Run());
  EXPECT_EQ(m_database.Number("SELECT count(*) FROM t WHERE value IS NOT NULL"), 1);
}

TEST_P(QueryAsStored, BlobsAndNumbersComeBack) {
  Query query = m_database.Prepare("SELECT ?1, ?2, ?3, ?4");
  query.BindBlob(1, QByteArray("\0\xFF", 2));
  query.BindBlob(2, QByteArray());
  query.BindNumber(3, -5'000'000'000);
  query.BindReal(4, 949998.25);
  ASSERT_TRUE(query.Next());
  EXPECT_EQ(query.Blob(0), QByteArray("\0\xFF", 2));
  EXPECT_EQ(query.Blob(1), QByteArray());
  EXPECT_EQ(query.Number(2), -5'000'000'000);
  EXPECT_EQ(query.Real(3), 949998.25);
  EXPECT_FALSE(query.Next());
  EXPECT_FALSE(query.Failed());
}

TEST_P(QueryAsStored, AnotherUseStartsWithoutTheValuesOfTheLast) {
  for (const bool bound : {true, false}) {
    Query query = m_database.Prepare("SELECT ?1 IS NULL");
    if (bound) query.BindNumber(1, 1);
    ASSERT_TRUE(query.Next());
    EXPECT_EQ(query.Number(0), bound ? 0 : 1);
  }
}

TEST_P(QueryAsStored, AQueryThatCannotBePreparedFails) {
  Query query = m_database.Prepare("SELECT x FROM nowhere");
  query.BindNumber(1, 1);
  query.BindText(1, u"x");
  EXPECT_TRUE(query.Failed());
  EXPECT_FALSE(query.Next());
  EXPECT_FALSE(query.Run());
}

TEST_P(QueryAsStored, AParameterThatIsNotThereFails) {
  Query query = m_database.Prepare("SELECT 1");
  query.BindNumber(1, 1);
  EXPECT_TRUE(query.Failed());
  EXPECT_FALSE(query.Next());
}

TEST_P(QueryAsStored, NullIsToldApartFromWhatIsEmpty) {
  Query query = m_database.Prepare("SELECT ?1, ?2, ?3, 0");
  query.BindText(2, u"");
  query.BindBlob(3, {});
  ASSERT_TRUE(query.Next());
  EXPECT_TRUE(query.IsNull(0));
  for (const int column : {1, 2, 3}) EXPECT_FALSE(query.IsNull(column)) << column;
}

INSTANTIATE_TEST_SUITE_P(Encodings, QueryAsStored, testing::Values("UTF-16le"));

}  // namespace
}  // namespace quill
