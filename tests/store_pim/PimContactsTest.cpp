#include "store/pim/PimContacts.h"

#include <gtest/gtest.h>

#include <QFile>

#include "store/Restriction.h"
#include "store/pim/Database.h"
#include "store/pim/StoreCheck.h"
#include "store_pim/TemporaryStore.h"

namespace quill {
namespace {

class PimContactsFolder : public test::TemporaryStore {
 protected:
  QString FileAsOf(Oid oid) {
    ContactRecord record;
    EXPECT_TRUE(Contacts().ReadListRow(oid, record));
    return record[ContactField::FileAs];
  }

  Oid AddUid(const QString& uid) {
    ContactItem item;
    item.Uid = uid;
    return Contacts().SaveWhole(0, item);
  }
};

ContactRecord Person(const QString& last, const QString& first) {
  ContactRecord record;
  record[ContactField::LastName] = last;
  record[ContactField::FirstName] = first;
  return record;
}

TEST_F(PimContactsFolder, OidsStartAtOneAndAreNeverUsedAgain) {
  EXPECT_EQ(Add(QStringLiteral("a")), 1);
  const Oid last = Add(QStringLiteral("b"));
  EXPECT_EQ(last, 2);
  EXPECT_TRUE(Contacts().Remove(last));
  EXPECT_EQ(Add(QStringLiteral("c")), 3);
}

TEST_F(PimContactsFolder, ANewContactWithoutFileAsGetsOne) {
  EXPECT_EQ(FileAsOf(Contacts().Save(0, Person(QStringLiteral("Lee"), QStringLiteral("Ann")), {})),
            QStringLiteral("Lee, Ann"));
  ContactItem item;
  item.Record[ContactField::CompanyName] = QStringLiteral("1st Bank");
  EXPECT_EQ(FileAsOf(Contacts().SaveWhole(0, item)), QStringLiteral("1st Bank"));
  EXPECT_EQ(FileAsOf(Contacts().Save(0, {}, {})), QString());
}

TEST_F(PimContactsFolder, AMadeFileAsIsFoundAndSorted) {
  Contacts().Save(0, Person(QStringLiteral("Zed"), QString()), {});
  const Oid lee = Contacts().Save(0, Person(QStringLiteral("Lee"), QString()), {});
  EXPECT_EQ(Contacts().OidAt(Contacts().Items(), 1), lee);
  EXPECT_EQ(Contacts().FindByFileAs(QStringLiteral("Lee")), std::vector<Oid>({lee}));
}

TEST_F(PimContactsFolder, AnExistingContactKeepsItsFileAsWhenTheNameChanges) {
  const Oid oid = Contacts().Save(0, Person(QStringLiteral("Lee"), QStringLiteral("Ann")), {});
  ContactItem item;
  ASSERT_TRUE(Contacts().Read(oid, item));
  item.Record[ContactField::LastName] = QStringLiteral("Park");
  Contacts().Save(oid, item.Record, {});
  EXPECT_EQ(FileAsOf(oid), QStringLiteral("Lee, Ann"));
}

TEST_F(PimContactsFolder, AnExistingContactMayLoseItsFileAs) {
  const Oid oid = Add(QStringLiteral("Lee"));
  Contacts().Save(oid, Person(QStringLiteral("Lee"), QString()), {});
  EXPECT_EQ(FileAsOf(oid), QString());
}

TEST_F(PimContactsFolder, AnyTextIsKeptAndFound) {
  for (const QString& name :
       {QStringLiteral("O'Neil"), QStringLiteral("\"Q\""), QStringLiteral("100% %s %1 ?1"),
        QStringLiteral("a\\b"), QStringLiteral("\U0001F600 smile"), QStringLiteral("김철수"),
        QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b"), QStringLiteral("line\nline"),
        QStringLiteral("'); DROP TABLE contact; --"), QStringLiteral("half ") + QChar(0xD83D)}) {
    const Oid oid = Add(name);
    EXPECT_EQ(FileAsOf(oid), name);
    EXPECT_EQ(Contacts().FindByFileAs(name), std::vector<Oid>({oid}));
    const auto found = Contacts().Restrict(
        Contacts().Items(), QStringLiteral("[FileAs] = ") + QuoteRestrictionValue(name));
    ASSERT_TRUE(found);
    EXPECT_EQ(Contacts().OidAt(*found, 1), oid);
    EXPECT_EQ(Contacts().Count(*found), 1);
  }
}

TEST_F(PimContactsFolder, ALongTextIsKept) {
  const QString name(1'000'000, u'가');
  EXPECT_EQ(FileAsOf(Add(name)), name);
}

TEST_F(PimContactsFolder, FindsByTheExactFileAsInOidOrder) {
  const Oid first = Add(QStringLiteral("Kim"));
  Add(QStringLiteral("KIM"));
  Add(QStringLiteral("Kim "));
  const Oid second = Add(QStringLiteral("Kim"));
  EXPECT_EQ(Contacts().FindByFileAs(QStringLiteral("Kim")), std::vector<Oid>({first, second}));
  EXPECT_TRUE(Contacts().FindByFileAs(QStringLiteral("kim")).empty());
}

TEST_F(PimContactsFolder, FindsByUidButNotByNone) {
  AddUid(QString());
  const Oid a = AddUid(QStringLiteral("urn:uuid:1"));
  AddUid(QStringLiteral("urn:uuid:2"));
  const Oid b = AddUid(QStringLiteral("urn:uuid:1"));
  EXPECT_EQ(Contacts().FindByUid(QStringLiteral("urn:uuid:1")), std::vector<Oid>({a, b}));
  EXPECT_TRUE(Contacts().FindByUid(QStringLiteral("urn")).empty());
  EXPECT_TRUE(Contacts().FindByUid(QString()).empty());
}

TEST_F(PimContactsFolder, AnUnknownContactIsNeitherReadNorWrittenNorRemoved) {
  ContactItem item;
  item.Uid = QStringLiteral("before");
  EXPECT_FALSE(Contacts().Read(5, item));
  EXPECT_EQ(item.Uid, QStringLiteral("before"));
  EXPECT_EQ(Contacts().Save(5, {}, {}), 0);
  EXPECT_EQ(Contacts().SaveWhole(5, {}), 0);
  EXPECT_EQ(Contacts().SaveWhole(-1, {}), 0);
  EXPECT_FALSE(Contacts().Remove(5));
  EXPECT_FALSE(Contacts().Remove(0));
  EXPECT_EQ(Contacts().Count(Contacts().Items()), 0);
}

TEST_F(PimContactsFolder, WhatIsWrittenIsThereAfterReopening) {
  const Oid oid = Add(QStringLiteral("Kim"));
  m_store.Close();
  EXPECT_EQ(m_store.Contacts(), nullptr);
  ASSERT_EQ(test::OpenAll(m_store), 0);
  EXPECT_EQ(FileAsOf(oid), QStringLiteral("Kim"));
}

TEST_F(PimContactsFolder, EachWriteIsDurableWithoutClosing) {
  Add(QStringLiteral("Kim"));
  const QString copy = m_folder.filePath(QStringLiteral("copy.db"));
  for (const char* suffix : {"", "-wal"}) {
    const QString end = QString::fromLatin1(suffix);
    ASSERT_TRUE(QFile::copy(Path() + end, copy + end));
  }
  PimStore afterCrash(copy);
  ASSERT_EQ(test::OpenAll(afterCrash), 0);
  EXPECT_EQ(test::Names(*afterCrash.Contacts(), afterCrash.Contacts()->Items()),
            QStringList(QStringLiteral("Kim")));
}

// Few contacts go one by one; of many the index is made anew.
class RemovedCollection : public PimContactsFolder, public testing::WithParamInterface<int> {
 protected:
  // Half of them are named "a...", every fifth is of a category.
  void SetUp() override {
    PimContactsFolder::SetUp();
    const auto transaction = m_store.Begin();
    for (int i = 0; i < GetParam(); ++i) {
      ContactRecord record;
      record[ContactField::FileAs] = QLatin1Char(i % 2 == 0 ? 'a' : 'b') + QString::number(i);
      if (i % 5 == 0) record[ContactField::Categories] = QStringLiteral("Work");
      ASSERT_NE(Contacts().Save(0, record, {}), 0);
    }
    ASSERT_TRUE(transaction->Commit());
  }

