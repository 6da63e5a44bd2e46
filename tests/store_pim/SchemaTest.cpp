#include "store/pim/Schema.h"

#include <gtest/gtest.h>

#include <QDateTime>

#include "store/ContactFields.h"
#include "store/pim/Database.h"
#include "store/pim/SqlFunctions.h"
#include "store_pim/TemporaryStore.h"

namespace quill {
namespace {

class Schema : public test::TemporaryStore {
 protected:
  void SetUp() override {
    TemporaryStore::SetUp();
    ASSERT_EQ(m_raw.Open(Path()), 0);
    ASSERT_EQ(RegisterFunctions(m_raw), 0);
  }

  QString RawText(const QByteArray& sql) {
    Query query = m_raw.Prepare(sql);
    EXPECT_TRUE(query.Next()) << sql.constData();
    return query.Text(0);
  }

  Database m_raw;
};

TEST_F(Schema, AFileSaysWhatItIs) {
  EXPECT_EQ(m_raw.Number("PRAGMA user_version"), 2);
  EXPECT_EQ(m_raw.Number("PRAGMA application_id"), 0x5175696C);
  EXPECT_EQ(RawText("PRAGMA encoding"), QStringLiteral("UTF-16le"));
  EXPECT_EQ(RawText("PRAGMA journal_mode"), QStringLiteral("wal"));
  EXPECT_EQ(RawText("PRAGMA integrity_check"), QStringLiteral("ok"));
}

TEST_F(Schema, AConnectionWritesDurably) {
  Database database;
  ASSERT_EQ(database.Open(m_folder.filePath(QStringLiteral("other.db"))), 0);
  ASSERT_EQ(RegisterFunctions(database), 0);
  ASSERT_EQ(PrepareSchema(database), 0);
  EXPECT_EQ(database.Number("PRAGMA synchronous"), 2);
  EXPECT_EQ(database.Number("PRAGMA cache_size"), -8000);
}

TEST_F(Schema, TheUidIsLookedUpInAnIndex) {
  Query plan = m_raw.Prepare(
      "EXPLAIN QUERY PLAN SELECT Oid FROM contact WHERE Uid = ?1 AND Uid <> '' ORDER BY Oid");
  ASSERT_TRUE(plan.Next());
  EXPECT_TRUE(plan.Text(3).contains(QStringLiteral("contact_by_uid")));
}

TEST_F(Schema, ADeletedContactIsInTheJournalWithEverythingItHad) {
  ContactItem item;
  for (const ContactFieldRow& row : kContactFields) {
    item.Record[row.Field] = row.Property.toString() + QStringLiteral(" 김");
  }
  item.Record.Birthday = {2000, 2, 2, 29, 0, 0, 0, 0};
  item.BodyInk = "ink";
  item.Uid = QStringLiteral("uid");
  item.CarriedLines = QStringLiteral("X-A:1\n");
  const Oid oid = Contacts().SaveWhole(0, item);
  ASSERT_TRUE(Contacts().Remove(oid));

  for (const ContactFieldRow& row : kContactFields) {
    EXPECT_EQ(RawText("SELECT " + row.Property.toUtf8() + " FROM contact_journal"),
              item.Record[row.Field]);
  }
  EXPECT_EQ(m_raw.Number("SELECT Oid FROM contact_journal"), oid);
  EXPECT_EQ(m_raw.Number("SELECT Birthday FROM contact_journal"), 36585);
  EXPECT_EQ(m_raw.Number("SELECT Anniversary FROM contact_journal"), 949998);
  EXPECT_EQ(RawText("SELECT CAST(BodyInk AS TEXT) = CAST(x'696E6B' AS TEXT) FROM contact_journal"),
            QStringLiteral("1"));
  EXPECT_EQ(RawText("SELECT Uid FROM contact_journal"), QStringLiteral("uid"));
  EXPECT_EQ(RawText("SELECT CarriedLines FROM contact_journal"), QStringLiteral("X-A:1\n"));
}

TEST_F(Schema, TheJournalSaysWhen) {
  const qint64 before = QDateTime::currentSecsSinceEpoch();
  Contacts().Remove(Add(QStringLiteral("Kim")));
  const auto deletedAt = m_raw.Number("SELECT DeletedAt FROM contact_journal");
  ASSERT_TRUE(deletedAt);
  EXPECT_GE(*deletedAt, before);
  EXPECT_LE(*deletedAt, QDateTime::currentSecsSinceEpoch());
}

TEST_F(Schema, NoDeletionGoesRoundTheJournal) {
  Add(QStringLiteral("Kim"));
  Add(QStringLiteral("Lee"));
  EXPECT_EQ(m_raw.Execute("DELETE FROM contact"), 0);
  EXPECT_EQ(m_raw.Number("SELECT count(*) FROM contact_journal"), 2);
}

TEST_F(Schema, AWriterWithoutTheStoresFunctionsIsRefused) {
  const Oid kim = Add(QStringLiteral("Kim"));
  Database stranger;
  ASSERT_EQ(stranger.Open(Path()), 0);
  for (const char* sql : {"INSERT INTO contact (FileAs) VALUES ('Lee')", "DELETE FROM contact",
                          "UPDATE contact SET FileAs = 'Lee'"}) {
    EXPECT_NE(stranger.Execute(sql), 0) << sql;
  }
  EXPECT_EQ(test::Names(Contacts(), Contacts().Items()), QStringList{QStringLiteral("Kim")});
  EXPECT_EQ(Contacts().OidAt(Contacts().Items(), 1), kim);
}

TEST_F(Schema, ADeletionRolledBackIsNotInTheJournal) {
  const Oid kim = Add(QStringLiteral("Kim"));
  m_store.Begin();  // gone at once: rolled back
  {
    const auto transaction = m_store.Begin();
    ASSERT_TRUE(transaction);
    EXPECT_TRUE(Contacts().Remove(kim));
  }
  EXPECT_EQ(m_raw.Number("SELECT count(*) FROM contact_journal"), 0);
  EXPECT_EQ(m_raw.Number("SELECT count(*) FROM contact"), 1);
}

TEST_F(Schema, AnOidStaysWithin32Bits) {
  ASSERT_EQ(Add(QStringLiteral("Kim")), 1);
  m_raw.Execute("UPDATE sqlite_sequence SET seq = 2147483646 WHERE name = 'contact'");
  EXPECT_EQ(Add(QStringLiteral("Last")), std::numeric_limits<Oid>::max());
  EXPECT_EQ(Add(QStringLiteral("Too many")), 0);
  EXPECT_FALSE(m_store.LastError().isEmpty());
  EXPECT_EQ(Contacts().Count(Contacts().Items()), 2);
}

TEST_F(Schema, PreparingAStoreAgainChangesNothing) {
  Add(QStringLiteral("Kim"));
  Database again;
  ASSERT_EQ(again.Open(Path()), 0);
  ASSERT_EQ(RegisterFunctions(again), 0);
  EXPECT_EQ(PrepareSchema(again), 0);
  EXPECT_EQ(again.Number("SELECT count(*) FROM contact"), 1);
}

}  // namespace
}  // namespace quill
