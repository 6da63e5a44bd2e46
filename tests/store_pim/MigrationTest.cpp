#include "store/pim/Migration.h"

#include <gtest/gtest.h>

#include <QFile>

#include "store/pim/Database.h"
#include "store/pim/SqlFunctions.h"
#include "store_pim/TemporaryStore.h"

namespace quill {
namespace {

// Version 1 as it was, whatever fields a contact has got since.
constexpr char kTexts1[] =
    "FileAs Title FirstName MiddleName LastName Suffix JobTitle Department CompanyName "
    "BusinessTelephoneNumber Business2TelephoneNumber BusinessFaxNumber HomeTelephoneNumber "
    "Home2TelephoneNumber HomeFaxNumber MobileTelephoneNumber PagerNumber CarTelephoneNumber "
    "RadioTelephoneNumber Email1Address Email2Address Email3Address WebPage "
    "BusinessAddressStreet BusinessAddressCity BusinessAddressState BusinessAddressPostalCode "
    "BusinessAddressCountry HomeAddressStreet HomeAddressCity HomeAddressState "
    "HomeAddressPostalCode HomeAddressCountry OtherAddressStreet OtherAddressCity "
    "OtherAddressState OtherAddressPostalCode OtherAddressCountry Categories Spouse Children";

QByteArray Version1() {
  const QByteArrayList texts = QByteArray(kTexts1).split(' ');
  const QByteArray columns =
      texts.join(" TEXT NOT NULL DEFAULT '', ") +
      " TEXT NOT NULL DEFAULT '', Birthday REAL NOT NULL DEFAULT 949998.0, "
      "Anniversary REAL NOT NULL DEFAULT 949998.0, BodyInk BLOB NOT NULL DEFAULT x'', "
      "Uid TEXT NOT NULL DEFAULT '', CarriedLines TEXT NOT NULL DEFAULT ''";
  const QByteArrayList all =
      texts + QByteArrayList{"Birthday", "Anniversary", "BodyInk", "Uid", "CarriedLines"};
  const QByteArray names = all.join(", ");
  return "PRAGMA encoding = 'UTF-16le';"
         "CREATE TABLE contact (Oid INTEGER PRIMARY KEY AUTOINCREMENT "
         "CHECK (Oid BETWEEN 1 AND 2147483647), " +
         columns +
         ", FileAsKey BLOB NOT NULL, CompanyKey BLOB NOT NULL);"
         "CREATE INDEX contact_by_file_as ON contact (FileAsKey);"
         "CREATE INDEX contact_by_company ON contact (CompanyKey, FileAsKey);"
         "CREATE INDEX contact_by_uid ON contact (Uid) WHERE Uid <> '';"
         "CREATE TABLE contact_journal (JournalId INTEGER PRIMARY KEY, DeletedAt INTEGER NOT NULL, "
         "Oid INTEGER NOT NULL, " +
         columns +
         ");"
         "CREATE TRIGGER contact_deleted AFTER DELETE ON contact BEGIN INSERT INTO contact_journal "
         "(DeletedAt, Oid, " +
         names + ") VALUES (CAST(strftime('%s', 'now') AS INTEGER), OLD.Oid, OLD." +
         all.join(", OLD.") +
         "); END;"
         "PRAGMA application_id = 0x5175696C; PRAGMA user_version = 1; PRAGMA journal_mode = WAL;";
}

constexpr char kPeople[] =
    "INSERT INTO contact (Oid, FileAs, Categories, FileAsKey, CompanyKey) VALUES "
    "(3, 'Zed', 'Work, Play', fold_key('Zed'), x''), (5, 'abel', '', fold_key('abel'), x''), "
    "(9, 'Gone', '', fold_key('Gone'), x''); DELETE FROM contact WHERE Oid = 9;";

class FromVersion1 : public testing::Test {
 protected:
  void SetUp() override {
    Database old;
    ASSERT_EQ(old.Open(Path()), 0);
    ASSERT_EQ(RegisterFunctions(old), 0);
    ASSERT_EQ(old.Execute(Version1() + kPeople), 0);
  }

  QString Path() const { return m_folder.filePath(QStringLiteral("store.db")); }
  QString CopyPath() const { return Path() + QStringLiteral(".v1"); }

  static std::optional<qint64> NumberIn(const QString& path, const QByteArray& sql) {
    Database database;
    EXPECT_EQ(database.Open(path), 0);
    return database.Number(sql);
  }

  // Tables with their columns, indexes and triggers, by name.
  static QStringList Shape(const QString& path) {
    Database database;
    EXPECT_EQ(database.Open(path), 0);
    Query query = database.Prepare(
        "SELECT m.type || ' ' || m.name || ' ' || coalesce(c.name || ' ' || c.type || ' ' || "
        "coalesce(c.dflt_value, '-') || c.\"notnull\" || c.pk, '') FROM sqlite_master AS m "
        "LEFT JOIN pragma_table_info(m.name) AS c ORDER BY 1");
    QStringList shape;
    while (query.Next()) shape.append(query.Text(0));
    return shape;
  }

