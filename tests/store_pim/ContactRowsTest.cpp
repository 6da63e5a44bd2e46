#include "store/pim/ContactRows.h"

#include <gtest/gtest.h>

#include "store/ContactFields.h"
#include "store/pim/Database.h"
#include "store_pim/TemporaryStore.h"

namespace quill {
namespace {

// Every text different, so that a field in another's column shows.
ContactItem FullItem(const QString& mark) {
  ContactItem item;
  for (const ContactFieldRow& row : kContactFields) {
    item.Record[row.Field] = row.Property.toString() + mark;
  }
  item.Record.Birthday = {2000, 2, 2, 29, 0, 0, 0, 0};
  item.Record.Anniversary = {2004, 9, 3, 15, 9, 30, 5, 125};
  item.BodyInk = "ink" + mark.toUtf8();
  item.Uid = QStringLiteral("uid") + mark;
  item.CarriedLines = QStringLiteral("X-A:1") + mark + u'\n';
  return item;
}

class ContactRows : public test::TemporaryStore {
 protected:
  QString Stored(Oid oid, QStringView property) {
    Database database;
    EXPECT_EQ(database.Open(Path()), 0);
    Query query = database.Prepare("SELECT " + property.toUtf8() + " FROM contact WHERE Oid = ?1");
    query.BindNumber(1, oid);
    EXPECT_TRUE(query.Next());
    return query.Text(0);
  }
};

class EveryField : public ContactRows, public testing::WithParamInterface<ContactFieldRow> {
 protected:
  static QString Name() { return GetParam().Property.toString(); }
};

TEST_P(EveryField, StandsInTheColumnOfItsProperty) {
  const ContactItem item = FullItem(QStringLiteral(" 1"));
  const Oid oid = Contacts().SaveWhole(0, item);
  EXPECT_EQ(Stored(oid, GetParam().Property), Name() + QStringLiteral(" 1"));
}

TEST_P(EveryField, IsPutBackByAnEditOrKept) {
  const Oid oid = Contacts().SaveWhole(0, FullItem(QStringLiteral(" 1")));
  EXPECT_EQ(Contacts().Save(oid, FullItem(QStringLiteral(" 2")).Record, {}), oid);
  const QString mark = GetParam().WrittenBack() ? QStringLiteral(" 2") : QStringLiteral(" 1");
  EXPECT_EQ(Stored(oid, GetParam().Property), Name() + mark);
}

TEST_P(EveryField, OfANewContactIsWrittenOrLeftEmpty) {
  const Oid oid = Contacts().Save(0, FullItem(QStringLiteral(" 1")).Record, {});
  const QString written = Name() + QStringLiteral(" 1");
  EXPECT_EQ(Stored(oid, GetParam().Property), GetParam().WrittenBack() ? written : QString());
}

TEST_P(EveryField, IsReplacedWhenTheWholeContactIsWritten) {
  const Oid oid = Contacts().SaveWhole(0, FullItem(QStringLiteral(" 1")));
  EXPECT_EQ(Contacts().SaveWhole(oid, FullItem(QStringLiteral(" 2"))), oid);
  EXPECT_EQ(Stored(oid, GetParam().Property), Name() + QStringLiteral(" 2"));
}

TEST_P(EveryField, IsClearedByAnEditOrKept) {
  const Oid oid = Contacts().SaveWhole(0, FullItem(QStringLiteral(" 1")));
  Contacts().Save(oid, {}, {});
  const QString kept = Name() + QStringLiteral(" 1");
  EXPECT_EQ(Stored(oid, GetParam().Property), GetParam().WrittenBack() ? QString() : kept);
}

TEST_P(EveryField, IsInAListRowOrEmptyThere) {
  const Oid oid = Contacts().SaveWhole(0, FullItem(QStringLiteral(" 1")));
  ContactRecord record = FullItem(QStringLiteral(" left over")).Record;
  ASSERT_TRUE(Contacts().ReadListRow(oid, record));
  const QString carried = Name() + QStringLiteral(" 1");
  EXPECT_EQ(record[GetParam().Field], GetParam().InListRow() ? carried : QString());
}

INSTANTIATE_TEST_SUITE_P(Rows, EveryField, testing::ValuesIn(kContactFields), [](const auto& row) {
  return row.param.Property.toString().toStdString();
});

TEST_F(ContactRows, AWholeContactIsReadAsItWasWritten) {
  const ContactItem item = FullItem(QStringLiteral(" 1"));
  const Oid oid = Contacts().SaveWhole(0, item);
  ContactItem read;
  ASSERT_TRUE(Contacts().Read(oid, read));
  EXPECT_EQ(read.Record, item.Record);
  EXPECT_EQ(read.BodyInk, item.BodyInk);
  EXPECT_EQ(read.Uid, item.Uid);
  EXPECT_EQ(read.CarriedLines, item.CarriedLines);
}

TEST_F(ContactRows, AnEditKeepsUidAndCarriedLinesAndReplacesTheInk) {
  const Oid oid = Contacts().SaveWhole(0, FullItem(QStringLiteral(" 1")));
  Contacts().Save(oid, {}, "other ink");
  ContactItem read;
  ASSERT_TRUE(Contacts().Read(oid, read));
  EXPECT_EQ(read.BodyInk, "other ink");
  EXPECT_EQ(read.Uid, QStringLiteral("uid 1"));
  EXPECT_EQ(read.CarriedLines, QStringLiteral("X-A:1 1\n"));
}

class StoredDate : public ContactRows {
 protected:
  double Automation(Oid oid, QByteArray property) {
    Database database;
    EXPECT_EQ(database.Open(Path()), 0);
    Query query = database.Prepare("SELECT " + property + " FROM contact WHERE Oid = ?1");
    query.BindNumber(1, oid);
    EXPECT_TRUE(query.Next());
    return query.Real(0);
  }

