#include "store/pim/Journal.h"

#include <gtest/gtest.h>

#include "store/pim/Database.h"
#include "store_pim/TemporaryStore.h"

namespace quill {
namespace {

class Journal : public test::TemporaryStore {
 protected:
  // As if every deletion had happened so many seconds earlier.
  void Age(qint64 seconds) {
    Database raw;
    ASSERT_EQ(raw.Open(Path()), 0);
    ASSERT_EQ(raw.Execute("UPDATE contact_journal SET DeletedAt = DeletedAt - " +
                          QByteArray::number(seconds)),
              0);
  }

  std::optional<qint64> RowsAfterAStart() {
    m_store.Close();
    EXPECT_EQ(test::OpenAll(m_store), 0);
    Database raw;
    EXPECT_EQ(raw.Open(Path()), 0);
    return raw.Number("SELECT count(*) FROM contact_journal");
  }
};

TEST_F(Journal, WhatWasDeletedThirtyDaysAgoIsForgottenAtTheNextStart) {
  Contacts().Remove(Add(QStringLiteral("Kim")));
  Age(kJournalDays * 24 * 60 * 60 + 1);
  Contacts().Remove(Add(QStringLiteral("Lee")));
  EXPECT_EQ(RowsAfterAStart(), 1);
}

TEST_F(Journal, WhatWasDeletedLaterIsKept) {
  Contacts().Remove(Add(QStringLiteral("Kim")));
  Age(kJournalDays * 24 * 60 * 60 - 60);
  EXPECT_EQ(RowsAfterAStart(), 1);
}

TEST_F(Journal, OldRowsAreFoundInAnIndex) {
  Database raw;
  ASSERT_EQ(raw.Open(Path()), 0);
  Query plan = raw.Prepare("EXPLAIN QUERY PLAN SELECT 1 FROM contact_journal WHERE DeletedAt < 5");
  ASSERT_TRUE(plan.Next());
  EXPECT_TRUE(plan.Text(3).contains(QStringLiteral("contact_journal_by_time")));
}

}  // namespace
}  // namespace quill
