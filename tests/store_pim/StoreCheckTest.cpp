#include "store/pim/StoreCheck.h"

#include <gtest/gtest.h>

#include "store/pim/Database.h"
#include "store/pim/SqlFunctions.h"
#include "store_pim/TemporaryStore.h"

namespace quill {
namespace {

struct Damage {
  const char* Name;
  const char* Sql;
  const char* Fault;
};

void PrintTo(const Damage& each, std::ostream* out) { *out << each.Name; }

class StoreCheckOf : public test::TemporaryStore, public testing::WithParamInterface<Damage> {
 protected:
  void SetUp() override {
    TemporaryStore::SetUp();
    const auto transaction = m_store.Begin();
    for (int i = 0; i < 1500; ++i) Add(QStringLiteral("Name %1").arg(i));
    ASSERT_TRUE(transaction->Commit());
  }
};

TEST_P(StoreCheckOf, AnIndexThatDiffersIsMadeAnew) {
  Database raw;
  ASSERT_EQ(raw.Open(Path()), 0);
  ASSERT_EQ(RegisterFunctions(raw), 0);
  ASSERT_EQ(raw.Execute(GetParam().Sql), 0);
  const StoreHealth health = m_store.Check();
  EXPECT_EQ(health.FileFaults, QStringList());
  EXPECT_TRUE(health.IndexFaults.contains(QString::fromLatin1(GetParam().Fault)))
      << health.IndexFaults.join(QStringLiteral(" / ")).toStdString();
  EXPECT_EQ(health.Index, IndexCondition::Rebuilt);
  const StoreHealth again = m_store.Check();
  EXPECT_EQ(again.Index, IndexCondition::Right);
  EXPECT_EQ(again.IndexFaults, QStringList());
  EXPECT_EQ(Contacts().Count(Contacts().Items()), 1500);
}

INSTANTIATE_TEST_SUITE_P(
    StoreCheck, StoreCheckOf,
    testing::Values(
        Damage{"AnEntryGone", "DELETE FROM entry WHERE oid = 7",
               "The index lacks 4 entries of contacts."},
        Damage{"AnEntryTooMany", "INSERT INTO entry VALUES (x'3041', 1)",
               "The index has 1 entries more than it should."},
        Damage{"AnEntryOfNobody", "INSERT INTO entry VALUES (x'3041', 5000)",
               "The index has 1 entries more than it should."},
        Damage{"AnEntryMoved", "UPDATE entry SET key = x'3041' WHERE oid = 7 AND key < x'31'",
               "The index lacks 1 entries of contacts."},
        Damage{"ABucketMiscounted", "UPDATE bucket SET n = n + 1 WHERE oid = 0",
               "1 buckets of the index are counted wrongly."},
        Damage{"ABucketGone", "DELETE FROM bucket WHERE oid > 0",
               "1 buckets of the index are counted wrongly."},
        Damage{"TheFirstBucketGone", "DELETE FROM bucket WHERE oid = 0",
               "The index lacks its first bucket."},
        Damage{"ATriggerGone", "DROP TRIGGER contact_moved", "The index lacks 1 of its triggers."},
        Damage{"ATableGone", "DROP TABLE bucket", "The index cannot be read."}),
    [](const auto& testCase) { return testCase.param.Name; });

using StoreCheck = test::TemporaryStore;

TEST_F(StoreCheck, AnEmptyStoreIsRight) { EXPECT_EQ(m_store.Check().Index, IndexCondition::Right); }

TEST_F(StoreCheck, AStoreThatIsNotOpenIsUnknown) {
  m_store.Close();
  EXPECT_EQ(m_store.Check().Index, IndexCondition::Unknown);
}

TEST_F(StoreCheck, AStoreInATransactionIsUnknownAndSaysSo) {
  const auto transaction = m_store.Begin();
  const StoreHealth health = m_store.Check();
  EXPECT_EQ(health.Index, IndexCondition::Unknown);
  EXPECT_EQ(health.IndexFaults.size(), 1);
}

}  // namespace
}  // namespace quill