  ContactCollection Restricted(const char* restriction) {
    return *Contacts().Restrict(Contacts().Items(), QString::fromLatin1(restriction));
  }
  int CountOf(const char* restriction) { return Contacts().Count(Restricted(restriction)); }
  bool IsSound() { return m_store.Check().Index == IndexCondition::Right; }
};

TEST_P(RemovedCollection, HoldsNothingAndTheOthersStay) {
  EXPECT_TRUE(Contacts().RemoveAll(Restricted(R"([FileAs] < "b")")));
  EXPECT_EQ(Contacts().Count(Contacts().Items()), GetParam() / 2);
  EXPECT_EQ(CountOf(R"([FileAs] < "b")"), 0);
  EXPECT_EQ(CountOf(R"([Categories] = "Work")"), GetParam() / 10);
  EXPECT_TRUE(IsSound());
}

TEST_P(RemovedCollection, CanBeTheWholeStore) {
  EXPECT_TRUE(Contacts().RemoveAll(Contacts().Items()));
  EXPECT_EQ(Contacts().Count(Contacts().Items()), 0);
  EXPECT_TRUE(IsSound());
}

TEST_P(RemovedCollection, IsInTheJournal) {
  EXPECT_TRUE(Contacts().RemoveAll(Restricted(R"([FileAs] < "b")")));
  Database file;
  ASSERT_EQ(file.Open(Path()), 0);
  EXPECT_EQ(file.Number("SELECT count(*) FROM contact_journal"), GetParam() / 2);
}

TEST_P(RemovedCollection, IsThereAgainWhenTheTransactionGoesWithoutACommit) {
  auto transaction = m_store.Begin();
  EXPECT_TRUE(Contacts().RemoveAll(Contacts().Items()));
  transaction.reset();
  EXPECT_EQ(Contacts().Count(Contacts().Items()), GetParam());
  EXPECT_TRUE(IsSound());
}

TEST_P(RemovedCollection, StaysWholeWhenOneCannotBeRemoved) {
  Database file;
  ASSERT_EQ(file.Open(Path()), 0);
  ASSERT_EQ(file.Execute("CREATE TRIGGER keep BEFORE DELETE ON contact WHEN OLD.Oid = 7 "
                         "BEGIN SELECT RAISE(ABORT, 'kept'); END"),
            0);
  EXPECT_FALSE(Contacts().RemoveAll(Contacts().Items()));
  EXPECT_EQ(Contacts().Count(Contacts().Items()), GetParam());
  EXPECT_TRUE(IsSound());
}

INSTANTIATE_TEST_SUITE_P(Sizes, RemovedCollection, testing::Values(20, 2200));

}  // namespace
}  // namespace quill
