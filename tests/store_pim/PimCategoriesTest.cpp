#include "store/pim/PimCategories.h"

#include <gtest/gtest.h>

#include "store/Categories.h"
#include "store/ContactStore.h"
#include "store/pim/Database.h"
#include "store_pim/TemporaryStore.h"

namespace quill {
namespace {

using CategoriesOfAStore = test::TemporaryStore;

QStringList SomeNames() {
  return {QStringLiteral("Work"), QStringLiteral("가족"), QStringLiteral("a, b"), QString()};
}

TEST_F(CategoriesOfAStore, ANewStoreHasFive) {
  EXPECT_EQ(
      m_store.Categories()->Names(),
      QStringList({QStringLiteral("Business"), QStringLiteral("Family"), QStringLiteral("Friends"),
                   QStringLiteral("Personal"), QStringLiteral("Work")}));
}

TEST_F(CategoriesOfAStore, AListReplacesTheOneBeforeAndIsKept) {
  ASSERT_TRUE(m_store.Categories()->SetNames(SomeNames()));
  m_store.Close();
  ASSERT_EQ(test::OpenAll(m_store), 0);
  EXPECT_EQ(m_store.Categories()->Names(),
            QStringList({QStringLiteral("Work"), QStringLiteral("가족")}));
}

TEST_F(CategoriesOfAStore, AnEmptyListStaysEmpty) {
  ASSERT_TRUE(m_store.Categories()->SetNames({}));
  m_store.Close();
  ASSERT_EQ(test::OpenAll(m_store), 0);
  EXPECT_EQ(m_store.Categories()->Names(), QStringList());
}

TEST_F(CategoriesOfAStore, AnotherProgramSeesTheList) {
  PimStore other(Path());
  ASSERT_EQ(test::OpenAll(other), 0);
  const qint64 before = other.Changes();
  ASSERT_TRUE(m_store.Categories()->SetNames({QStringLiteral("Work")}));
  EXPECT_NE(other.Changes(), before);
  EXPECT_EQ(other.Categories()->Names(), QStringList(QStringLiteral("Work")));
}

TEST_F(CategoriesOfAStore, AWriteThatFailsLeavesTheList) {
  Database raw;
  ASSERT_EQ(raw.Open(Path()), 0);
  ASSERT_EQ(raw.Execute("CREATE TRIGGER stop BEFORE INSERT ON category WHEN NEW.Name = 'B' BEGIN "
                        "SELECT RAISE(FAIL, 'no'); END"),
            0);
  const QStringList before = m_store.Categories()->Names();
  EXPECT_FALSE(m_store.Categories()->SetNames({QStringLiteral("A"), QStringLiteral("B")}));
  EXPECT_EQ(m_store.Categories()->Names(), before);
}

TEST_F(CategoriesOfAStore, AListGoesWithTheTransactionAroundIt) {
  const QStringList before = m_store.Categories()->Names();
  {
    const auto transaction = m_store.Begin();
    ASSERT_TRUE(m_store.Categories()->SetNames({QStringLiteral("Work")}));
  }
  EXPECT_EQ(m_store.Categories()->Names(), before);
}

TEST_F(CategoriesOfAStore, NoCategoriesIsOfferedLastAndNeverStored) {
  m_store.Close();
  ASSERT_EQ(OpenSession(m_store), StartupCode::Opened);
  ASSERT_TRUE(SetUserCategories({QStringLiteral("No Categories"), QStringLiteral("Work")}));
  EXPECT_EQ(UserCategories(), QStringList(QStringLiteral("Work")));
  EXPECT_EQ(OfferedCategories(),
            QStringList({QStringLiteral("Work"), QStringLiteral("No Categories")}));
  CloseSession();
}

TEST_F(CategoriesOfAStore, AreThereWithASessionOnly) {
  m_store.Close();
  EXPECT_FALSE(Cate_OpenCreate_DB());
  ASSERT_EQ(OpenSession(m_store), StartupCode::Opened);
  EXPECT_TRUE(Cate_OpenCreate_DB());
  CloseSession();
}

TEST(Categories, WithoutASessionThereIsOnlyNoCategories) {
  EXPECT_EQ(UserCategories(), QStringList());
  EXPECT_EQ(OfferedCategories(), QStringList(QStringLiteral("No Categories")));
  EXPECT_FALSE(SetUserCategories({QStringLiteral("Work")}));
}

}  // namespace
}  // namespace quill