  QTemporaryDir m_folder;
};

TEST_F(FromVersion1, EveryContactIsKeptWithItsOid) {
  PimStore store(Path());
  ASSERT_EQ(test::OpenAll(store), 0) << store.LastError().toStdString();
  ContactsFolder& contacts = *store.Contacts();
  EXPECT_EQ(test::Names(contacts, contacts.Items()),
            QStringList({QStringLiteral("abel"), QStringLiteral("Zed")}));
  EXPECT_EQ(contacts.OidAt(contacts.Items(), 2), 3);
  const auto work = contacts.Restrict(contacts.Items(), QStringLiteral("[Categories] = \"Play\""));
  EXPECT_EQ(contacts.Count(*work), 1);
  EXPECT_EQ(store.Check().Index, IndexCondition::Right);
  EXPECT_EQ(store.Categories()->Names().size(), 5);
}

TEST_F(FromVersion1, OidsOfDeletedContactsAreNotUsedAgain) {
  PimStore store(Path());
  ASSERT_EQ(test::OpenAll(store), 0);
  EXPECT_EQ(store.Contacts()->Save(0, {}, {}), 10);
}

TEST_F(FromVersion1, TheJournalIsKept) {
  PimStore store(Path());
  ASSERT_EQ(test::OpenAll(store), 0);
  EXPECT_EQ(NumberIn(Path(), "SELECT Oid FROM contact_journal"), 9);
}

TEST_F(FromVersion1, TheStoreIsMadeAsANewOne) {
  const QString fresh = m_folder.filePath(QStringLiteral("fresh.db"));
  PimStore store(Path());
  PimStore freshStore(fresh);
  ASSERT_EQ(test::OpenAll(store), 0);
  ASSERT_EQ(test::OpenAll(freshStore), 0);
  EXPECT_EQ(Shape(Path()), Shape(fresh));
  EXPECT_EQ(NumberIn(Path(), "PRAGMA user_version"), NumberIn(fresh, "PRAGMA user_version"));
}

TEST_F(FromVersion1, TheFileIsCopiedBefore) {
  PimStore store(Path());
  ASSERT_EQ(test::OpenAll(store), 0);
  EXPECT_EQ(NumberIn(CopyPath(), "PRAGMA user_version"), 1);
  EXPECT_EQ(NumberIn(CopyPath(), "PRAGMA application_id"), 0x5175696C);
  EXPECT_EQ(NumberIn(CopyPath(), "SELECT count(*) FROM contact WHERE FileAsKey <> x''"), 2);
}

TEST_F(FromVersion1, ACopyMadeEarlierIsKept) {
  QFile earlier(CopyPath());
  ASSERT_TRUE(earlier.open(QIODevice::WriteOnly));
  earlier.write("earlier");
  earlier.close();
  PimStore store(Path());
  ASSERT_EQ(test::OpenAll(store), 0);
  ASSERT_TRUE(earlier.open(QIODevice::ReadOnly));
  EXPECT_EQ(earlier.readAll(), "earlier");
  EXPECT_EQ(NumberIn(CopyPath() + QStringLiteral("-2"), "PRAGMA user_version"), 1);
}

TEST_F(FromVersion1, ALaterStartCopiesNothing) {
  for (int start = 0; start < 2; ++start) {
    PimStore store(Path());
    ASSERT_EQ(test::OpenAll(store), 0);
  }
  EXPECT_FALSE(QFile::exists(CopyPath() + QStringLiteral("-2")));
}

TEST_F(FromVersion1, AStepThatFailsLeavesTheFileAsItWas) {
  Database old;
  ASSERT_EQ(old.Open(Path()), 0);
  ASSERT_EQ(old.Execute("DROP INDEX contact_by_company"), 0);
  old.Close();
  const QStringList before = Shape(Path());
  PimStore store(Path());
  EXPECT_EQ(store.Create(), 0);
  EXPECT_NE(store.Logon(), 0);
  EXPECT_FALSE(store.LastError().isEmpty());
  EXPECT_EQ(Shape(Path()), before);
  EXPECT_EQ(NumberIn(Path(), "PRAGMA user_version"), 1);
  EXPECT_EQ(NumberIn(Path(), "SELECT count(*) FROM contact"), 2);
}

TEST_F(FromVersion1, WithoutACopyNothingIsChanged) {
  // The path of a copy that cannot be written: a link to nowhere that exists.
  ASSERT_TRUE(QFile::link(m_folder.filePath(QStringLiteral("no/such/place")), CopyPath()));
  PimStore store(Path());
  EXPECT_EQ(store.Create(), 0);
  EXPECT_NE(store.Logon(), 0);
  EXPECT_EQ(store.LastError(), QStringLiteral("the file cannot be copied before it is changed"));
  EXPECT_EQ(NumberIn(Path(), "PRAGMA user_version"), 1);
}

}  // namespace
}  // namespace quill