  void PutAutomation(Oid oid, double birthday) {
    Database database;
    EXPECT_EQ(database.Open(Path()), 0);
    Query query = database.Prepare("UPDATE contact SET Birthday = ?1 WHERE Oid = ?2");
    query.BindReal(1, birthday);
    query.BindNumber(2, oid);
    EXPECT_TRUE(query.Run());
  }
};

TEST_F(StoredDate, IsAnAutomationDate) {
  const Oid oid = Contacts().SaveWhole(0, FullItem({}));
  EXPECT_EQ(Automation(oid, "Birthday"), 36585.0);
  EXPECT_NEAR(Automation(oid, "Anniversary"), 38245.3958926, 1e-6);
}

TEST_F(StoredDate, OfNoDateIsTheEmptyDate) {
  const Oid oid = Contacts().Save(0, {}, {});
  EXPECT_EQ(Automation(oid, "Birthday"), 949998.0);
  EXPECT_EQ(Automation(oid, "Anniversary"), 949998.0);
  const Oid full = Contacts().SaveWhole(0, FullItem({}));
  Contacts().Save(full, {}, {});
  EXPECT_EQ(Automation(full, "Birthday"), 949998.0);
}

TEST_F(StoredDate, OutsideTheYearsReadsAsNoneAndIsSavedAsEmpty) {
  const Oid oid = Contacts().Save(0, {}, {});
  for (const double automation : {0.0, 949998.0, 401769.0, -3.0}) {
    PutAutomation(oid, automation);
    ContactItem item;
    ASSERT_TRUE(Contacts().Read(oid, item));
    EXPECT_EQ(item.Record.Birthday, CalendarDate{});
    Contacts().Save(oid, item.Record, {});
    EXPECT_EQ(Automation(oid, "Birthday"), 949998.0);
  }
}

TEST_F(StoredDate, AtTheEdgesIsKept) {
  const Oid oid = Contacts().Save(0, {}, {});
  for (const auto& [automation, year] : {std::pair(2.0, 1900), std::pair(401768.0, 2999)}) {
    PutAutomation(oid, automation);
    ContactItem item;
    ASSERT_TRUE(Contacts().Read(oid, item));
    EXPECT_EQ(item.Record.Birthday.Year, year);
    Contacts().Save(oid, item.Record, {});
    EXPECT_EQ(Automation(oid, "Birthday"), automation);
  }
}

TEST_F(StoredDate, ThatIsNoDateLeavesTheStoresAndWritesTheRest) {
  ContactItem item = FullItem({});
  const Oid oid = Contacts().SaveWhole(0, item);
  item.Record.Birthday.Month = 13;
  item.Record.Anniversary = {};
  item.Record[ContactField::Spouse] = QStringLiteral("Lee");
  EXPECT_EQ(Contacts().Save(oid, item.Record, {}), oid);
  EXPECT_EQ(Automation(oid, "Birthday"), 36585.0);
  EXPECT_EQ(Automation(oid, "Anniversary"), 949998.0);
  EXPECT_EQ(Stored(oid, u"Spouse"), QStringLiteral("Lee"));
  EXPECT_EQ(Automation(Contacts().Save(0, item.Record, {}), "Birthday"), 949998.0);
}

}  // namespace
}  // namespace quill
