#include "store/pim/SqlFunctions.h"

#include <gtest/gtest.h>

#include "store/Collation.h"
#include "store/pim/Database.h"

namespace quill {
namespace {

class SqlFunctions : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(m_database.Open(QStringLiteral(":memory:")), 0);
    ASSERT_EQ(RegisterFunctions(m_database), 0);
  }

  QByteArray Key(const QByteArray& function, QStringView text) {
    Query query = m_database.Prepare("SELECT " + function + "(?1)");
    query.BindText(1, text);
    EXPECT_TRUE(query.Next());
    return query.Blob(0);
  }

  Database m_database;
};

TEST_F(SqlFunctions, KeysAreThoseOfTheCollation) {
  for (const QString& text : {QString(), QStringLiteral("kim, Äpfel 김"),
                              QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b")}) {
    EXPECT_EQ(Key("fold_key", text), FoldKey(text));
    EXPECT_EQ(Key("unit_key", text), UnitKey(text));
  }
}

TEST_F(SqlFunctions, TheKeyOfNoTextIsAnEmptyBlob) {
  EXPECT_EQ(m_database.Number("SELECT typeof(fold_key('')) = 'blob'"), 1);
  EXPECT_EQ(m_database.Number("SELECT fold_key(NULL) = x''"), 1);
}

TEST_F(SqlFunctions, CategoriesMatchAsTexts) {
  EXPECT_EQ(m_database.Number("SELECT categories_match('Club', 'Work, Club')"), 1);
  EXPECT_EQ(m_database.Number("SELECT categories_match('club', 'Work, Club')"), 0);
  EXPECT_EQ(m_database.Number("SELECT categories_match('', '')"), 1);
  EXPECT_EQ(m_database.Number("SELECT categories_match('', 'Work')"), 0);
}

}  // namespace
}  // namespace quill
